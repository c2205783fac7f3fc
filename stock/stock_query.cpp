#include "stock/stock_query.h"

#include "controls/grid_routines.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

// Which figures a column shows: a stock field as it is, the issues' margin, or a quantity at the chosen
// price.
enum class Figure { Field, Margin, AtPrice };

struct StockColumn {
    const char* caption;
    const char* field;
    double width;
    bool money = false;  // shown and filled with the money columns only
    bool detail = false; // hidden without the detail box
    bool limit = false;  // of the alarm
    Figure figure = Figure::Field;
};

constexpr int kFirstFigure = 5;
constexpr int kStockQuantity = 5;
constexpr int kUnitCost = 6;
constexpr int kLowerLimit = 19;
constexpr int kUpperLimit = 20;

// Columns from 5 on; the texts before and the hidden product key behind are apart.
constexpr StockColumn kFigures[] = {
    {.caption = "库存数", .field = "fKcSL", .width = 10},
    {.caption = "单价", .field = "fKcDj", .width = 10, .money = true},
    {.caption = "金额", .field = "fKcJE", .width = 12, .money = true},
    {.caption = "期初数", .field = "fQcSl", .width = 10, .detail = true},
    {.caption = "期初金额", .field = "fQcJe", .width = 12, .money = true, .detail = true},
    {.caption = "入库数", .field = "fRkSl", .width = 10, .detail = true},
    {.caption = "入库金额 ", .field = "fRkJe", .width = 12, .money = true, .detail = true},
    {.caption = "出库数", .field = "fCkSl", .width = 10, .detail = true},
    {.caption = "出库金额", .field = "fCkJe", .width = 12, .money = true, .detail = true},
    {.caption = "销售毛利",
     .field = "fCkJe",
     .width = 12,
     .money = true,
     .detail = true,
     .figure = Figure::Margin},
    {.caption = "调库数", .field = "fDkSl", .width = 10, .detail = true},
    {.caption = "调库金额",
     .field = "fDkSl",
     .width = 12,
     .money = true,
     .detail = true,
     .figure = Figure::AtPrice},
    {.caption = "盘点数", .field = "fPdSl", .width = 10, .detail = true},
    {.caption = "盘点金额",
     .field = "fPdSl",
     .width = 12,
     .money = true,
     .detail = true,
     .figure = Figure::AtPrice},
    {.caption = "下限", .field = "fCpSlMin", .width = 10, .limit = true},
    {.caption = "上限", .field = "fCpSlMax", .width = 10, .limit = true},
};

const Color kBelow = Rgb(255, 192, 192);
const Color kAbove = Rgb(192, 255, 255);

int DecimalsOf(int column, const StockColumn& figure) {
    if (column == kUnitCost)
        return session.DeciDj;
    return figure.money ? 2 : session.DeciSl;
}

std::string StockStatement(const frmCkKc& s) {
    std::string where = "1=1";
    if (s.chkCk.value)
        where += " And a.fCkName Like " + InQuotes(LikePattern(s.cboCk.text));
    if (s.chkCpCode.value)
        where += " And b.fCpCode Like " + InQuotes(LikePattern(s.txtCpCode.text));
    if (s.chkCpName.value) {
        const std::string pattern = InQuotes(LikePattern(s.txtCpName.text));
        where += " And (b.fCpName Like " + pattern + " Or b.fCpGG Like " + pattern + ")";
    }
    if (s.chkKcBj.value)
        where += " And not (a.fKcSL >= b.fCpSlMin And a.fKcSL <= b.fCpSlMax) And b.fCpSlMax>0";
    if (s.chkNeg.value)
        where += " And a.fKcSL<0";
    return "select b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpSlMin,b.fCpSlMax,a.*,b.fCpPrice" +
           std::to_string(s.ChosenPrice()) + " as fCpPrice" +
           " From (tJXC_CkTj a Left join tJXC_Cp b On a.fCpID=b.fCpID) " + " Where " + where +
           " Order By b.fCpCode,a.fCkName";
}

