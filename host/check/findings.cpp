#include "host/check/findings.h"

#include <array>
#include <cmath>

#include "base/text.h"
#include "session/session.h"

namespace jxc {

namespace {

std::string Absurd() {
    return FormatFixed(kAbsurdFigure, 1);
}

} // namespace

void Findings::Try(const std::function<void()>& look) {
    try {
        Conn().Tolerantly(look);
    } catch (const DatabaseError& error) {
        Add("有一项检查未能进行：" + std::string(error.what()) + "；请先处理其他问题后重新检查。");
    }
}

Rows Findings::Ask(const std::string& sql) {
    Rows rows;
    Try([&] { rows = Conn().Query(sql); });
    return rows;
}

void Run(const Rule& rule, Findings& findings) {
    const Rows rows = findings.Ask(rule.sql);
    for (size_t row = 0; row < rows.Count(); ++row) {
        Places columns;
        for (size_t column = 0; column < rows.names.size(); ++column)
            columns["{" + std::to_string(column + 1) + "}"] = rows.At(row, column).AsText();
        findings.Add(Filled(rule.told, columns));
    }
}

std::string Filled(const std::string& text, const Places& places) {
    std::string filled;
    for (size_t at = 0; at < text.size();) {
        const size_t end = text[at] == '{' ? text.find('}', at) : std::string::npos;
        const auto place =
            end == std::string::npos ? places.end() : places.find(text.substr(at, end + 1 - at));
        if (place == places.end()) {
            filled += text[at++];
        } else {
            filled += place->second;
            at = end + 1;
        }
    }
    return filled;
}

std::string Book::On(const std::string& x, const std::string& y) const {
    return x + ".fInvID=" + y + ".fInvID" + (closed ? " And " + x + ".fMonth=" + y + ".fMonth" : "");
}

std::span<const Book> AllBooks() {
    static const std::array<Book, 5> books{
        {{"tJXC_CkDj"}, {"tJXC_CkHt"}, {"tJXC_CkJh"}, {"tJXC_CkXjBj"}, {"tJXC_CkDj_Bak", true}}};
    return books;
}

const Book& StockBook() {
    return AllBooks().front();
}

const Book& ClosedBook() {
    return AllBooks().back();
}

std::string Differ(const std::string& x, const std::string& y) {
    return "(case when " + x + "=" + y + " then 0 when " + x + " is null And " + y +
           " is null then 0 else 1 end)";
}

std::string TextsDiffer(const std::string& x, const std::string& y) {
    return "(case when " + x + "=" + y + " then 0 when (" + x + " is null Or " + x + "='') And (" + y +
           " is null Or " + y + "='') then 0 else 1 end)";
}

std::string OrZero(const std::string& x) {
    return "(case when " + x + " is null then 0 else " + x + " end)";
}

std::string IsAbsurd(const std::string& x) {
    return "(" + x + ">" + Absurd() + " Or " + x + "<-" + Absurd() + ")";
}

std::string IsPlausible(const std::string& x) {
    return "abs(" + x + ")<" + Absurd();
}

std::string SameDay(const std::string& x, const std::string& y) {
    return "Convert(varchar(10)," + x + ",120)=Convert(varchar(10)," + y + ",120)";
}

std::string InList(const std::vector<int>& numbers) {
    std::string list;
    for (const int number : numbers)
        list.append(list.empty() ? "" : ",").append(std::to_string(number));
    return list.empty() ? "-999" : list;
}

std::string EachOf(std::span<const Difference> differences, const std::string& function) {
    std::string columns;
    for (const Difference& difference : differences)
        columns += "," + function + "(" + difference.differs + ")";
    return columns;
}

std::string AnyOf(std::span<const Difference> differences) {
    std::string sum;
    for (const Difference& difference : differences)
        sum.append(sum.empty() ? "" : "+").append(difference.differs);
    return sum + ">0";
}

std::string WrongNames(std::span<const Difference> differences, const Rows& rows, size_t row,
                       size_t firstColumn) {
    std::string wrong;
    for (size_t i = 0; i < differences.size(); ++i)
        if (rows.At(row, firstColumn + i).AsLong() > 0)
            wrong.append(wrong.empty() ? "" : "、").append(differences[i].name);
    return wrong;
}

bool Alike(double a, double b, double turnover) {
    return std::fabs(a - b) <= 1e-6 + 1e-9 * std::max(std::fabs(a), std::fabs(b)) + 1e-12 * turnover;
}

} // namespace jxc
