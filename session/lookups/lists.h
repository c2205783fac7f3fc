// Filling drop-down lists from the database, and finding an item again.
#pragma once

#include <string>

#include "controls/control.h"

namespace jxc {

// Clears the list; each row adds its first field, or with `withKey` the first field in `width` characters and
// the second directly behind it.
void FillCombo(const std::string& sql, ListBox& list, int width = 0, bool withKey = false);
// Clears the list and fills it with the distinct values of `fields` (two of them): the second alone, or both
// with a tab between.
void FillDistinctCombo(const std::string& table, ListBox& list, const std::string& fields,
                       const std::string& where, const std::string& tail, bool twoColumns);
// Adds the entries of a code list: the name, or the code, a tab and the name. The list is not cleared.
[[nodiscard]] std::string BriefStatement(const std::string& briefType);
void FillBriefCombo(ListBox& list, const std::string& briefType, bool withCode);

// The first item whose first `width` characters, or whose text from the character `start` on, count as the
// number; -1 when there is none.
[[nodiscard]] int ComboIndexByLeftValue(const ListBox& list, std::int64_t value, int width);
[[nodiscard]] int ComboIndexByMidValue(const ListBox& list, std::int64_t value,
                                       int start); // 0 is never found
// The first item equal to the text; -1 when there is none, or for "".
[[nodiscard]] int ComboIndexByText(const ListBox& list, const std::string& text);

} // namespace jxc