Value FigureOf(const StockColumn& column, const Recordset& row) {
    switch (column.figure) {
    case Figure::Margin:
        return row["fCkJe"].AsDouble() - row["fCkCb"].AsDouble();
    case Figure::AtPrice:
        return row[column.field].AsDouble() * row["fCpPrice"].AsDouble();
    case Figure::Field:
        break;
    }
    return row[column.field];
}

void FillRow(frmCkKc& s, int at, const Recordset& row) {
    const std::string spec = row["fCpGG"].AsText();
    s.Grid1.FillCell(at, 1, row["fCpCode"]);
    s.Grid1.FillCell(at, 2, row["fCpName"].AsText() + (spec.empty() ? "" : "/" + spec));
    s.Grid1.FillCell(at, 3, row["fCpUnit"]);
    s.Grid1.FillCell(at, 4, row["fCkName"]);
    int column = kFirstFigure;
    for (const StockColumn& figure : kFigures) {
        const bool wanted =
            figure.limit ? s.Question() == StockQuery::Alarm : !figure.money || s.chkPrice.value;
        if (wanted)
            s.Grid1.FillCell(at, column, FigureOf(figure, row));
        ++column;
    }
    s.Grid1.FillCell(at, s.Grid1.ColumnCount(), row["fCpID"]);
}

} // namespace

void SetUpStockGrid(frmCkKc& s) {
    std::vector<GridColumn> columns{{.caption = "编码", .width = 12, .locked = true},
                                    {.caption = "品名规格", .width = 30, .locked = true},
                                    {.caption = "单位", .width = 6, .locked = true},
                                    {.caption = "仓库", .width = 12, .locked = true}};
    for (const StockColumn& figure : kFigures) {
        const int place = static_cast<int>(columns.size()) + 1;
        columns.push_back({.caption = figure.caption,
                           .type = CellType::Number,
                           .decimals = DecimalsOf(place, figure),
                           .width = figure.width,
                           .locked = true,
                           .alignment = Alignment::Right});
    }
    columns.push_back({.caption = "fCpID", .hidden = true, .locked = true});
    s.Grid1.SetColumns(std::move(columns));
    s.Grid1.readOnly = true;
}

void HideStockColumns(frmCkKc& s) {
    int column = kFirstFigure;
    for (const StockColumn& figure : kFigures) {
        const bool wrongQuestion = (figure.money && s.Question() != StockQuery::Cost) ||
                                   (figure.limit && s.Question() != StockQuery::Alarm);
        s.Grid1.Column(column++).hidden = wrongQuestion || (figure.detail && !s.chkDetail.value);
    }
}

void QueryStock(frmCkKc& s) {
    Recordset row(Conn(), StockStatement(s));
    s.Grid1.Clear();
    s.Grid1.SetRowCount(static_cast<int>(row.RecordCount()));
    int filled = 0;
    for (; !row.AtEnd(); row.MoveNext())
        if (!row["fCpCode"].IsNull()) // the product may be gone
            FillRow(s, ++filled, row);
    s.Grid1.SetRowCount(filled);
    ClearSortMark(s.Grid1);
    ColorRows(s);
    if (filled == 0)
        Warn(s.title, s.chkKcBj.value ? "未有符合条件的产品库存报警记录！" : "未有符合条件的产品库存记录！");
}

void ColorRows(frmCkKc& s) {
    if (s.Question() != StockQuery::Alarm)
        return;
    for (int row = 1; row <= s.Grid1.RowCount(); ++row) {
        const double stock = s.Grid1.Number(row, kStockQuantity);
        const double upper = s.Grid1.Number(row, kUpperLimit);
        Color color = kNormalColor;
        if (upper > 0)
            color = stock < s.Grid1.Number(row, kLowerLimit) ? kBelow : stock > upper ? kAbove : kNormalColor;
        s.Grid1.SetRowColor(row, 2, color);
    }
}

} // namespace jxc
