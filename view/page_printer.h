// Paper into PDF files and onto printers, and the printer of the windows: it previews what the screens hand
// over, and the person prints or saves from there.
#pragma once

#include <QString>

#include "session/components.h"
#include "view/paper.h"

class QPrinter;

namespace jxc {

// A file that cannot be written is a std::runtime_error, and the one that stood there stays.
void WritePdf(const Paper& paper, const QString& file);
// The pages that the printer was set to, in its layout; all without a choice. A std::runtime_error when it takes none.
void PrintOn(QPrinter& printer, const Paper& paper);

class PreviewPrinter : public Printer {
  public:
    void Print(const GridPrintJob& job) override;
    void Print(const TemplatePrintJob& job) override;
    std::vector<std::string> PrintAll(const std::vector<TemplatePrintJob>& jobs) override;
};

} // namespace jxc
