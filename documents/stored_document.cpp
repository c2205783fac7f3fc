#include "documents/stored_document.h"

#include "session/database/connection.h"
#include "session/session.h"

namespace jxc {

StoredDocument ReadStored(const std::string& stem, std::int32_t key) {
    const std::string where = " Where fInvID=" + std::to_string(key);
    StoredDocument stored;
    stored.header = Conn().Query("select * from " + stem + "01" + where).cells;
    if (stored.Exists())
        stored.lines =
            Conn()
                .Query("select fInv1,fRowID,fCkName,fCpID,fInvSL,fInvSL2,fInvDJ,fInvJE,fInvTax,fInvOther1,"
                       "fInvOther2 from " +
                       stem + "02" + where + " Order By fInv1,fRowID")
                .cells;
    return stored;
}

} // namespace jxc
