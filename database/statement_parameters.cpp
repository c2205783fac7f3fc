#include "database/statement_parameters.h"

#include <charconv>

#include "base/date.h"
#include "base/text.h"
#include "database/connection.h"

namespace jxc {

namespace {

// The number at the front of `text`, which is taken off; -1 when there is none.
int TakeNumber(std::string_view& text) {
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0)
        return -1;
    text.remove_prefix(static_cast<size_t>(end - text.data()));
    return number;
}

bool TakeChar(std::string_view& text, char c) {
    if (text.empty() || text.front() != c)
        return false;
    text.remove_prefix(1);
    return true;
}

// "mm/dd/yyyy" at the front of `text`.
std::optional<Date> TakeSlashDate(std::string_view& text) {
    const int month = TakeNumber(text);
    if (!TakeChar(text, '/'))
        return {};
    const int day = TakeNumber(text);
    if (!TakeChar(text, '/'))
        return {};
    const int year = TakeNumber(text);
    if (month < 0 || day < 0 || year < 100 || year > 9999)
        return {};
    const Date date{std::chrono::year{year}, std::chrono::month(static_cast<unsigned>(month)),
                    std::chrono::day(static_cast<unsigned>(day))};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::optional<Date> TakeDate(std::string_view& text) {
    if (text.size() >= 3 && text.substr(0, 4).find('/') != std::string_view::npos)
        return TakeSlashDate(text);
    const std::optional<Date> date = ParseDate(text);
    text.remove_prefix(std::min<size_t>(text.size(), 10));
    return date;
}

// Seconds since midnight; -1 when `text` is no " h:mm[:ss]".
int SecondsOf(std::string_view text) {
    if (text.empty())
        return 0;
    if (!TakeChar(text, ' '))
        return -1;
    const int hours = TakeNumber(text);
    if (hours < 0 || hours > 23 || !TakeChar(text, ':'))
        return -1;
    const int minutes = TakeNumber(text);
    const int seconds = TakeChar(text, ':') ? TakeNumber(text) : 0;
    if (minutes < 0 || minutes > 59 || seconds < 0 || seconds > 59 || !text.empty())
        return -1;
    return hours * 3600 + minutes * 60 + seconds;
}

struct Moment {
    Date day;
    int seconds = 0;
};

std::optional<Moment> ParseMoment(std::string_view text) {
    const std::optional<Date> day = TakeDate(text);
    const int seconds = SecondsOf(text);
    if (!day || seconds < 0)
        return {};
    return Moment{*day, seconds};
}

std::string MomentText(const Moment& moment) {
    std::string text = IsoText(moment.day);
    if (moment.seconds != 0) {
        char time[16];
        std::snprintf(time, sizeof time, " %02d:%02d:%02d", moment.seconds / 3600 % 24,
                      moment.seconds / 60 % 60, moment.seconds % 60);
        text += time;
    }
    return text;
}

Moment MomentOf(const Literal& literal) {
    const std::optional<Moment> moment = ParseMoment(literal.text);
    if (!moment)
        throw DatabaseError("SQL 语句有误：“" + std::string(literal.text) + "”不是日期。");
    return *moment;
}

// A date without a time stands for the whole day, one with a time for its second.
std::string DayEnd(const Moment& moment) {
    const bool wholeDay = moment.seconds == 0 || moment.seconds == 24 * 3600 - 1;
    return wholeDay ? IsoText(AddDays(moment.day, 1)) : MomentText({moment.day, moment.seconds + 1});
}

std::optional<Date> MonthOf(const Literal& year, const Literal& month) {
    const double y = Val(year.text), m = Val(month.text);
    if (y < 100 || y > 9998 || m < 1 || m > 12)
        return {};
    return MakeDate(static_cast<int>(y), static_cast<int>(m), 1);
}

Value PlainValue(const Literal& literal) {
    switch (literal.kind) {
    case TokenKind::Integer:
        return Value(static_cast<std::int64_t>(Val(literal.text)));
    case TokenKind::Decimal:
        return Value(Val(literal.text));
    default:
        return Value(UnquotedText(literal.text));
    }
}

Value DerivedValue(Derivation derivation, const Literal& literal) {
    switch (derivation) {
    case Derivation::AsText:
        return Value(PlainValue(literal).AsText());
    case Derivation::Date:
        return Value(MomentText(MomentOf(literal)));
    case Derivation::DayEnd:
        return Value(DayEnd(MomentOf(literal)));
    case Derivation::PrefixEnd:
        return Value(UnquotedText(literal.text) + "\U0010FFFF");
    case Derivation::Number: {
        const std::string text = UnquotedText(literal.text);
        return IsNumericText(text) ? Value(Val(text)) : Value();
    }
    default:
        return PlainValue(literal);
    }
}

// Both forms write a text between double quotes and its quotes and backslashes behind a backslash; only one
// takes line ends as they are.
std::string ElementText(const Value& value, bool isJson) {
    if (value.IsNull())
        return "null";
    if (!value.IsText())
        return value.AsText();
    std::string quoted = "\"";
    for (const char c : value.Text()) {
        if (isJson && static_cast<unsigned char>(c) < 0x20) {
            constexpr std::string_view kDigits = "0123456789abcdef";
            quoted.append("\\u00") += kDigits[static_cast<size_t>(c >> 4)];
            quoted += kDigits[static_cast<size_t>(c & 15)];
            continue;
        }
        if (c == '"' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

std::string ListText(const Parameter& parameter, const Literal& list) {
    const bool isJson = parameter.derivation == Derivation::JsonList;
    std::string text(1, isJson ? '[' : '{');
    for (const Literal& element : ListElements(list.text)) {
        if (text.size() > 1)
            text += ',';
        text += ElementText(DerivedValue(parameter.element, element), isJson);
    }
    return text + (isJson ? ']' : '}');
}

} // namespace

Value BindParameter(const Parameter& parameter, const std::vector<Literal>& literals) {
    const Literal& literal = literals[static_cast<size_t>(parameter.literal)];
    switch (parameter.derivation) {
    case Derivation::MonthStart:
    case Derivation::MonthEnd: {
        const bool isStart = parameter.derivation == Derivation::MonthStart;
        const std::optional<Date> month = MonthOf(literal, literals[static_cast<size_t>(parameter.second)]);
        if (!month)
            return Value(isStart ? "9999-12-31" : "0001-01-01");
        return Value(IsoText(isStart ? *month : AddMonths(*month, 1)));
    }
    case Derivation::JsonList:
    case Derivation::ArrayList:
        return Value(ListText(parameter, literal));
    default:
        return DerivedValue(parameter.derivation, literal);
    }
}

std::string NormalDate(std::string_view text) {
    const std::optional<Moment> moment = ParseMoment(text);
    return moment ? MomentText(*moment) : "";
}

} // namespace jxc
