// What the stock query shows and asks: its columns, its filters, its statement.

#include "controls/view.h"
#include "session/dialect.h"
#include "session/session.h"
#include "stock/frmCkKc.h"

namespace jxc {

namespace {

const Color kBelow = Rgb(255, 192, 192);
const Color kAbove = Rgb(192, 255, 255);

Value Margin(const Recordset& row) {
    return row["fCkJe"].AsDouble() - row["fCkCb"].AsDouble();
}

// A quantity at the chosen price.
auto AtPrice(const char* quantity) {
    return [quantity](const Recordset& row) -> Value {
        return row[quantity].AsDouble() * row["fCpPrice"].AsDouble();
    };
}

std::string StockStatement(const frmCkKc& s) {
    const std::string price = std::to_string(s.ChosenPrice());
    return "select b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpSlMin,b.fCpSlMax,a.*,b.fCpPrice" + price +
           " as fCpPrice From (tJXC_CkTj a Left join tJXC_Cp b On a.fCpID=b.fCpID)  Where 1=1" +
           s.filters.Condition() + " Order By b.fCpCode,a.fCkName";
}

} // namespace

std::vector<Column> StockColumns(const frmCkKc& s) {
    const auto alarm = [&s] { return s.Question() == StockQuery::Alarm; };
    const auto cost = [&s] { return s.chkPrice.value; };
    const auto detail = [&s] { return s.chkDetail.value; };
    using enum Figure;
    return {{"编码", "fCpCode", 12},
            {"品名规格", "fCpName", 30, Text, ProductText},
            {"单位", "fCpUnit", 6},
            {"仓库", "fCkName", 12},
            {"库存数", "fKcSL", 10, Quantity},
            When(cost, {"单价", "fKcDj", 10, Price}),
            When(cost, {"金额", "fKcJE", 12, Money}),
            ShownWhen(detail, {"期初数", "fQcSl", 10, Quantity}),
            When(cost, ShownWhen(detail, {"期初金额", "fQcJe", 12, Money})),
            ShownWhen(detail, {"入库数", "fRkSl", 10, Quantity}),
            When(cost, ShownWhen(detail, {"入库金额 ", "fRkJe", 12, Money})),
            ShownWhen(detail, {"出库数", "fCkSl", 10, Quantity}),
            When(cost, ShownWhen(detail, {"出库金额", "fCkJe", 12, Money})),
            When(cost, ShownWhen(detail, {"销售毛利", "fCkJe", 12, Money, Margin})),
            ShownWhen(detail, {"调库数", "fDkSl", 10, Quantity}),
            When(cost, ShownWhen(detail, {"调库金额", "fDkSl", 12, Money, AtPrice("fDkSl")})),
            ShownWhen(detail, {"盘点数", "fPdSl", 10, Quantity}),
            When(cost, ShownWhen(detail, {"盘点金额", "fPdSl", 12, Money, AtPrice("fPdSl")})),
            When(alarm, {"下限", "fCpSlMin", 10, Quantity}),
            When(alarm, {"上限", "fCpSlMax", 10, Quantity}),
            {"fCpID", "fCpID", 0, Key}};
}

std::vector<Filter> StockFilters(frmCkKc& s) {
    return {{s.chkCk, s.cboCk, "a.fCkName Like {like}"},
            {s.chkCpCode, s.txtCpCode, "b.fCpCode Like {like}"},
            {s.chkCpName, s.txtCpName, "(b.fCpName Like {like} Or b.fCpGG Like {like})"},
            {s.chkKcBj, "not (a.fKcSL >= b.fCpSlMin And a.fKcSL <= b.fCpSlMax) And b.fCpSlMax>0"},
            {s.chkNeg, "a.fKcSL<0"}};
}

void QueryStock(frmCkKc& s) {
    Recordset rows(Conn(), StockStatement(s));
    s.stampedMonth.reset();
    const int filled = s.list.Fill(rows);
    TellOfStatistics(s);
    ColorRows(s);
    if (filled == 0)
        Warn(s.title, s.chkKcBj.value ? "未有符合条件的产品库存报警记录！" : "未有符合条件的产品库存记录！");
}

void ColorRows(frmCkKc& s) {
    if (s.Question() != StockQuery::Alarm)
        return;
    const int stockPlace = s.list.Place("fKcSL");
    const int lowerPlace = s.list.Place("fCpSlMin");
    const int upperPlace = s.list.Place("fCpSlMax");
    for (int row = 1; row <= s.Grid1.RowCount(); ++row) {
        const double stock = s.Grid1.Number(row, stockPlace);
        const double upper = s.Grid1.Number(row, upperPlace);
        Color color = kNormalColor;
        if (upper > 0)
            color = stock < s.Grid1.Number(row, lowerPlace) ? kBelow : stock > upper ? kAbove : kNormalColor;
        s.Grid1.SetRowColor(row, 2, color);
    }
}

} // namespace jxc
