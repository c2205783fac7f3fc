// Lines: products found by code or name, prices and stock, signs of returns, totals.

#include <cmath>

#include "base/text.h"
#include "controls/bounds.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/figure_bounds.h"
#include "forms/edit_filter.h"
#include "session/lookups/database_routines.h"
#include "session/lookups/find_by_text.h"
#include "session/session.h"

namespace jxc {

namespace {

// Prices come into the cells as people write them, with two decimals, or fewer where the company shows fewer: the
// amount is that of the price that is seen and stored.
double PriceAsShown(const Grid& grid, int column, double price) {
    return RoundDecimal(price, std::min(2, grid.Column(column).decimals));
}

void ClearRow(Grid& grid, int row) {
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        grid.SetCell(row, column, Value());
}

void SetRates(frmDj02& s, int row) {
    s.Grid2.SetCell(row, line::kDiscount, Val(s.txtZkl.text));
    s.Grid2.SetCell(row, line::kTaxRate, Val(s.txtTaxRate.text));
}

ProductSought SoughtHere(const frmDj02& s) {
    ProductSought sought;
    sought.warehouse = StockWarehouse(s);
    sought.stock = 0;
    return sought;
}

// What was typed is gone, and must not be gone unseen by a person who types on: the cursor stays.
void HoldCursor(Grid& grid, int row, int column) {
    grid.refusedRow = row;
    grid.selectedRow = row;
    grid.selectedColumn = column;
}

// A line and a sound tell it, for a box would be answered by the next Enter.
void RefuseRow(Grid& grid, int row, const std::string& text) {
    HoldCursor(grid, row, line::kCode);
    CurrentView().Signal(text);
}

void EmptyRow(Grid& grid, int row) {
    ClearRow(grid, row);
    HoldCursor(grid, row, line::kCode);
}

// A column that is seen and takes no typing.
int LockedColumn(const Grid& grid) {
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        if (!grid.Column(column).hidden && !grid.CanType(column))
            return column;
    return line::kCode;
}

// The product stands in `other`: there the cursor waits in a cell that takes no typing, for figures typed ahead are
// meant for neither row.
void ShowOtherRow(frmDj02& s, int row, int other) {
    Inform(s.title, "该产品已有输入！");
    ClearRow(s.Grid2, row);
    HoldCursor(s.Grid2, other, LockedColumn(s.Grid2));
    CurrentView().Signal("该产品已在第 " + std::to_string(other) + " 行，按方向键继续。");
}

// A bar code whose product has a line counts one more there; the cursor waits for the next one to be scanned.
void CountOneMore(frmDj02& s, int row, int counted, const std::string& product) {
    Grid& grid = s.Grid2;
    const int column = s.type.IsStocktake() ? line::kCounted : line::kQuantity;
    const bool returned = s.chkTh.value && !s.type.IsStocktake();
    const Value before = grid.Cell(counted, column);
    grid.SetCell(counted, column, AddDecimal(before.AsDouble(), returned ? -1 : 1));
    const int beyond = grid.ColumnOutOfBounds(counted);
    if (beyond > 0)
        grid.SetCell(counted, column, before);
    if (row != counted)
        ClearRow(grid, row);
    const std::string line = "第 " + std::to_string(counted) + " 行“" + product;
    if (beyond > 0)
        return RefuseRow(grid, row,
                         line + "”没有加 1：" +
                             BoundText(grid.Column(beyond).caption, grid.Column(beyond).below));
    RefuseRow(grid, row,
              line + (returned ? "”退回加 1，" : "”加 1，") + grid.Column(column).caption + " " +
                  grid.ShownText(counted, column) + "。");
}

// The code or name typed into a row finds its product.
void LeaveProductCell(frmDj02& s, int row, int column) {
    Grid& grid = s.Grid2;
    ProductSought sought = SoughtHere(s);
    const std::string typed = Trim(grid.Text(row, column));
    if (typed.empty())
        return ClearRow(grid, row);
    if (!CheckNoQuote(typed))
        return EmptyRow(grid, row);
    grid.SetCell(row, column == line::kCode ? line::kName : line::kCode, Value());
    (column == line::kCode ? sought.code : sought.name) = typed;
    std::int32_t id = 0;
    try {
        id = FindProduct(sought);
    } catch (...) {
        EmptyRow(grid, row); // a row never keeps a product that its code does not name
        throw;
    }
    if (id == 0) {
        ClearRow(grid, row);
        return RefuseRow(grid, row, "没有找到产品“" + typed + "”，该行已清空。");
    }
    const bool counts = sought.byBarCode;
    const int other = GridHasValue(grid, row, sought.code);
    if (other > 0)
        return counts ? CountOneMore(s, row, other, sought.code) : ShowOtherRow(s, row, other);
    const bool itsOwn = grid.Cell(row, line::kProduct).AsLong() == id;
    FillProduct(s, row, sought, id);
    if (counts && itsOwn)
        return CountOneMore(s, row, row, sought.code);
    if (s.type.fSetDjType2 == PriceKind::Discounted && grid.Number(row, line::kDiscount) == 0)
        CurrentView().Signal("折扣为 0，单价因此为 0：请输入折扣。");
}

void LeaveQuantityCell(frmDj02& s, int row) {
    Grid& grid = s.Grid2;
    const double quantity = grid.Number(row, line::kQuantity);
    if (s.chkTh.value) {
        grid.SetCell(row, line::kQuantity, -std::fabs(quantity));
    } else if (quantity == 0) {
        for (const int column : {line::kUnit, line::kName, line::kCode})
            grid.SetCell(row, column, Value());
        RefuseRow(grid, row, "数量为 0，该行的产品已清空。");
    }
}

// A line whose product has lost its reference price, or is gone, keeps the price that it has: that price stands in
// for the reference, at no discount.
void KeepPrice(Grid& grid, int row) {
    const double price = grid.Number(row, line::kPrice);
    grid.FillCell(row, line::kDiscount, 1);
    grid.SetCell(row, line::kReference, price);
}

bool MayAddLine(const frmDj02& s) {
    if (s.parameters.maxRows == 0 || s.Grid2.RowCount() < s.parameters.maxRows)
        return true;
    Inform(s.title, "单据最多 " + std::to_string(s.parameters.maxRows) + " 行！");
    return false;
}

} // namespace

void FillProduct(frmDj02& s, int row, const ProductSought& found, std::int32_t id) {
    Grid& grid = s.Grid2;
    SetRates(s, row);
    grid.SetCell(row, line::kCode, found.code);
    grid.SetCell(row, line::kName, NameAndSpec(found.name, found.spec));
    grid.SetCell(row, line::kUnit, found.unit);
    grid.SetCell(row, line::kStock, found.stock);
    const auto show = [&](int column, int kind) {
        if (!PriceField(kind).empty())
            grid.SetCell(row, column, PriceAsShown(grid, column, found.price[kind - PriceKind::Cost]));
    };
    show(line::kReference, s.type.fSetDjType1);
    show(line::kPrice, s.type.fSetDjType2);
    grid.SetCell(row, line::kProduct, std::int64_t{id});
}

std::string StockWarehouse(const frmDj02& s) {
    return s.type.HasFirstWarehouse() ? s.cboCkName.Chosen() : "";
}

void AppendLine(frmDj02& s) {
    Grid& grid = s.Grid2;
    const int last = grid.RowCount();
    if (grid.readOnly || (last > 0 && (grid.selectedRow != last || grid.Text(last, line::kCode).empty())))
        return;
    if (!MayAddLine(s))
        return;
    GridAppendRow(grid, 1);
    SetRates(s, grid.selectedRow);
    grid.selectedColumn = line::kCode;
}

bool EndsBlank(const Grid& grid) {
    return grid.RowCount() > 0 && grid.Text(grid.RowCount(), line::kCode).empty();
}

void GoBelowTheLines(frmDj02& s) {
    Grid& grid = s.Grid2;
    const bool full = s.parameters.maxRows > 0 && grid.RowCount() >= s.parameters.maxRows;
    if (!EndsBlank(grid) && !full) {
        grid.InsertRow(grid.RowCount() + 1);
        SetRates(s, grid.RowCount());
    }
    grid.selectedRow = grid.RowCount();
    grid.selectedColumn = EndsBlank(grid) ? line::kCode : LockedColumn(grid);
}

std::vector<Connection::Expected> LineStatements(const frmDj02& s, const std::string& code) {
    return ProductStatements(code, StockWarehouse(s));
}

std::int32_t FillLineByCode(frmDj02& s, int row, const std::string& code) {
    ProductSought sought = SoughtHere(s);
    sought.code = code;
    const std::int32_t id = FindProduct(sought);
    if (id != 0)
        FillProduct(s, row, sought, id);
    return id;
}

void CutToMaxRows(frmDj02& s) {
    if (s.parameters.maxRows == 0 || s.Grid2.RowCount() <= s.parameters.maxRows)
        return;
    s.Grid2.SetRowCount(s.parameters.maxRows);
    Inform(s.title, "单据最多 " + std::to_string(s.parameters.maxRows) + " 行！");
}

void InsertLine(frmDj02& s) {
    if (s.Grid2.readOnly || !MayAddLine(s))
        return;
    const int before = s.Grid2.RowCount();
    GridAppendRow(s.Grid2, 1);
    if (s.Grid2.RowCount() > before)
        SetRates(s, s.Grid2.selectedRow);
    s.Grid2.selectedColumn = line::kCode; // what is typed next is the new row's product
    s.MoveFocus(&s.Grid2);
}

void DeleteLine(frmDj02& s) {
    if (s.Grid2.readOnly)
        return;
    GridAppendRow(s.Grid2, 2);
    RefreshTotals(s);
}

void EnterGrid(frmDj02& s) {
    if (!IsEditing(s.InHand()) || !s.type.HasFirstWarehouse() || !s.cboCkName.IsShown() ||
        s.cboCkName.Index() >= 0)
        return;
    Warn(s.title, "请选择“" + s.lblCkName.caption + "”！");
    s.MoveFocus(&s.cboCkName);
}

void LeaveCell(frmDj02& s, int row, int column) {
    if (column == line::kCode || column == line::kName)
        LeaveProductCell(s, row, column);
    else if (column == line::kQuantity)
        LeaveQuantityCell(s, row);
    RefreshTotals(s);
}

LineFigures ReadLineFigures(const frmDj02& s) {
    std::vector<std::int64_t> products;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        if (const std::int64_t product = s.Grid2.Cell(row, line::kProduct).AsLong(); product != 0)
            products.push_back(product);
    return ReadFiguresOf(s, products);
}

LineFigures ReadFiguresOf(const frmDj02& s, const std::vector<std::int64_t>& products) {
    LineFigures figures;
    if (products.empty())
        return figures;
    const std::string warehouse = StockWarehouse(s), field = PriceField(s.type.fSetDjType1);
    const std::string prices = "Select fCpID," + field + " From tJXC_Cp Where fCpID" + InKeys(products);
    std::vector<Connection::Expected> together{{StockQtysStatement(warehouse, products)}};
    if (!field.empty())
        together.push_back({prices});
    const ReadAhead ahead(Conn(), together);
    figures.stock = GetStockQtys(warehouse, products);
    if (!field.empty())
        for (Recordset row(Conn(), prices); !row.AtEnd(); row.MoveNext())
            figures.reference[row[size_t{0}].AsLong()] = row[size_t{1}].AsDouble();
    return figures;
}

void ShowRowFigures(frmDj02& s, int row, const LineFigures& figures) {
    Grid& grid = s.Grid2;
    const std::int64_t product = grid.Cell(row, line::kProduct).AsLong();
    if (product == 0)
        return;
    const auto of = [&](const std::map<std::int64_t, double>& known) {
        const auto figure = known.find(product);
        return figure == known.end() ? 0 : figure->second;
    };
    grid.SetCell(row, line::kStock, of(figures.stock));
    const double reference = of(figures.reference); // none where the type shows none
    const bool atDiscount = IsEditing(s.InHand()) && s.type.fSetDjType2 == PriceKind::Discounted;
    if (reference == 0 && atDiscount && grid.Number(row, line::kPrice) != 0)
        KeepPrice(grid, row);
    else if (!PriceField(s.type.fSetDjType1).empty())
        grid.SetCell(row, line::kReference, reference);
}

void RefreshGridStock(frmDj02& s) {
    if (!IsEditing(s.InHand()))
        return;
    const LineFigures figures = ReadLineFigures(s);
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        ShowRowFigures(s, row, figures);
    RefreshTotals(s);
}

void RefreshTotals(frmDj02& s) {
    s.txtSum.text = FormatFixed(DocumentTotal(s.Grid2), 2);
    s.txtSum2.text = FormatFixed(s.type.fSetDjType1 == kNoChoice ? 0 : ReferenceTotal(s.Grid2), 2);
}

void SetReturnSign(frmDj02& s) {
    const bool marked = s.chkTh.value && !s.type.IsStocktake(); // a stocktake's quantity is its difference
    s.lblTh.visible = s.shpTh.visible = marked;
    s.Grid2.Column(line::kQuantity).textColor = marked ? Rgb(255, 0, 0) : kNormalColor;
    if (marked)
        for (int row = 1; row <= s.Grid2.RowCount(); ++row)
            s.Grid2.SetCell(row, line::kQuantity, -std::fabs(s.Grid2.Number(row, line::kQuantity)));
    RefreshTotals(s);
}

void TurnReturnMark(frmDj02& s) {
    if (!s.chkTh.value && !s.type.IsStocktake())
        for (int row = 1; row <= s.Grid2.RowCount(); ++row)
            if (const double quantity = s.Grid2.Number(row, line::kQuantity); quantity < 0)
                s.Grid2.SetCell(row, line::kQuantity, -quantity);
    SetReturnSign(s);
}

bool SpreadTaxRate(frmDj02& s) {
    const double rate = Val(s.txtTaxRate.text);
    if (rate < 0 || Reaches(rate, below::kTaxRate)) {
        Warn(s.title, "税率是 0 至 1 之间的小数，例如 0.13 ！");
        return false;
    }
    s.txtTaxRate.text = FormatFixed(rate, 4);
    if (!IsEditing(s.InHand()) || s.txtTaxRate.text == s.txtTaxRate.tag)
        return true; // only a change goes into the rows
    s.txtTaxRate.tag = s.txtTaxRate.text;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        s.Grid2.SetCell(row, line::kTaxRate, Val(s.txtTaxRate.text));
    return true;
}

bool SpreadDiscount(frmDj02& s) {
    const double discount = Val(s.txtZkl.text);
    if (discount < 0 || Reaches(discount, below::kDiscount)) {
        Warn(s.title, discount < 0 ? "折扣不能是负数！" : BoundText("折扣", below::kDiscount));
        return false;
    }
    if (discount == 0 || !IsEditing(s.InHand()) || s.txtZkl.text == s.txtZkl.tag)
        return true; // only a change goes into the rows
    s.txtZkl.tag = s.txtZkl.text;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        s.Grid2.SetCell(row, line::kDiscount, discount);
    RefreshTotals(s);
    return true;
}

} // namespace jxc
