#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <regex>

namespace jxc {

namespace {

constexpr int kMostDecimals = 15; // that a number has

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The length of the number at the start of `text`, 0 when there is none. No blanks are skipped.
size_t NumberLength(std::string_view text) {
    size_t at = 0;
    const auto digits = [&] {
        const size_t start = at;
        while (at < text.size() && IsDigit(text[at]))
            ++at;
        return at - start;
    };
    if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        ++at;
    size_t found = digits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        found += digits();
    }
    if (found == 0)
        return 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const size_t mantissa = at++;
        if (at < text.size() && (text[at] == '+' || text[at] == '-'))
            ++at;
        if (digits() == 0)
            at = mantissa;
    }
    return at;
}

double ParseNumber(std::string_view number) {
    if (!number.empty() && number[0] == '+')
        number.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc())
        return value;
    // Too large for a number, unless it is too small.
    const size_t exponent = number.find_first_of("eE");
    const bool small = exponent != std::string_view::npos && number[exponent + 1] == '-';
    return error == std::errc::result_out_of_range && !small ? HUGE_VAL : 0;
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

} // namespace

double Val(std::string_view text) {
    text = WithoutLeadingBlanks(text);
    return ParseNumber(text.substr(0, NumberLength(text)));
}

bool IsNumericText(std::string_view text) {
    const std::string trimmed = Trim(text);
    return !trimmed.empty() && NumberLength(trimmed) == trimmed.size();
}

std::string Trim(std::string_view text) {
    text = WithoutLeadingBlanks(text);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return std::string(text);
}

std::string TrimAnyBlanks(std::string_view text) {
    const auto isUnseen = [](char32_t c) {
        return (c >= 0x200B && c <= 0x200D) || c == 0x2060 || c == 0xFEFF;
    };
    const auto isBlank = [](char32_t c) {
        return c <= 0x20 || c == 0xA0 || c == 0x3000 || (c >= 0x2000 && c <= 0x200A);
    };
    std::u32string points = ToCodePoints(text);
    std::erase_if(points, isUnseen);
    const auto first = std::find_if_not(points.begin(), points.end(), isBlank);
    const auto last = std::find_if_not(points.rbegin(), std::make_reverse_iterator(first), isBlank).base();
    return FromCodePoints(std::u32string(first, last));
}

std::string WithoutThousands(std::string_view text) {
    static const std::regex grouped(R"(\s*[-+]?\d{1,3}(,\d{3})+(\.\d*)?\s*)");
    std::string digits(text);
    if (std::regex_match(digits, grouped))
        std::erase(digits, ',');
    return digits;
}

std::string UpperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    const auto fold = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return fold(x) == fold(y); });
}

std::string NumberText(double number) {
    if (!std::isfinite(number))
        return "0";
    if (number == 0)
        return "0";
    char text[64];
    const double size = std::fabs(number);
    const auto format = size >= 1e-7 && size < 1e15 ? std::chars_format::fixed : std::chars_format::general;
    const auto [end, error] = std::to_chars(text, text + sizeof text, number, format);
    return std::string(text, end);
}

double RoundDecimal(double number, int decimals, Halves halves) {
    if (!std::isfinite(number) || number == 0)
        return 0;
    // Most figures already have no more decimals than asked for, binary residue apart.
    if (decimals >= 0 && decimals <= 12) {
        static const double powers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12};
        const double scaled = number * powers[decimals];
        const double nearest = std::nearbyint(scaled);
        if (std::fabs(scaled) < 1e15 && std::fabs(scaled - nearest) <= 1e-15 * std::fabs(scaled))
            return nearest / powers[decimals];
    }
    // The 15 digits a person would see, as digits and a decimal exponent.
    char text[40];
    const char* const end =
        std::to_chars(text, text + sizeof text, std::fabs(number), std::chars_format::scientific, 14).ptr;
    int exponent = 0; // behind "d.dddddddddddddde" and its sign
    std::from_chars(text + 18, end, exponent);
    if (text[17] == '-')
        exponent = -exponent;
    std::string digits;
    digits += text[0];
    digits.append(text + 2, 14);
    const int kept = exponent + 1 + decimals; // digits before the cut
    if (kept >= static_cast<int>(digits.size()))
        return ParseNumber((number < 0 ? "-" : "") + std::string(text, static_cast<size_t>(end - text)));
    if (kept < 0)
        return 0;
    const std::string rest = digits.substr(static_cast<size_t>(kept));
    digits.resize(static_cast<size_t>(kept));
    const std::string half = "5" + std::string(rest.size() - 1, '0');
    const bool odd = !digits.empty() && (digits.back() - '0') % 2 == 1;
    bool up = rest > half || (rest == half && (halves == Halves::AwayFromZero || odd));
    for (size_t i = digits.size(); up && i-- > 0;) {
        up = digits[i] == '9';
        digits[i] = up ? '0' : static_cast<char>(digits[i] + 1);
    }
    if (up)
        digits.insert(digits.begin(), '1');
    if (digits.empty())
        return 0;
    const std::string rounded = digits + "e" + std::to_string(-decimals);
    const double value = ParseNumber(rounded);
    return number < 0 ? -value : value;
}

