#include "base/date.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace jxc {

using namespace std::chrono;

Date MakeDate(int year, int month, int day) {
    return Date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                std::chrono::day{static_cast<unsigned>(day)}};
}

namespace {

std::optional<Date> fixedDay;

} // namespace

void FixToday(std::optional<Date> day) {
    fixedDay = day;
}

Date Today() {
    if (fixedDay)
        return *fixedDay;
    if (const char* fixed = std::getenv("JXC_TODAY"))
        if (const auto date = ParseDate(fixed))
            return *date;
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return MakeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

std::string NowText() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 16> time{};
    std::strftime(time.data(), time.size(), " %H:%M:%S", &local);
    return IsoText(Today()) + time.data();
}

std::optional<Date> ParseDate(std::string_view text) {
    if (text.size() < 10 || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    if (text.size() > 10 && text[10] != ' ')
        return std::nullopt;
    int parts[3] = {0, 0, 0};
    const size_t starts[3] = {0, 5, 8};
    const size_t lengths[3] = {4, 2, 2};
    for (int part = 0; part < 3; ++part)
        for (size_t i = starts[part]; i < starts[part] + lengths[part]; ++i) {
            if (text[i] < '0' || text[i] > '9')
                return std::nullopt;
            parts[part] = parts[part] * 10 + (text[i] - '0');
        }
    const Date date = MakeDate(parts[0], parts[1], parts[2]);
    return date.ok() ? std::optional<Date>(date) : std::nullopt;
}

std::string IsoText(Date date) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", YearOf(date), MonthOf(date), DayOf(date));
    return text;
}

std::string SlashText(Date date) {
    char text[32];
    std::snprintf(text, sizeof text, "%02d/%02d/%04d", MonthOf(date), DayOf(date), YearOf(date));
    return text;
}

Date AddDays(Date date, int count) {
    return Date{sys_days{date} + days{count}};
}

Date AddMonths(Date date, int count) {
    Date moved = date + months{count};
    if (!moved.ok())
        moved = Date{moved.year() / moved.month() / last};
    return moved;
}

int YearOf(Date date) {
    return static_cast<int>(date.year());
}
int MonthOf(Date date) {
    return static_cast<int>(static_cast<unsigned>(date.month()));
}
int DayOf(Date date) {
    return static_cast<int>(static_cast<unsigned>(date.day()));
}

} // namespace jxc
