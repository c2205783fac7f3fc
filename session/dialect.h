// Where the two dialects of a statement differ: one function for each difference, which gives the text of the dialect in
// use. What is not here is written alike in both. And the one way in which a statement quotes a text.
#pragma once

#include <string>
#include <string_view>

#include "base/date.h"

namespace jxc {

// A text as a statement holds it: in single quotes, its own quotes doubled.
[[nodiscard]] std::string InQuotes(std::string_view text);

// A day as a literal compared with DayColumn. Most statements of the file engine name it mm/dd/yyyy, a few yyyy-mm-dd.
//     #07/31/2003#, #2003-07-31#      | '2003-07-31'
enum class DayForm { Slash, Iso };
[[nodiscard]] std::string DayLiteral(Date day, DayForm form = DayForm::Slash);

// A date column whose day is compared.
//     a.fInvDate                      | Convert(varchar(10),a.fInvDate,120)
[[nodiscard]] std::string DayColumn(const std::string& column);

// The comparison of both; `comparison` is the sign between them with its blanks.
//     fDate=#07/31/2003#              | Convert(varchar(10),fDate,120)='2003-07-31'
[[nodiscard]] std::string DayTest(const std::string& column, const std::string& comparison, Date day,
                                  DayForm form = DayForm::Slash);

// A day as a value to be stored, month first in both.
//     #07/01/2003#                    | '07/01/2003'
std::string DayValue(Date day);

// A date column in the month of the day, alike in both; and its month as a text.
//     Year(a.fMonth)=2003 And Month(a.fMonth)=7
//     Format(a.fMonth,'yyyy-mm')      | Convert(varchar(7),a.fMonth,120)
std::string MonthTest(const std::string& column, Date day);
std::string MonthText(const std::string& column);

// One of two values.
//     iif(a.fInvInOut=1,1,-1)         | case when a.fInvInOut=1 then 1 else -1 end
std::string OneOf(const std::string& condition, const std::string& then, const std::string& otherwise);

//     isnull(fJbCode)                 | fJbCode is null
std::string NothingTest(const std::string& expression);

// With the four decimals of money.
//     ccur(b.fYj_Tc_Xj)               | convert(money,b.fYj_Tc_Xj)
std::string MoneyOf(const std::string& expression);

//     LCase(ftable)                   | Lower(ftable)
[[nodiscard]] std::string LowerCaseOf(const std::string& column);

// From the 1-based character `start` on, `count` characters.
//     mid(fInvNo,12,3)                | SUBSTRING(fInvNo,12,3)
[[nodiscard]] std::string PartOf(const std::string& column, int start, int count);

//     IsNumeric(x)                    | IsNumeric(x)=1
[[nodiscard]] std::string NumericTest(const std::string& expression);

// A text column of so many bytes.
//     varchar(50)                     | nvarchar(50)
[[nodiscard]] std::string TextType(int bytes);

// The rows of a table that satisfy a test of one of its columns.
//     Delete From T a where a.TEST    | Delete From T where TEST
[[nodiscard]] std::string DeleteText(const std::string& table, const std::string& test);

// Takes a value from a second table: `table` is a in it, `second` is b; `join` ties their rows, `condition` is tested
// besides, "" for none.
//     Update T a,U b Set a.F=b.G Where JOIN And CONDITION
//                                     | Update T Set F=b.G From T a Inner Join U b On JOIN Where CONDITION
struct UpdateFromSecond {
    std::string table, field, second, value, join, condition;
};
[[nodiscard]] std::string UpdateText(const UpdateFromSecond& update);

} // namespace jxc
