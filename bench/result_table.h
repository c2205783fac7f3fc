// What a run found, as a table for people.
#pragma once

#include <string>
#include <vector>

#include "bench/receipt_rounds.h"

namespace jxc::bench {

// The middle of the figures, and their smallest and largest.
struct Spread {
    double median, least, most;
};
Spread SpreadOf(std::vector<double> figures);
// a / b, round by round.
std::vector<double> Ratios(const std::vector<double>& a, const std::vector<double>& b);

// One engine's lines: both books, then full against empty.
std::string EngineTable(const Options& options, const ReceiptRounds& rounds);
// The heading above them: what is measured and what each figure includes.
std::string TableHead(const Options& options);

} // namespace jxc::bench
