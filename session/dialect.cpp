#include "session/dialect.h"

#include "session/session.h"

namespace jxc {

namespace {

std::string Either(const std::string& jet, const std::string& sqlServer) {
    return session.IsJet() ? jet : sqlServer;
}

} // namespace

std::string InQuotes(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c;
        if (c == '\'')
            quoted += c;
    }
    return quoted + "'";
}

std::string DayLiteral(Date day, DayForm form) {
    return Either("#" + (form == DayForm::Slash ? SlashText(day) : IsoText(day)) + "#",
                  "'" + IsoText(day) + "'");
}

std::string DayColumn(const std::string& column) {
    return Either(column, "Convert(varchar(10)," + column + ",120)");
}

std::string DayTest(const std::string& column, const std::string& comparison, Date day, DayForm form) {
    return DayColumn(column) + comparison + DayLiteral(day, form);
}

std::string DayValue(Date day) {
    return Either("#" + SlashText(day) + "#", InQuotes(SlashText(day)));
}

std::string MonthTest(const std::string& column, Date day) {
    return "Year(" + column + ")=" + std::to_string(YearOf(day)) + " And Month(" + column +
           ")=" + std::to_string(MonthOf(day));
}

std::string MonthText(const std::string& column) {
    return Either("Format(" + column + ",'yyyy-mm')", "Convert(varchar(7)," + column + ",120)");
}

std::string OneOf(const std::string& condition, const std::string& then, const std::string& otherwise) {
    return Either("iif(" + condition + "," + then + "," + otherwise + ")",
                  "case when " + condition + " then " + then + " else " + otherwise + " end");
}

std::string NothingTest(const std::string& expression) {
    return Either("isnull(" + expression + ")", expression + " is null");
}

std::string MoneyOf(const std::string& expression) {
    return Either("ccur(", "convert(money,") + expression + ")";
}

std::string LowerCaseOf(const std::string& column) {
    return Either("LCase(", "Lower(") + column + ")";
}

std::string PartOf(const std::string& column, int start, int count) {
    return Either("mid(", "SUBSTRING(") + column + "," + std::to_string(start) + "," + std::to_string(count) +
           ")";
}

std::string NumericTest(const std::string& expression) {
    return "IsNumeric(" + expression + ")" + Either("", "=1");
}

std::string TextType(int bytes) {
    return (session.IsJet() ? "varchar(" : "nvarchar(") + std::to_string(bytes) + ")";
}

std::string DeleteText(const std::string& table, const std::string& test) {
    return "Delete From " + table + (session.IsJet() ? " a  where a." : "  where ") + test;
}

std::string UpdateText(const UpdateFromSecond& update) {
    const std::string further = update.condition.empty() ? "" : " And " + update.condition;
    if (session.IsJet())
        return "Update " + update.table + " a," + update.second + " b Set a." + update.field + "=b." +
               update.value + " Where " + update.join + further;
    return "Update " + update.table + " Set " + update.field + "=b." + update.value + " From " +
           update.table + " a Inner Join " + update.second + " b On " + update.join +
           (update.condition.empty() ? "" : " Where " + update.condition);
}

} // namespace jxc
