#include "database/sqlite_writer.h"

#include "database/join_simplification.h"

namespace jxc {

std::string SqliteWriter::DateText(const std::string& date, std::string_view mask) const {
    if (mask == "yyyymm")
        return "(substr(" + date + ", 1, 4) || substr(" + date + ", 6, 2))";
    if (mask == "yyyymmdd")
        return "(substr(" + date + ", 1, 4) || substr(" + date + ", 6, 2) || substr(" + date + ", 9, 2))";
    return "substr(" + date + ", 1, " + (mask == "yyyy-mm" ? "7" : "10") + ")";
}

// SQLite walks through the whole left side of a right join, and all rows of the right one once more.
void SqliteWriter::Simplify(SourcePtr& from, const NodePtr& where) const {
    if (where)
        MakeJoinsInner(*from, *where);
}

} // namespace jxc
