#include "bench/result_table.h"

#include <algorithm>
#include <cstdio>

namespace jxc::bench {

namespace {

template <typename... Values>
std::string Formatted(const char* format, Values... values) {
    char text[400];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

std::string RatioText(const std::vector<double>& a, const std::vector<double>& b) {
    const Spread ratio = SpreadOf(Ratios(a, b));
    return Formatted("%5.2f (%.2f-%.2f)", ratio.median, ratio.least, ratio.most);
}

std::string RateText(const std::vector<double>& rates) {
    const Spread rate = SpreadOf(rates);
    return Formatted("%5.0f (%.0f-%.0f)", rate.median, rate.least, rate.most);
}

std::string BookLine(const std::string& engine, const std::string& book, const Rates& rates) {
    return Formatted("%-18s %-14s %-18s %-18s %-18s %.0f / %.0f\n", engine.c_str(), book.c_str(),
                     RateText(rates.system).c_str(), RateText(rates.floor).c_str(),
                     RatioText(rates.system, rates.floor).c_str(), rates.systemStatements,
                     rates.floorStatements);
}

} // namespace

Spread SpreadOf(std::vector<double> figures) {
    std::sort(figures.begin(), figures.end());
    const size_t middle = figures.size() / 2;
    const double median =
        figures.size() % 2 == 1 ? figures[middle] : (figures[middle - 1] + figures[middle]) / 2;
    return {median, figures.front(), figures.back()};
}

std::vector<double> Ratios(const std::vector<double>& a, const std::vector<double>& b) {
    std::vector<double> ratios;
    for (size_t i = 0; i < std::min(a.size(), b.size()); ++i)
        ratios.push_back(a[i] / b[i]);
    return ratios;
}

std::string TableHead(const Options& options) {
    return Formatted("Save and approve of a receipt of %d lines: documents per second, median (range) of %d "
                     "rounds of %d documents.\n",
                     kLinesInADocument, options.rounds, options.documents) +
           "system: from the click on the save button to the screen being empty for the next receipt, the\n"
           "        company approving on saving; entering the receipt is not included.\n"
           "floor:  the same rows written by hand-written prepared statements on the engine's own "
           "interface;\n"
           "        PostgreSQL: one statement a round trip.\n"
           "Both: one transaction to save, one to approve, each commit on disk before it returns; receipts "
           "one\n"
           "right behind the other. The last column counts the statements of one document, system / "
           "floor.\n\n" +
           Formatted("%-18s %-14s %-18s %-18s %-18s %s\n", "engine", "book", "system", "floor",
                     "system / floor", "statements");
}

std::string EngineTable(const Options& options, const ReceiptRounds& rounds) {
    const std::string engine = rounds.Empty().EngineVersion();
    const Rates &empty = rounds.Empty().Measured(), &full = rounds.Full().Measured();
    return BookLine(engine, "empty", empty) +
           BookLine(engine, std::to_string(options.historyLines) + " lines", full) +
           Formatted("%-18s %-14s %-18s %-18s\n", engine.c_str(), "full / empty",
                     RatioText(full.system, empty.system).c_str(),
                     RatioText(full.floor, empty.floor).c_str());
}

} // namespace jxc::bench
