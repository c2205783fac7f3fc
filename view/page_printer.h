// Printing of HTML pages: a preview from which the person prints or saves, and PDF files. The printer of the
// windows: it previews what the screens hand over.
#pragma once

#include <string>

#include <QString>

#include "session/components.h"

class QWidget;

namespace jxc {

// A file that cannot be written is a std::runtime_error.
void PrintToPdf(const std::string& html, const QString& file);
// Modal. Pages wider than high when `html` holds a wide table is the person's choice in the preview.
void PreviewPage(const std::string& html, const std::string& title, QWidget* parent);

class PreviewPrinter : public Printer {
  public:
    void Print(const GridPrintJob& job) override;
    void Print(const TemplatePrintJob& job) override;
};

} // namespace jxc
