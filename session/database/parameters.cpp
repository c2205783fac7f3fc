#include "session/database/parameters.h"

#include <charconv>

#include "controls/date.h"
#include "controls/text.h"
#include "session/database/connection.h"

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

Date MonthOf(const Literal& year, const Literal& month) {
    const int y = static_cast<int>(Val(year.text)), m = static_cast<int>(Val(month.text));
    if (y < 100 || y > 9999 || m < 1 || m > 12)
        throw DatabaseError("SQL 语句有误：没有 " + std::string(year.text) + " 年 " +
                            std::string(month.text) + " 月。");
    return MakeDate(y, m, 1);
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

} // namespace

Value BindParameter(const Parameter& parameter, const std::vector<Literal>& literals) {
    const Literal& literal = literals[static_cast<size_t>(parameter.literal)];
    switch (parameter.derivation) {
    case Derivation::Literal:
        return PlainValue(literal);
    case Derivation::AsText:
        return Value(PlainValue(literal).AsText());
    case Derivation::Date:
        return Value(MomentText(MomentOf(literal)));
    case Derivation::DayEnd:
        return Value(DayEnd(MomentOf(literal)));
    case Derivation::PrefixEnd:
        return Value(UnquotedText(literal.text) + "\U0010FFFF");
    case Derivation::MonthStart:
        return Value(IsoText(MonthOf(literal, literals[static_cast<size_t>(parameter.second)])));
    case Derivation::MonthEnd:
        return Value(
            IsoText(AddMonths(MonthOf(literal, literals[static_cast<size_t>(parameter.second)]), 1)));
    }
    return {};
}

std::string NormalDate(std::string_view text) {
    const std::optional<Moment> moment = ParseMoment(text);
    return moment ? MomentText(*moment) : "";
}

} // namespace jxc