// Decimals may come from a table that anybody wrote.
std::string FormatFixed(double number, int wanted, bool thousands) {
    const int decimals = std::clamp(wanted, 0, kMostDecimals);
    const double rounded = RoundDecimal(number, decimals);
    char buffer[400];
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(rounded), std::chars_format::fixed, decimals);
    std::string text(buffer, end);
    if (thousands) {
        size_t point = text.find('.');
        if (point == std::string::npos)
            point = text.size();
        for (size_t at = point; at > 3; at -= 3)
            text.insert(at - 3, ",");
    }
    return rounded < 0 ? "-" + text : text;
}

double AddDecimal(double a, double b) {
    const double scale = std::max(std::fabs(a), std::fabs(b));
    if (scale == 0)
        return 0;
    const int digitsBeforePoint = std::max(0, static_cast<int>(std::floor(std::log10(scale))) + 1);
    return RoundDecimal(a + b, std::max(0, std::min(12, 15 - digitsBeforePoint)));
}

std::u32string ToCodePoints(std::string_view text) {
    std::u32string points;
    points.reserve(text.size());
    for (size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const int more = lead < 0x80 ? 0 : lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
        char32_t point = more == 0 ? lead : lead & (0x3Fu >> more);
        ++at;
        for (int i = 0; i < more && at < text.size(); ++i, ++at)
            point = (point << 6) | (static_cast<unsigned char>(text[at]) & 0x3Fu);
        points.push_back(point);
    }
    return points;
}

std::string FromCodePoints(std::u32string_view points) {
    std::string text;
    for (const char32_t point : points) {
        if (point < 0x80) {
            text += static_cast<char>(point);
        } else if (point < 0x800) {
            text += static_cast<char>(0xC0 | (point >> 6));
            text += static_cast<char>(0x80 | (point & 0x3F));
        } else if (point < 0x10000) {
            text += static_cast<char>(0xE0 | (point >> 12));
            text += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (point & 0x3F));
        } else {
            text += static_cast<char>(0xF0 | (point >> 18));
            text += static_cast<char>(0x80 | ((point >> 12) & 0x3F));
            text += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (point & 0x3F));
        }
    }
    return text;
}

int AnsiByteLength(std::string_view text) {
    int bytes = 0;
    for (const char32_t point : ToCodePoints(text))
        bytes += point < 0x80 ? 1 : 2;
    return bytes;
}

std::string TruncateToBytes(std::string_view text, int limit) {
    if (AnsiByteLength(text) <= limit)
        return std::string(text);
    std::u32string kept;
    int bytes = 0;
    for (const char32_t point : ToCodePoints(text)) {
        bytes += point < 0x80 ? 1 : 2;
        if (bytes > limit)
            break;
        kept += point;
    }
    return FromCodePoints(kept);
}

std::string PadRight(std::string_view text, int width) {
    std::u32string points = ToCodePoints(text);
    points.resize(static_cast<size_t>(width), U' ');
    return FromCodePoints(points);
}

std::string MidText(std::string_view text, int start, int count) {
    const std::u32string points = ToCodePoints(text);
    const size_t from = start < 1 ? 0 : static_cast<size_t>(start - 1);
    if (from >= points.size())
        return "";
    return FromCodePoints(points.substr(from, count < 0 ? std::u32string::npos : static_cast<size_t>(count)));
}

int CharacterCount(std::string_view text) {
    return static_cast<int>(ToCodePoints(text).size());
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    size_t start = 0;
    while (true) {
        const size_t end = text.find(separator, start);
        parts.emplace_back(text.substr(start, end - start));
        if (end == std::string_view::npos)
            return parts;
        start = end + 1;
    }
}

std::string JoinedByCommas(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text.append(text.empty() ? "" : ",").append(part);
    return text;
}

} // namespace jxc
