#include "session/lookups/book.h"

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
