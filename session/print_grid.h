// Printing a screen's grid.
#pragma once

#include <string>

#include "controls/grid.h"
#include "session/components.h"

namespace jxc {

// Hands the grid to the printer, headed by the session's CompanyFieldList and `fields` behind it. An empty
// grid prints nothing and says nothing.
void PrintGrid(const Grid& grid, const std::string& title, const std::string& typeName,
               const std::string& amount, const FieldList& fields = {});

} // namespace jxc
