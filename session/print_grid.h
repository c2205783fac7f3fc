// Printing a screen's grid.
#pragma once

#include <string>

#include "controls/grid.h"

namespace jxc {

// Hands the grid with the session's CompanyFieldList to the printer. An empty grid prints nothing and says
// nothing.
void PrintGrid(const Grid& grid, const std::string& title, const std::string& typeName,
               const std::string& amount);

} // namespace jxc
