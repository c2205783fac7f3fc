// Printouts as HTML pages in the subset that browsers and the toolkit's rich text share: no scripts, no
// outside files.
#pragma once

#include <string>

#include "session/components.h"

namespace jxc {

// A grid with its title, the company's header and the amount below; hidden columns are left out.
[[nodiscard]] std::string GridPage(const GridPrintJob& job);
// A document by its template. A TemplateError when that cannot be printed.
[[nodiscard]] std::string TemplatePage(const TemplatePrintJob& job);
// Several documents, each from a new page on.
[[nodiscard]] std::string TemplatePages(const std::vector<TemplatePrintJob>& jobs);

} // namespace jxc
