// What a plan shows of each product.

#include "documents/figure_bounds.h"
#include "plans/frmJh02.h"

namespace jxc {

namespace {

constexpr Color kLimitColor = Rgb(192, 255, 255);

double SumOf(const std::map<std::int64_t, double>& sums, const Recordset& row) {
    const auto found = sums.find(row["fCpID"].AsLong());
    return found == sums.end() ? 0 : found->second;
}

// The slash stands there even where there is no specification.
Value NameAndSlash(const Recordset& row) {
    return row["fCpName"].AsText() + "/" + row["fCpGG"].AsText();
}

} // namespace

double PlanFigure(const frmJh02& s, const Recordset& row, int column) {
    switch (column) {
    case plan::kStock:
        return row["fKcSl"].AsDouble();
    case plan::kLower:
        return row["fCpSlMin"].AsDouble();
    case plan::kUpper:
        return row["fCpSlMax"].AsDouble();
    case plan::kSales:
        return s.CountsOrders() ? row["fXsSl"].AsDouble() : 0;
    case plan::kPurchases:
        return SumOf(s.sums.purchases, row);
    case plan::kAssembly:
        return SumOf(s.sums.assemblies, row);
    default:
        return 0; // what is being dismantled is not counted
    }
}

std::vector<Column> PlanColumns(frmJh02& s) {
    const auto figure = [&s](int column) {
        return [&s, column](const Recordset& row) -> Value { return PlanFigure(s, row, column); };
    };
    const auto detail = [&s] { return s.chkDetail.value; };
    const auto limited = [&s] { return s.chkDetail.value && s.cboKcType.Index() != plan::kNoLimit; };
    const auto orders = [&s] { return s.CountsOrders(); };
    const auto assembled = [&s] {
        return s.chkDetail.value && s.cboType.Index() == plan::kByOrdersAndAssembly;
    };
    const auto madeHere = [&s] { return s.IsProduction() && s.CountsOrders(); };
    const auto bought = [&s] { return !s.IsProduction(); };
    const auto priced = [&s] { return s.chkPrice.value; };
    const auto inWarehouse = [&s] { return s.chkCk.value; };
    const auto never = [] { return false; };
    const auto warehouse = [&s](const Recordset&) -> Value { return TickedText(s.chkCk, s.cboCk); };
    const auto needed = [&s](const Recordset&) -> Value { return s.needed; };
    // The method by limits leaves the suppliers to the person.
    const auto ifOrders = [&s](const char* field) {
        return [&s, field](const Recordset& row) -> Value { return s.CountsOrders() ? row[field] : Value(); };
    };
    using enum Figure;
    std::vector<Column> columns{
        {"编码", "fCpCode", 12},
        {"品名规格", "fCpName", 27, Text, NameAndSlash},
        {"单位", "fCpUnit", 6},
        ShownWhen(inWarehouse, {"仓库", "fCkName", 12, Text, warehouse}),
        ShownWhen(detail, {"库存数", "fKcSl", 9, Quantity, figure(plan::kStock)}),
        ShownWhen(limited, {"库存下限", "fCpSlMin", 9, Quantity, figure(plan::kLower)}),
        ShownWhen(limited, {"库存上限", "fCpSlMax", 9, Quantity, figure(plan::kUpper)}),
        When(orders, ShownWhen(detail, {"销售订单\n（在途）", "fXsSl", 9, Quantity, figure(plan::kSales)})),
        When(orders,
             ShownWhen(detail, {"采购订单\n（在途）", "fCgSl", 9, Quantity, figure(plan::kPurchases)})),
        When(madeHere,
             ShownWhen(assembled, {"组装数\n（在制）", "fZzSl", 9, Quantity, figure(plan::kAssembly)})),
        When(madeHere,
             ShownWhen(never, {"拆分数\n（在制）", "fCfSl", 9, Quantity, figure(plan::kDismantling)})),
        {"实际数", "fInvSL", 9, Quantity, needed},
        ShownWhen(priced, {"成本价", "fCpPrice0", 10, Price}),
        ShownWhen(priced, {"金额", "fInvJE", 12, Money, [](const Recordset&) { return Value(); }}),
        When(bought, {"供应商", "fKhName", 22, Text, ifOrders("fKhName")}),
        When(bought, {"fKhID", "fKhID", 0, Key, ifOrders("fKhID")}),
        {"fCpID", "fCpID", 0, Key}};
    columns[plan::kNeeded - 1].typed = true;
    return columns;
}

void SetUpPlan(frmJh02& s) {
    s.list.SetUp();
    Grid& grid = s.Grid1;
    for (const int limit : {plan::kLower, plan::kUpper})
        grid.Column(limit).backColor = kLimitColor;
    grid.SetFormula(plan::kAmount, "L# * M#");
    grid.Column(plan::kAmount).rounded = true; // an order stores what is seen
    grid.Column(plan::kNeeded).below = below::kQuantity;
    grid.Column(plan::kAmount).below = below::kAmount;
    grid.enterColumns = {plan::kNeeded};
}

} // namespace jxc
