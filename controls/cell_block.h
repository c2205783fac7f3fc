// Cells as spreadsheets put them on the clipboard: tabs between cells, line ends between rows, and a cell that
// holds one of them, or a quote, stands in quotes with its own quotes doubled.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jxc {

using CellBlock = std::vector<std::vector<std::string>>;

// The rows of a clipboard text; rows without any text are left out.
CellBlock ReadCells(std::string_view text);

} // namespace jxc
