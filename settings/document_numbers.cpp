#include "settings/document_numbers.h"

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/session.h"

namespace jxc {

namespace {

// In the order of the search; the first one found anywhere in a rule wins.
const char* const kDateTokens[] = {"YYYYMMDD", "YYYYMM", "MMDDYYYY", "DDMMYYYY", "YYYY", "YYMMDD",
                                   "YYMM",     "DDMMYY", "MMYY",     "MMDD",     "DDMM"};

std::string DateByToken(Date date, const std::string& token) {
    const std::string iso = IsoText(date);
    std::string text;
    for (size_t at = 0; at < token.size();) {
        if (token.compare(at, 4, "YYYY") == 0) {
            text += iso.substr(0, 4);
            at += 4;
            continue;
        }
        const std::string pair = token.substr(at, 2);
        text += pair == "YY" ? iso.substr(2, 2) : pair == "MM" ? iso.substr(5, 2) : iso.substr(8, 2);
        at += 2;
    }
    return text;
}

std::string WithDate(Date date, const std::string& fixed) {
    for (const std::string token : kDateTokens) {
        const size_t at = fixed.find(token);
        if (at != std::string::npos)
            return fixed.substr(0, at) + DateByToken(date, token) + fixed.substr(at + token.size());
    }
    return fixed;
}

// The two parts of a rule's numbers on a day: what they begin with, and how many digits count them. No digits: the
// rule counts nothing.
struct Pattern {
    std::string stem;
    size_t counterDigits;
};

size_t CounterDigits(const std::string& upperRule) {
    size_t digits = 0;
    while (digits < upperRule.size() && upperRule[upperRule.size() - 1 - digits] == 'X')
        ++digits;
    return digits;
}

Pattern PatternOf(Date date, const std::string& upperRule) {
    const size_t digits = CounterDigits(upperRule);
    return {WithDate(date, upperRule.substr(0, upperRule.size() - digits)), digits};
}

std::string LastCharacters(const std::string& text, size_t count) {
    return text.substr(text.size() - count);
}

// Under one stem the largest number has the largest counter, and the index finds it from its end, however many
// numbers the day or month already has.
std::string LargestCounterStatement(const Pattern& pattern, int series) {
    const auto& [stem, counterDigits] = pattern;
    const bool account = series >= kSeriesCustomerAccount;
    const std::string table = account ? "tAccountDetail" : BookStem(series, false) + "02";
    const std::string field = account ? "fAcntNo" : "fInvNo";
    const std::string length = std::to_string(CharacterCount(stem));
    const std::string counter = PartOf(field, CharacterCount(stem) + 1, static_cast<int>(counterDigits));
    return "select top 1 " + counter + " as invID from " + table + " where left(" + field + "," + length +
           ")=" + InQuotes(stem) + " and " + NumericTest(counter) + " Order By " + field + " Desc";
}

// Counters have up to 20 digits, more than a number holds.
std::string CounterBehind(std::string counter) {
    if (counter.find_first_not_of("0123456789") != std::string::npos)
        return NumberText(Val(counter) + 1);
    size_t at = counter.size();
    while (at > 0 && counter[at - 1] == '9')
        counter[--at] = '0';
    if (at == 0)
        return "1" + counter;
    ++counter[at - 1];
    return counter;
}

// The largest counter stored, "" when there is none.
std::string LargestCounter(const Pattern& pattern, int series) {
    const Recordset row(Conn(), LargestCounterStatement(pattern, series));
    return row.AtEnd() ? "" : row["invID"].AsText();
}

} // namespace

std::string NextDocumentNo(Date date, std::string& rule, int series) {
    rule = UpperCase(rule);
    const Pattern pattern = PatternOf(date, rule);
    const auto& [stem, counterDigits] = pattern;
    if (counterDigits == 0)
        return "";
    const std::string zeros(counterDigits, '0');
    if (series != kSeriesTest) {
        const std::string largest = LargestCounter(pattern, series);
        if (!largest.empty())
            return stem + LastCharacters(zeros + CounterBehind(largest), counterDigits);
    }
    return stem + LastCharacters(zeros + "1", counterDigits);
}

std::string NextNumberStatement(Date date, const std::string& rule, int series) {
    const Pattern pattern = PatternOf(date, UpperCase(rule));
    return pattern.counterDigits == 0 || series == kSeriesTest ? ""
                                                               : LargestCounterStatement(pattern, series);
}

bool HasUsedUpCounter(const std::string& number, const std::string& rule) {
    const size_t digits = CounterDigits(UpperCase(rule));
    return digits > 0 && number.ends_with(std::string(digits, '0'));
}

bool CheckNumberRule(const std::string& rule) {
    if (rule.find_first_of("'*#%_") == std::string::npos && rule.ends_with("XXX")) {
        if (AnsiByteLength(rule) <= kNumberBytes) // a number is as long as its rule
            return true;
        Warn("", "[自动单号]最多 " + std::to_string(kNumberBytes) + " 个字节，“" + rule + "”有 " +
                     std::to_string(AnsiByteLength(rule)) + " 个字节！");
        return false;
    }
    Warn("", " [自动单号]设定--规则如下：\n"
             "\n"
             " 1、[年月日]（可选）：表示为 [年] YYYY/YY、[月] MM、[日] DD ；\n"
             " 2、单号尾部的[自动计数位]（必须）：表示为 XXX... ；\n"
             " 3、可以使用[特定字符]（可选）以区别不同单据类型： 例如 R-入库 C-出库 ... ；\n"
             " 4、可以使用[分隔符号]（可选）： - [ ] ！\n"
             "\n"
             "    举例说明，[入库单]也可以设定为：YYYYMMDD-RXXX (共13位数)");
    return false;
}

} // namespace jxc
