// What the close and its reversal share: a month's slice of the closed tables, and the period that moves.
#pragma once

#include <optional>
#include <string>

#include "base/date.h"

namespace jxc {

// "2026年11月"
[[nodiscard]] std::string MonthName(Date month);

// Deletes the rows of a closed table that carry the month, inside the caller's transaction.
void ClearMonth(const std::string& table, Date month);
// Whether documents or statistics of the month stand in the closed tables.
[[nodiscard]] bool IsClosed(Date month);

// Makes another month the company's, inside the caller's transaction, and writes that into the trail as `action`.
void MovePeriod(Date month, Date other, const std::string& action);
// The month that the company is in, read anew; nothing when the parameters have none.
[[nodiscard]] std::optional<Date> StoredMonth();

} // namespace jxc
