#include "documents/stored_document.h"

#include "database/connection.h"
#include "session/session.h"

namespace jxc {

std::string StoredHeaderStatement(const std::string& stem, std::int32_t key) {
    return "select * from " + stem + "01 Where fInvID=" + std::to_string(key);
}

std::string StoredLinesStatement(const std::string& stem, std::int32_t key) {
    return "select fInv1,fRowID,fCkName,fCpID,fInvSL,fInvSL2,fInvDJ,fInvJE,fInvTax,fInvOther1,"
           "fInvOther2 from " +
           stem + "02 Where fInvID=" + std::to_string(key) + " Order By fInv1,fRowID";
}

std::string LinesStatement(const std::string& stem, std::int32_t key, int fInv1) {
    return "Select a.*,b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit from " + stem + "02 a" +
           " Left Join tJXC_Cp b On a.fCpID =b.fCpID " + " Where a.fInvID = " + std::to_string(key) +
           " And fInv1 = " + std::to_string(fInv1) + " Order By a.fRowID";
}

StoredDocument ReadStored(const std::string& stem, std::int32_t key) {
    StoredDocument stored;
    Rows header = Conn().Query(StoredHeaderStatement(stem, key));
    stored.headerNames = std::move(header.names);
    stored.header = std::move(header.cells);
    if (stored.Exists())
        stored.lines = Conn().Query(StoredLinesStatement(stem, key)).cells;
    return stored;
}

} // namespace jxc
