// Calendar dates of documents and periods.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace jxc {

using Date = std::chrono::year_month_day;

Date MakeDate(int year, int month, int day);
// Today in local time; JXC_TODAY=yyyy-mm-dd in the environment fixes it for scripts and tests.
Date Today();
// "yyyy-mm-dd", a time behind it is ignored; nothing when it is no date of the calendar.
std::optional<Date> ParseDate(std::string_view text);

std::string IsoText(Date date);   // yyyy-mm-dd
std::string SlashText(Date date); // mm/dd/yyyy, the form of a date written into a statement
Date AddDays(Date date, int days);
Date AddMonths(Date date, int months); // a day beyond the month's end becomes its last day
int YearOf(Date date);
int MonthOf(Date date);
int DayOf(Date date);

} // namespace jxc
