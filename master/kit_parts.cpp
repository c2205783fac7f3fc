// The parts of a template as they are typed: products found by code or name, none twice.

#include "base/text.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "forms/edit_filter.h"
#include "forms/suggest.h"
#include "master/frmCpTj.h"
#include "session/lookups/find_by_text.h"
#include "session/session.h"

namespace jxc {

namespace {

// Quantity and note of the row stay: another part may take its place.
void EmptyPart(Grid& grid, int row) {
    for (const int column : {part::kCode, part::kName, part::kUnit, part::kStock, part::kRetail, part::kCost,
                             part::kAmount, part::kProduct})
        grid.SetCell(row, column, Value());
}

// What was typed is gone, and must not be gone unseen by a person who types on.
void HoldCursor(Grid& grid, int row, int column) {
    grid.refusedRow = row;
    grid.selectedRow = row;
    grid.selectedColumn = column;
}

void FillPart(Grid& grid, int row, std::int32_t id, const ProductSought& found) {
    grid.SetCell(row, part::kCode, found.code);
    grid.SetCell(row, part::kName, found.name + (found.spec.empty() ? "" : "/" + found.spec));
    grid.SetCell(row, part::kUnit, found.unit);
    grid.SetCell(row, part::kStock, found.stock);
    grid.SetCell(row, part::kRetail, found.price[3]);
    grid.SetCell(row, part::kCost, found.price[0]);
    grid.SetCell(row, part::kProduct, std::int64_t{id});
}

void LeaveProductCell(frmCpTj& s, int row, int column) {
    Grid& grid = s.Grid2;
    const std::string typed = Trim(grid.Text(row, column));
    EmptyPart(grid, row);
    if (typed.empty())
        return;
    if (!CheckNoQuote(typed))
        return HoldCursor(grid, row, column);
    ProductSought sought{.warehouse = s.cboCk.Chosen(), .stock = 0};
    (column == part::kCode ? sought.code : sought.name) = typed;
    std::int32_t id = 0;
    {
        const SelectedProductStays kit;
        id = FindProduct(sought);
    }
    if (id == 0) {
        HoldCursor(grid, row, column);
        return CurrentView().Signal("没有找到产品“" + typed + "”，该行已清空。");
    }
    if (GridHasValue(grid, row, sought.code) > 0) {
        HoldCursor(grid, row, part::kCode);
        return Inform(s.title, "该产品已有输入！");
    }
    FillPart(grid, row, id, sought);
}

void LeaveQuantityCell(frmCpTj& s, int row) {
    Grid& grid = s.Grid2;
    const double quantity = grid.Number(row, part::kQuantity);
    if (quantity < 0) {
        grid.SetCell(row, part::kQuantity, Value());
        HoldCursor(grid, row, part::kQuantity);
        return Warn(s.title, "数量不能是负数！");
    }
    if (quantity != 0)
        return;
    EmptyPart(grid, row);
    HoldCursor(grid, row, part::kCode);
    CurrentView().Signal("数量为 0，该行的产品已清空。");
}

void LeaveCell(frmCpTj& s, int row, int column) {
    if (column == part::kCode || column == part::kName)
        LeaveProductCell(s, row, column);
    else if (column == part::kQuantity)
        LeaveQuantityCell(s, row);
}

// Behind the last row, unless that waits for its part.
void AppendPart(frmCpTj& s) {
    Grid& grid = s.Grid2;
    const int last = grid.RowCount();
    if (!s.IsTyping() || (last > 0 && grid.Text(last, part::kCode).empty()))
        return;
    grid.InsertRow(last + 1);
    grid.selectedRow = last + 1;
    grid.selectedColumn = part::kCode;
}

} // namespace

void WireParts(frmCpTj& s) {
    s.Grid2.onCellLeave = [&s](int row, int column) { LeaveCell(s, row, column); };
    s.Grid2.onCellChange = [&s](int, int column) {
        if (column == part::kAmount)
            RefreshTotal(s);
    };
    s.Grid2.onEnterKey = [&s] { AppendPart(s); };
    SuggestProductsIn(s.Grid2, {.code = part::kCode,
                                .name = part::kName,
                                .warehouse = [&s] { return s.cboCk.Chosen(); },
                                .priceField = [] { return "fCpPrice0"; }});
    s.cmdAddRow.onClick = [&s] {
        GridAppendRow(s.Grid2, 1);
        s.Grid2.selectedColumn = part::kCode;
        s.MoveFocus(&s.Grid2);
    };
    s.cmdDeleteRow.onClick = [&s] {
        GridAppendRow(s.Grid2, 2);
        RefreshTotal(s);
    };
    s.cboCk.onChoose = [&s] {
        s.chkCk.value = s.cboCk.Index() >= 0;
        RefreshPartStock(s);
    };
    s.chkCk.onChange = [&s] {
        s.cboCk.SetIndex(s.chkCk.value && !s.cboCk.items.empty() ? 0 : -1);
        RefreshPartStock(s);
    };
}

} // namespace jxc
