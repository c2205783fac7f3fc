// The parameters of a prepared statement: each is worked out from the literals of the text at hand, every
// time the statement runs.
#pragma once

#include <vector>

#include "base/value.h"
#include "database/lexer.h"

namespace jxc {

enum class ParameterType { Integer, Decimal, Text, Date };

// What becomes of the literal on its way to the engine.
enum class Derivation {
    Literal,    // what the literal says
    AsText,     // a number where a text is wanted
    Date,       // the date as the engines hold it
    DayEnd,     // the first moment after the whole date
    PrefixEnd,  // a text behind all texts that begin with this one
    MonthStart, // literal: the year; second: the month. Of a month that does not exist, behind every date
    MonthEnd,   // the first day of the month after it; before every date
    Number,     // a text next to a number: the number it holds, null when it holds none
    JsonList,   // a list as ["a", "b"]
    ArrayList,  // a list as {"a", "b"}
};

struct Parameter {
    Derivation derivation = Derivation::Literal;
    ParameterType type = ParameterType::Text;
    int literal = 0;
    int second = 0;
    Derivation element = Derivation::Literal; // of a list: what becomes of each literal
};

// Throws DatabaseError when a date is none.
[[nodiscard]] Value BindParameter(const Parameter& parameter, const std::vector<Literal>& literals);

// "yyyy-mm-dd" or "mm/dd/yyyy", a time "hh:mm:ss" behind it allowed, as the engines hold it: "yyyy-mm-dd",
// with " hh:mm:ss" only when it is not midnight. "" when it is no date.
[[nodiscard]] std::string NormalDate(std::string_view text);

} // namespace jxc
