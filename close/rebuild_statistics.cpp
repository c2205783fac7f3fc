#include "close/rebuild_statistics.h"

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"
#include "settings/type_codes.h"

namespace jxc {

namespace {

// The lines' figure in documents of one statistics class, nothing in others.
std::string OfClass(int statistics, const std::string& figure) {
    return OneOf("c.fSetTjType=" + std::to_string(statistics), figure, "0");
}

std::string SumOf(int statistics, const std::string& figure, const std::string& field) {
    return "sum(" + OfClass(statistics, figure) + ") as " + field;
}

std::string Selection(Date dateLimit) {
    const std::string value = "a.fInvSl*a.fInvDj*a.fInvHbDl";
    const std::string direction = OneOf("a.fInvInOut=1", "1", "-1");
    const bool bracketed = !session.IsJet();
    const auto factor = [&](const std::string& text) { return bracketed ? "(" + text + ")" : text; };
    return "select a.fCpID,a.fCkName," + SumOf(Statistics::Opening, "a.fInvSl", "fQcSl") + "," +
           SumOf(Statistics::Opening, value, "fQcJe") + "," +
           SumOf(Statistics::Receipt, "a.fInvSl", "fRkSl") + "," +
           SumOf(Statistics::Receipt, value, "fRkJe") + "," + SumOf(Statistics::Issue, "a.fInvSl", "fCkSl") +
           "," + SumOf(Statistics::Issue, value, "fCkJe") + "," +
           SumOf(Statistics::Issue, "a.fInvSl*a.fInvDj2", "fCkCb") + ",sum(" + factor(direction) + "*" +
           factor(OfClass(Statistics::Transfer, "a.fInvSl")) + ") as fDkSl," +
           SumOf(Statistics::Stocktake, "a.fInvSl", "fPdSl") +
           " from (tJXC_CkDj02 a Left Join tJXC_CkDj01 b On b.fInvID=a.fInvID)"
           " Left Join tJXC_InvSet c On c.fSetNo=b.fInvType where " +
           DayTest("a.fInvDate", "<=", dateLimit) +
           " And b.fInvSHR<>'' Group by a.fCpID,a.fCkName Order by a.fCpID,a.fCkName";
}

// The selection's rows with the stock that follows from them, and the price and value of those that goods came into: to
// write each row once is to do half the work.
std::string RowsSelection(Date dateLimit) {
    const std::string price = "(q.fQcJe+q.fRkJe)/(q.fQcSl+q.fRkSl)";
    const std::string stock = "q.fQcSl+q.fRkSl-q.fCkSl+q.fDkSl+q.fPdSl";
    const auto withGoods = [](const std::string& figure) {
        return OneOf("q.fQcSl+q.fRkSl<>0", figure, "null");
    };
    return "select q.*," + stock + " as fKcSl," + withGoods(price) + " as fKcDj," +
           withGoods("(" + stock + ")*(" + price + ")") + " as fKcJe from (" + Selection(dateLimit) + ") q";
}

// 0.1 + 0.2 - 0.3 leaves a few binary digits in the last place. What people read as nothing has to be nothing, because the
// cost price asks whether there are goods. Sums of much leave more of them than sums of little.
std::string IsResidue(const std::string& sum, const std::vector<std::string>& parts = {}) {
    std::string added;
    for (const std::string& part : parts)
        added += (added.empty() ? "abs(" : "+abs(") + part + ")";
    return "(" + sum + "<>0 And abs(" + sum + ")<0.000000001" +
           (added.empty() ? "" : "+0.000000000001*(" + added + ")") + ")";
}

const std::vector<std::string> kQuantities = {"fQcSl", "fRkSl", "fCkSl", "fDkSl", "fPdSl"};
const std::string kReceivedResidue = IsResidue("(fQcSl+fRkSl)", {"fQcSl", "fRkSl"});
const std::string kStockResidue = IsResidue("fKcSl", kQuantities);

bool HasResidue() {
    std::string any = kReceivedResidue + " Or " + kStockResidue;
    for (const std::string& quantity : kQuantities)
        any += " Or " + IsResidue(quantity);
    return !Recordset(Conn(), "Select Top 1 fCpID From tJXC_CkTj Where " + any).AtEnd();
}

void ClearResidue() {
    const auto clear = [](const std::string& field, const std::string& residue, const std::string& nothing) {
        Conn().Execute("Update tJXC_CkTj Set " + field + "=" + nothing + " Where " + residue);
    };
    for (const std::string& quantity : kQuantities)
        clear(quantity, IsResidue(quantity), "0");
    clear("fRkSl", kReceivedResidue, "-fQcSl");
    Conn().Execute("Update tJXC_CkTj Set fKcSl=fQcSl+fRkSl-fCkSl+fDkSl+fPdSl");
    clear("fKcSl", kStockResidue, "0");
    Conn().Execute("Update tJXC_CkTj Set fKcDj=(fQcJe+fRkJe)/(fQcSl+fRkSl) Where fQcSl + fRkSl <> 0");
    Conn().Execute("Update tJXC_CkTj Set fKcJe=fKcSl*fKcDj");
}

// Where there are no goods to divide a value by, the product's reference cost serves.
void TakeReferenceCost(const std::string& table, const std::string& nothing) {
    Conn().Execute(UpdateText({.table = table,
                               .field = "fKcDj",
                               .second = "tJXC_Cp",
                               .value = "fCpPrice0",
                               .join = "a.fCpID=b.fCpID",
                               .condition = nothing + "=0"}));
}

void FillStockStatistics(Date dateLimit) {
    Conn().Execute("Delete From tJXC_CkTj");
    Conn().Execute(
        "Insert Into tJXC_CkTj (fCpID,fCkName,fQcSl,fQcJe,fRkSl,fRkJe,fCkSl,fCkJe,fCkCb,fDkSl,fPdSl,"
        "fKcSl,fKcDj,fKcJe) " +
        RowsSelection(dateLimit));
    if (HasResidue())
        ClearResidue();
    TakeReferenceCost("tJXC_CkTj", "a.fQcSl + a.fRkSl");
    Conn().Execute("Update tJXC_CkTj Set fKcJe=fKcSl*fKcDj Where fQcSl + fRkSl = 0");
}

void FillOverallCost() {
    Conn().Execute("Delete From tJXC_CkTj_tmp");
    Conn().Execute("Insert Into tJXC_CkTj_tmp (fCpID,fKcSl,fKcJe) "
                   "select b.fCpID,sum(b.fKcSl) as fKcSl,sum(b.fKcJe) as fKcJe from"
                   " (tJXC_CkTj b Left Join tJXC_Ck c On c.fCkName=b.fCkName)"
                   " Where (c.fCkType2=0 Or c.fCkType2=1) Group By b.fCpID Order By b.fCpID");
    Conn().Execute("Update tJXC_CkTj_tmp Set fKcSl=0 Where " + IsResidue("fKcSl"));
    Conn().Execute("Update tJXC_CkTj_tmp Set fKcDj=fKcJe/fKcSl Where fKcSl<>0");
    TakeReferenceCost("tJXC_CkTj_tmp", "a.fKcSl");
}

// Whole or not at all; a failure is told behind `failure`.
bool InTransaction(const std::string& title, const std::string& failure, const std::function<void()>& work) {
    try {
        Transaction transaction(Conn());
        work();
        transaction.Commit();
        return true;
    } catch (const DatabaseError& error) {
        WarnOfFailure(title, failure + error.what() + " ！", CauseOf(error));
        return false;
    }
}

} // namespace

bool RebuildStockStatistics(Date dateLimit, const std::string& title) {
    return InTransaction(title, "库存统计失败：", [&] { FillStockStatistics(dateLimit); });
}

void RebuildOverallCost(const std::string& title) {
    InTransaction(title, "整体成本刷新失败：", FillOverallCost);
}

int ApprovedDocumentsAfter(Date dateLimit) {
    const Recordset row(Conn(), "Select count(*) as fCount From tJXC_CkDj01 Where " +
                                    DayTest("fInvDate", ">", dateLimit) + " And fInvSHR<>''");
    return static_cast<int>(row["fCount"].AsLong());
}

} // namespace jxc
