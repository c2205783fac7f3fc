// Printing a screen's grid.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "controls/grid.h"
#include "session/components.h"

namespace jxc {

// Hands the grid to the printer, headed by the session's CompanyFieldList and `fields` behind it. An empty
// grid prints nothing and says nothing.
void PrintGrid(const Grid& grid, const std::string& title, const std::string& typeName,
               const std::string& amount, const FieldList& fields = {});

// What stands before the amount below a grid.
inline constexpr const char* kAmountCaption = "金额合计";

// A key without the "<" and ">" around it.
[[nodiscard]] std::string PlainKey(const std::string& key);
// The header's pairs as paper shows them: those without a value are left out, and the "<" and ">" around
// keys, which are for templates only.
[[nodiscard]] std::vector<std::pair<std::string, std::string>> ShownHeader(const FieldList& header);

} // namespace jxc
