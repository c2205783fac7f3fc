// Calendar dates of documents and periods.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace jxc {

using Date = std::chrono::year_month_day;

[[nodiscard]] Date MakeDate(int year, int month, int day);
// Today in local time; JXC_TODAY=yyyy-mm-dd in the environment fixes it for scripts and tests.
[[nodiscard]] Date Today();
// From now on it is this day, whatever the environment says; nothing ends that. For scripts that play more than a day.
void FixToday(std::optional<Date> day);
// This moment in local time, "yyyy-mm-dd hh:mm:ss", on the day that Today gives.
[[nodiscard]] std::string NowText();
// "yyyy-mm-dd", a time behind it is ignored; nothing when it is no date of the calendar.
[[nodiscard]] std::optional<Date> ParseDate(std::string_view text);

[[nodiscard]] std::string IsoText(Date date);   // yyyy-mm-dd
[[nodiscard]] std::string SlashText(Date date); // mm/dd/yyyy, the form of a date written into a statement
[[nodiscard]] Date AddDays(Date date, int days);
[[nodiscard]] Date AddMonths(Date date, int months); // a day beyond the month's end becomes its last day
[[nodiscard]] int YearOf(Date date);
[[nodiscard]] int MonthOf(Date date);
[[nodiscard]] int DayOf(Date date);

} // namespace jxc
