// Automatic document numbers. A rule is an optional date token, fixed characters around it, and one or more
// "X" at its end: "YYYYMMDDRKXXX" on 5 March 2003 gives "20030305RK001", then "20030305RK002". Numbers run on
// under each stem and start again when the stem changes.
#pragma once

#include <string>

#include "base/date.h"

namespace jxc {

// Series that are no document types.
constexpr int kSeriesCustomerAccount = 51;
constexpr int kSeriesMoneyAccount = 52;
constexpr int kSeriesTest = 99; // never reads the database

// The bytes of a document's number. One that is longer is never cut: its rule is refused where it is set, and
// whoever makes a number refuses a longer one.
constexpr int kNumberBytes = 20;

// The next number under the rule, "" when the rule ends in no "X". `rule` is upper-cased in place. `series`
// is the document type, whose book's lines are searched for the largest number, or one of the series above.
// Nothing is reserved: the caller stores the number, and saving tests that it is free. A counter that
// outgrows its digits wraps.
std::string NextDocumentNo(Date date, std::string& rule, int series);

// Whether that number's counter has wrapped: the next saves may meet numbers that are there.
bool HasUsedUpCounter(const std::string& number, const std::string& rule);

// The statement with which it looks for the largest number, "" when it asks nothing.
std::string NextNumberStatement(Date date, const std::string& rule, int series);

// Whether a rule may be used: no quote or wildcard in it, "XXX" at its end, and its numbers not too long. Otherwise
// the rules, or the length, are shown.
bool CheckNumberRule(const std::string& rule);

} // namespace jxc
