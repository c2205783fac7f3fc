// All that a database file holds, read row by row: what backups are compared by, and where damage shows that
// leaves the file's structure whole.
#pragma once

#include <string>
#include <vector>

struct sqlite3;

namespace jxc {

// The table in which a copy notes what it holds; not part of the content itself.
inline constexpr const char* kSeal = "jxc_backup_seal";

struct SqliteContent {
    std::string digest;                    // 16 hex digits over every value of every table, in their order
    std::vector<std::string> strangeTexts; // a line per column that holds what is no text of people
};

// Throws DatabaseError where something cannot be read.
SqliteContent ReadContent(sqlite3* db);

// Copies all pages into the empty file `path`, as one state, and makes it a file that needs no log beside it.
void CopyPages(sqlite3* db, const std::string& path);

} // namespace jxc
