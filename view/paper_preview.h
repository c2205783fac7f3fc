// The preview of what is printed: one page at a time, drawn when it is shown, with the page keys; printing
// and saving as PDF from there.
#pragma once

#include <string>

#include "view/paper.h"

class QWidget;

namespace jxc {

// Modal; its window is named "preview". PgUp and PgDn turn the pages, Ctrl+Home and Ctrl+End go to the first
// and last, + and - change the size, Ctrl+P prints, Ctrl+S saves a PDF, Esc closes.
void PreviewPaper(const Paper& paper, const std::string& title, QWidget* parent);

} // namespace jxc
