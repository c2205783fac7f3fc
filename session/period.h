// The current accounting period.
#pragma once

#include <string>

#include "base/date.h"

namespace jxc {

// The day on which a period begins, for any date of its month. `day` 1 to 28: that day of the date's month;
// negative: that day of the month before; 0: the last day of the month before.
[[nodiscard]] Date PeriodDate(Date date, int day);

// Reads period, decimals and cost method of the system parameters into the session. An empty table leaves
// them.
void LoadPeriodSettings();
[[nodiscard]] std::string PeriodStatement();
// Reads the start of the books; without one the current period's month counts. Needs LoadPeriodSettings
// before it.
void LoadSystemStartDate();

} // namespace jxc
