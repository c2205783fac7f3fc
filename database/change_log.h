// The log of changes: which rows of a table got other texts, so that a program that keeps those texts in memory reads the
// changed rows alone. The database writes it itself, whoever changes a row; only the named fields count, so that what
// posts prices and figures pays nothing. One row for each that ever changed, with the stamp of its last change.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace jxc {

inline constexpr const char* kChangeLog = "tJXC_Change";

struct NotedTable {
    int kind; // as the log tells the tables apart
    std::string_view table, key;
    std::string_view fields; // comma-separated, the key among them
};

inline constexpr NotedTable kNotedProducts{1, "tJXC_Cp", "fCpID",
                                           "fCpID,fCpCode,fCpName,fCpGG,fCpBarCode,fCpFlag"};
inline constexpr NotedTable kNotedCards{2, "cards", "fID", "fID,CompCode,CompName,name"};
inline constexpr NotedTable kNotedTables[] = {kNotedProducts, kNotedCards};

// What an engine tells of the log.
struct NotedChanges {
    // Of the table that was asked about: another one when the company's file or database was replaced by another, or the
    // table emptied at once.
    std::string place;
    // The stamp from which to ask next time; a lower one than asked from when the company is an older state of itself. What is asked for twice is told twice: a server's transactions end in
    // another order than they begin in.
    double next = 0;
    std::vector<std::pair<std::int64_t, double>>
        changed; // key and stamp of rows that changed, appeared or went
};

} // namespace jxc
