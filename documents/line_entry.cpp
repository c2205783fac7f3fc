// Lines: products found by code or name, prices and stock, signs of returns, totals.

#include <cmath>

#include "controls/text.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "session/database/routines.h"
#include "session/edit_filter.h"
#include "session/grid_routines.h"
#include "session/lookups.h"
#include "session/session.h"

namespace jxc {

namespace {

// The warehouse whose stock the lines show; "" when the document has none.
std::string StockWarehouse(const frmDj02& s) {
    return s.type.HasFirstWarehouse() ? s.cboCkName.Chosen() : "";
}

// Prices come into the cells as people write them, with two decimals.
double PriceAsShown(double price) {
    return Val(FormatFixed(price, 2));
}

void ClearRow(Grid& grid, int row) {
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        grid.SetCell(row, column, Value());
}

void SetRates(frmDj02& s, int row) {
    s.Grid2.SetCell(row, line::kDiscount, Val(s.txtZkl.text));
    s.Grid2.SetCell(row, line::kTaxRate, Val(s.txtTaxRate.text));
}

void FillProduct(frmDj02& s, int row, const ProductSought& found, std::int32_t id) {
    Grid& grid = s.Grid2;
    SetRates(s, row);
    grid.SetCell(row, line::kCode, found.code);
    grid.SetCell(row, line::kName, NameAndSpec(found.name, found.spec));
    grid.SetCell(row, line::kUnit, found.unit);
    grid.SetCell(row, line::kStock, found.stock);
    if (s.type.fSetDjType1 >= 1 && s.type.fSetDjType1 <= 4)
        grid.SetCell(row, line::kReference, PriceAsShown(found.price[s.type.fSetDjType1 - 1]));
    if (s.type.fSetDjType2 >= 1 && s.type.fSetDjType2 <= 4)
        grid.SetCell(row, line::kPrice, PriceAsShown(found.price[s.type.fSetDjType2 - 1]));
    grid.SetCell(row, line::kProduct, std::int64_t{id});
}

// The code or name typed into a row finds its product.
void LeaveProductCell(frmDj02& s, int row, int column) {
    Grid& grid = s.Grid2;
    ProductSought sought;
    const std::string typed = Trim(grid.Text(row, column));
    if (!CheckNoQuote(typed))
        return ClearRow(grid, row);
    grid.SetCell(row, column == line::kCode ? line::kName : line::kCode, Value());
    (column == line::kCode ? sought.code : sought.name) = typed;
    sought.warehouse = StockWarehouse(s);
    sought.stock = 0;
    std::int32_t id = 0;
    try {
        id = FindProduct(sought);
    } catch (...) {
        ClearRow(grid, row); // a row never keeps a product that its code does not name
        throw;
    }
    if (id == 0)
        return ClearRow(grid, row);
    if (const int other = GridHasValue(grid, row, sought.code); other > 0) {
        Inform(s.title, "该产品已有输入！");
        ClearRow(grid, row);
        grid.selectedRow = other;
        return;
    }
    FillProduct(s, row, sought, id);
}

void LeaveQuantityCell(frmDj02& s, int row) {
    Grid& grid = s.Grid2;
    const double quantity = grid.Number(row, line::kQuantity);
    if (s.chkTh.value) {
        grid.SetCell(row, line::kQuantity, -std::fabs(quantity));
    } else if (quantity == 0) {
        for (const int column : {line::kUnit, line::kName, line::kCode})
            grid.SetCell(row, column, Value());
    }
}

bool MayAddLine(const frmDj02& s) {
    if (s.parameters.maxRows == 0 || s.Grid2.RowCount() < s.parameters.maxRows)
        return true;
    Inform(s.title, "单据最多 " + std::to_string(s.parameters.maxRows) + " 行！");
    return false;
}

} // namespace

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

void RefreshRowStock(frmDj02& s, int row) {
    Grid& grid = s.Grid2;
    const auto product = static_cast<std::int32_t>(grid.Cell(row, line::kProduct).AsLong());
    if (product == 0)
        return;
    grid.SetCell(row, line::kStock, GetStockQty(StockWarehouse(s), product));
    const std::string field = PriceField(s.type.fSetDjType1);
    if (field.empty())
        return;
    const std::string price =
        DbScalar("Select " + field + " From tJXC_Cp Where fCpID=" + std::to_string(product));
    grid.SetCell(row, line::kReference, Val(price));
}

void RefreshGridStock(frmDj02& s) {
    if (!IsEditing(s.InHand()))
        return;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        RefreshRowStock(s, row);
    RefreshTotals(s);
}

void RefreshTotals(frmDj02& s) {
    s.txtSum.text = FormatFixed(DocumentTotal(s.Grid2), 2);
    s.txtSum2.text = FormatFixed(s.type.fSetDjType1 == -1 ? 0 : ReferenceTotal(s.Grid2), 2);
}

void SetReturnSign(frmDj02& s) {
    const bool marked = s.chkTh.value;
    s.lblTh.visible = s.shpTh.visible = marked;
    s.Grid2.Column(line::kQuantity).textColor = marked ? Rgb(255, 0, 0) : kNormalColor;
    if (marked)
        for (int row = 1; row <= s.Grid2.RowCount(); ++row)
            s.Grid2.SetCell(row, line::kQuantity, -std::fabs(s.Grid2.Number(row, line::kQuantity)));
    RefreshTotals(s);
}

void SpreadTaxRate(frmDj02& s) {
    s.txtTaxRate.text = FormatFixed(Val(s.txtTaxRate.text), 4);
    if (!IsEditing(s.InHand()) || s.txtTaxRate.text == s.txtTaxRate.tag)
        return; // only a change goes into the rows
    s.txtTaxRate.tag = s.txtTaxRate.text;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        s.Grid2.SetCell(row, line::kTaxRate, Val(s.txtTaxRate.text));
}

void SpreadDiscount(frmDj02& s) {
    const double discount = Val(s.txtZkl.text);
    if (discount == 0 || !IsEditing(s.InHand()))
        return;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        s.Grid2.SetCell(row, line::kDiscount, discount);
    RefreshTotals(s);
}

} // namespace jxc
