// What a run can be given in its environment.
#pragma once

#include <string>

namespace jxc::bench {

struct Options {
    int historyLines = 1'000'000; // JXC_BENCH_LINES: of the full book, ten to a document
    int rounds = 10;              // JXC_BENCH_ROUNDS: each writes one block of every kind
    int documents = 100;          // JXC_BENCH_DOCUMENTS: in a block, at most kMostInADay
    bool trail = true;            // JXC_BENCH_TRAIL: 0 measures companies that keep no trail
    std::string folder;           // JXC_BENCH_FOLDER: of the files, else the one for temporary files
};

// Automatic document numbers count to 999 a day.
constexpr int kMostInADay = 900;

// Throws std::runtime_error for a value that is no number or out of range.
Options ReadOptions();

} // namespace jxc::bench
