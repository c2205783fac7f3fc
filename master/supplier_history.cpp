#include "master/supplier_history.h"

#include "controls/view.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

const std::string kFields = "Insert INTO tJXC_CpGys (fCpID,fKhID,fCpSl,fCpPrice,fInvDate,fInvNo)"
                            " SELECT fCpID,fKhID,fInvSl,fInvDJ,fInvDate,fInvNo From tJXC_CkDj02 ";

std::string WarningOf(const DatabaseError& error) {
    return std::string("刷新产品供应商错误：") + error.what();
}

// The first row of each product is its latest purchase: of two on a day the document written later.
void SetLatestSuppliers() {
    Recordset row(Conn(), "Select a.fCpID,a.fKhID,b.compname "
                          "From (tJXC_CpGys a Left Join cards b On a.fKhID=b.fID) "
                          "Left Join tJXC_CkDj01 c On a.fInvNo=c.fInvNo "
                          "Order By a.fCpID,a.fInvDate Desc,c.fInvID Desc,a.fInvNo Desc");
    for (std::int64_t done = -1; !row.AtEnd(); row.MoveNext()) {
        const std::int64_t product = row["fCpID"].AsLong();
        if (product == done)
            continue;
        done = product;
        Conn().Execute("UPDATE tJXC_Cp SET fKhID=" + std::to_string(row["fKhID"].AsLong()) + ",fKhName=" +
                       InQuotes(row["compname"].AsText()) + " Where fCpID=" + std::to_string(product));
    }
}

} // namespace

std::string RefreshSupplierByDocument(const std::string& number, bool reversal) {
    const std::string statement =
        (reversal ? "Delete From tJXC_CpGys " : kFields) + "Where fInvNo =" + InQuotes(number);
    try {
        Conn().Tolerantly([&] { Conn().Execute(statement); });
        return "";
    } catch (const DatabaseError& error) {
        return WarningOf(error);
    }
}

bool RefreshSupplierAll(Date from) {
    try {
        Conn().Execute("Delete From tJXC_CpGys Where " + DayTest("fInvDate", " >= ", from, DayForm::Iso));
        Conn().Execute(kFields + "Where fKhID > 0 And fInvID In (Select fInvID From tJXC_CkDj01 Where "
                                 "tJXC_CkDj01.fInvType=1 And fInvSHR<>'')"
                                 "ORDER BY fInvDate,fCpID,fKhID");
        SetLatestSuppliers();
        Conn().Flush();
        return true;
    } catch (const DatabaseError& error) {
        Warn("", WarningOf(error));
        return false;
    }
}

} // namespace jxc
