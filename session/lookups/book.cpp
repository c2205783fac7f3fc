#include "session/lookups/book.h"

#include <algorithm>

#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

std::string BookStem(int type, bool closed) {
    if (closed)
        return "tJXC_CkDj_Bak";
    if (type < 10)
        return "tJXC_CkDj";
    switch (type) {
    case 11:
    case 12:
    case 15:
    case 17:
    case 31:
    case 32:
        return "tJXC_CkDj";
    case 20:
        return "tJXC_CkJh";
    case 21:
    case 22:
        return "tJXC_CkXjBj";
    case 23:
    case 24:
        return "tJXC_CkHt";
    default:
        return "";
    }
}

namespace {

// The tables whose keys a new document of the book must not have.
std::vector<std::string> KeyTables(const std::string& stem) {
    std::vector<std::string> tables{stem + "01"};
    if (stem == "tJXC_CkDj")
        tables.emplace_back("tJXC_CkDj_Bak01");
    return tables;
}

} // namespace

std::int32_t LargestKey(const std::string& stem) {
    std::int32_t largest = 1;
    for (const std::string& table : KeyTables(stem))
        largest = std::max(largest, DbMax(table, "fInvID"));
    return largest;
}

std::vector<std::string> LargestKeyReads(const std::string& stem) {
    std::vector<std::string> reads;
    for (const std::string& table : KeyTables(stem))
        reads.push_back(MaxStatement(table, "fInvID"));
    return reads;
}

bool DeleteDocumentRows(const std::string& stem, const std::string& where) {
    try {
        Conn().Execute("Delete From " + stem + "01 Where " + where);
        Conn().Execute("Delete From " + stem + "02 Where " + where);
        Conn().Flush();
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

} // namespace jxc
