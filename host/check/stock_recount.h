// What the approved lines of the stock documents make of the counters.
#pragma once

#include <array>
#include <map>

#include "host/check/checked_company.h"

namespace jxc {

// Five quantities and the values of the first three, by statistics class.
enum { kQuantities = 5, kCounters = 8 };
using StockKey = std::pair<std::string, std::int64_t>; // warehouse in lower case, product

struct Counted {
    std::array<double, kCounters> figures{};
    std::array<double, kCounters> turnover{}; // what was added without signs: its rounding is no difference
    std::string warehouse;                    // as it is written
};
using Recount = std::map<StockKey, Counted>;

Recount CountLines(const CheckedTypes& types, Findings& findings);
// The same apart for each day on which documents are dated, in their order.
std::map<std::string, Recount> CountLinesByDay(const CheckedTypes& types, Findings& findings);

} // namespace jxc
