// Working a plan out: its filters, its statements, the quantity that is needed of each product.

#include "base/text.h"
#include "controls/row_formula.h"
#include "controls/view.h"
#include "plans/frmJh02.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kQuantityDecimals = 6; // more than any company shows: what lies behind them is no quantity

const char* const kProductFields =
    "b.fCpID,b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpSlMin,b.fCpSlMax,b.fCpPrice0,b.fKhID,b.fKhName";

// Kits are made, other products are bought.
std::string KitTest(const frmJh02& s) {
    return std::string(s.IsProduction() ? "" : "not ") +
           " b.fCpID in (Select fCpID From tJXC_CpTj01 Where fTjFlag<1)";
}

std::map<std::int64_t, double> SumsOf(const std::string& statement) {
    std::map<std::int64_t, double> sums;
    for (Recordset row(Conn(), statement); !row.AtEnd(); row.MoveNext())
        sums[row["fCpID"].AsLong()] = row["fSl"].AsDouble();
    return sums;
}

// Of one state of the company: an order that is saved meanwhile counts everywhere or nowhere.
void FillPlan(frmJh02& s) {
    const ReadingTransaction reading(Conn());
    std::vector<Connection::Expected> reads{{PlanStatement(s)}};
    if (s.CountsOrders())
        reads.push_back({OpenPurchasesStatement()});
    if (s.CountsOrders() && s.IsProduction())
        reads.push_back({AssembliesStatement()});
    const ReadAhead ahead(Conn(), reads);
    Recordset rows(Conn(), PlanStatement(s));
    s.sums = {};
    if (s.CountsOrders())
        s.sums.purchases = SumsOf(OpenPurchasesStatement());
    if (s.CountsOrders() && s.IsProduction())
        s.sums.assemblies = SumsOf(AssembliesStatement());
    const RowFormula formula(NeedFormula(s.cboKcType.Index(), s.cboType.Index()));
    s.list.takes = [&s, &formula](const Recordset& row) {
        const double result = formula.Evaluate([&](int column) { return PlanFigure(s, row, column); });
        s.needed = RoundDecimal(result, kQuantityDecimals);
        return s.needed > 0;
    };
    s.list.Fill(rows);
    s.list.takes = nullptr;
    s.Grid1.Recalculate();
}

} // namespace

std::vector<Filter> PlanFilters(frmJh02& s) {
    return {{s.chkCk, s.cboCk, "c.fCkName={text}"},
            {s.chkCpCode, s.txtCpCode, "b.fCpCode Like {like}"},
            {s.chkCpName, s.txtCpName, "(b.fCpName Like {like} Or b.fCpGG Like {like})"},
            {s.chkCpZy2, s.cboCpZy2, "b.fCpZy Like {like}"},
            {s.chkCpCd2, s.cboCpCd2, "b.fCpCd Like {like}"},
            Filter([&s] { return KitTest(s); })};
}

std::string NeedFormula(int limit, int method) {
    const char* const limits[] = {"0", "F#", "(F#+G#)/2", "G#"};
    const char* const methods[] = {"- E#", "- E# - I# + H#", "- E# - I# + H# -J#-K#"};
    return std::string(limits[limit]) + methods[method];
}

std::string PlanStatement(const frmJh02& s) {
    const std::string orders = s.CountsOrders()
                                   ? ",sum(a.fInvSL2) as fXsSl"
                                     " From ((tJXC_CkHt02 a Inner Join tJXC_Cp b On b.fCpID=a.fCpID)"
                                     " Left Join tJXC_CkTj c On c.fCpID=a.fCpID)"
                                     " Where a.fInvSL2>0 And a.fInvID in (Select fInvID From tJXC_CkHt01 "
                                     "Where tJXC_CkHt01.fInvType=24) "
                                   : " From tJXC_Cp b Left Join tJXC_CkTj c On c.fCpID=b.fCpID"
                                     " Where b.fCpSlMax>0";
    return "select " + std::string(kProductFields) + ",sum(c.fKcSl) as fKcSl" + orders +
           s.filters.Condition() + " Group By " + kProductFields + " Order By b.fCpCode,b.fCpName";
}

// One statement for all products: as many statements as products would give the same figures, each of them a way to the
// server and back.
std::string OpenPurchasesStatement() {
    return "Select fCpID,Sum(fInvSL2) as fSl From tJXC_CkHt02 Where fInvID in (Select fInvID From "
           "tJXC_CkHt01 "
           "Where fInvType=23) Group By fCpID";
}

std::string AssembliesStatement() {
    return "Select fCpID,Sum(fInvSL) as fSl From tJXC_CkDj02 Where fInvID in (Select fInvID From tJXC_CkDj01 "
           "Where fInvType=31 And fInvSHR='') And fInv1=1 Group By fCpID";
}

void ComputePlan(frmJh02& s) {
    if (s.cboType.Index() < 0) {
        Warn(s.title, "请选择计算方式！");
        return s.MoveFocus(&s.cboType);
    }
    FillPlan(s);
    const bool any = s.Grid1.RowCount() > 0;
    s.Grid1.selectedRow = any ? 1 : 0;
    s.Grid1.selectedColumn = plan::kNeeded;
    s.touched = false;
    s.cmdExecute.enabled = s.cmdSupplier.enabled = any;
    ShowSupplier(s);
    if (!any)
        Warn(s.title, "未有符合条件的产品" + s.title + "！");
}

} // namespace jxc
