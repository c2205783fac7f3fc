// Prints to an HTML file in the folder "Sheet" below PowerPath (the system's temporary folder when that is
// empty), and opens it with the desktop's program. Only this user can read the file; it is removed when the program
// ends.
#pragma once

#include "session/components.h"

namespace jxc {

class HtmlPrinter : public Printer {
  public:
    void Print(const GridPrintJob& job) override;
    void Print(const TemplatePrintJob& job) override;
    std::vector<std::string> PrintAll(const std::vector<TemplatePrintJob>& jobs) override;
};

} // namespace jxc
