#include "close/month_close.h"

#include "close/closed_month.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

std::string UpTo(Date periodEnd, const std::string& column = "fInvDate") {
    return " Where " + DayTest(column, " <= ", periodEnd);
}

void StampMonth(const std::string& table, Date month, const std::string& where = "") {
    Conn().Execute("Update " + table + " Set fMonth=" + DayValue(month) + where);
}

} // namespace

Date NextMonth(Date date) {
    const Date inNext = AddDays(AddDays(date, -DayOf(date)), 33); // 2 to 5 days into it
    return AddDays(inNext, 1 - DayOf(inNext));
}

bool AllDocumentsApproved(Date periodEnd) {
    const Recordset row(Conn(), "Select count(*) as fCount From tJXC_CkDj01 where " +
                                    DayTest("fInvDate", "<=", periodEnd) + " And fInvSHR=''");
    return row["fCount"].AsLong() == 0;
}

void BackupDocuments(Date month, Date periodEnd) {
    StampMonth("tJXC_CkDj01", month, UpTo(periodEnd));
    StampMonth("tJXC_CkDj02", month, UpTo(periodEnd));
    ClearMonth("tJXC_CkDj_Bak01", month);
    ClearMonth("tJXC_CkDj_Bak02", month);
    for (const std::string part : {"01", "02"})
        Conn().Execute("Insert Into tJXC_CkDj_Bak" + part + "  Select * From tJXC_CkDj" + part + " " +
                       UpTo(periodEnd) + " Order By fInvDate,fInvID");
}

void BackupStockStatistics(Date month) {
    StampMonth("tJXC_CkTj", month);
    ClearMonth("tJXC_CkTj_Bak", month);
    Conn().Execute("Insert Into tJXC_CkTj_Bak  Select * From tJXC_CkTj  Order By fCpID,fCkName");
}

void BackupCustomerStatistics(Date month, Date periodEnd) {
    StampMonth("tJXC_CkTj", month);
    ClearMonth("tJXC_KhTj_Bak", month);
    Conn().Execute("Insert Into tJXC_KhTj_Bak (fKhID,fCpID,fMonth,fCkSL,fCkJE,fCkCB) "
                   " Select a.fKhID,a.fCpID," +
                   DayValue(month) +
                   " As fMonth,Sum(a.fInvSL) As fCkSL,Sum(a.fInvJE*a.fInvHbDl) as fCkJE,"
                   "Sum(a.fInvSL*a.fInvDj2) as fCkCB"
                   " From (tJXC_CkDj02 a Left Join tJXC_CkDj01 b On b.fInvID=a.fInvID)"
                   " Left Join tJXC_InvSet c On c.fSetNo=b.fInvType" +
                   UpTo(periodEnd, "a.fInvDate") +
                   " And c.fSetTjType=2 Group By a.fKhID,a.fCpID Order By a.fKhID,a.fCpID");
}

void FinishClose(Date month, Date periodEnd) {
    for (const std::string part : {"01", "02"})
        Conn().Execute("Delete From tJXC_CkDj" + part + UpTo(periodEnd));
    for (const std::string part : {"01", "02"})
        Conn().Execute("Insert Into tJXC_CkDj" + part + " Select * From tJXC_CkDj_Tmp" + part +
                       " Order By fInvID");
    MovePeriod(month, NextMonth(month), "月底结转");
}

} // namespace jxc
