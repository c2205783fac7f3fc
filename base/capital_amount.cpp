#include "base/capital_amount.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace jxc {

namespace {

constexpr double kBound = 1e12;
constexpr std::array<const char*, 10> kDigits = {"零", "壹", "贰", "叁", "肆", "伍", "陆", "柒", "捌", "玖"};
constexpr std::array<const char*, 4> kPlaces = {"仟", "佰", "拾", ""};
constexpr std::array<const char*, 3> kGroups = {"亿", "万", ""};
constexpr int kGroup = 10000;

// A number below 10000. `gap` says that zeros stand before it, which are told as one; afterwards, whether it ends in some.
std::string GroupText(int number, bool& gap) {
    std::string text;
    for (int place = 0, unit = kGroup / 10; place < 4; ++place, unit /= 10) {
        const int digit = number / unit % 10;
        if (digit == 0) {
            gap = true;
            continue;
        }
        if (gap)
            text += kDigits[0];
        gap = false;
        text += std::string(kDigits[static_cast<size_t>(digit)]) + kPlaces[static_cast<size_t>(place)];
    }
    return text;
}

std::string WholeText(std::int64_t whole) {
    std::string text;
    bool gap = false;
    std::int64_t unit = std::int64_t{kGroup} * kGroup;
    for (size_t group = 0; group < kGroups.size(); ++group, unit /= kGroup) {
        const int number = static_cast<int>(whole / unit % kGroup);
        if (text.empty())
            gap = false; // nothing is told before the first digit
        if (text.empty() && number == 0)
            continue;
        bool leading = text.empty();
        std::string told = GroupText(number, gap);
        if (leading && told.starts_with(kDigits[0]))
            told.erase(0, std::string(kDigits[0]).size());
        if (number > 0)
            text += told + kGroups[group];
    }
    return text;
}

} // namespace

std::string CapitalAmount(double amount) {
    if (!(std::fabs(amount) < kBound))
        return "";
    const std::int64_t cents = std::llround(std::fabs(amount) * 100);
    const std::int64_t whole = cents / 100;
    const auto tens = static_cast<size_t>(cents / 10 % 10), ones = static_cast<size_t>(cents % 10);
    std::string text = amount < 0 && cents > 0 ? "负" : "";
    if (whole > 0 || cents == 0)
        text += (whole > 0 ? WholeText(whole) : std::string(kDigits[0])) + "元";
    if (cents % 100 == 0)
        return text + "整";
    if (tens > 0)
        text += std::string(kDigits[tens]) + "角";
    else if (whole > 0)
        text += kDigits[0];
    return text + (ones > 0 ? std::string(kDigits[ones]) + "分" : "整");
}

} // namespace jxc
