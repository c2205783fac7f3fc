// The execute command: the checks of a purchase plan, its question, and the orders.

#include "controls/bounds.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "plans/frmJh02.h"
#include "plans/plan_orders.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

namespace {

// The first row of which that is so; 0 for none.
int RowOf(const Grid& grid, const std::function<bool(int row)>& isSo) {
    for (int row = 1; row <= grid.RowCount(); ++row)
        if (isSo(row))
            return row;
    return 0;
}

void PutCursor(frmJh02& s, int row, int column) {
    s.Grid1.selectedRow = row;
    s.Grid1.selectedColumn = column;
    ShowSupplier(s);
    s.MoveFocus(&s.Grid1);
}

// A figure that no order takes: nobody orders less than nothing.
bool FiguresFit(frmJh02& s) {
    const Grid& grid = s.Grid1;
    const int negative = RowOf(grid, [&](int row) { return grid.Number(row, plan::kNeeded) < 0; });
    if (negative > 0) {
        Warn(s.title, "第 " + std::to_string(negative) + " 行：“实际数”必须大于 0！");
        PutCursor(s, negative, plan::kNeeded);
        return false;
    }
    const int beyond = RowOf(grid, [&](int row) { return grid.ColumnOutOfBounds(row) > 0; });
    if (beyond == 0)
        return true;
    const GridColumn& column = grid.Column(grid.ColumnOutOfBounds(beyond));
    Warn(s.title, "第 " + std::to_string(beyond) + " 行" + BoundText(column.caption, column.below));
    PutCursor(s, beyond, plan::kNeeded);
    return false;
}

bool SuppliersGiven(frmJh02& s) {
    const int without = RowOf(s.Grid1, [&](int row) { return s.Grid1.Text(row, plan::kSupplier).empty(); });
    if (without == 0)
        return true;
    Inform(s.title, "请设置每一记录的产品供应商！");
    PutCursor(s, without, plan::kSupplier);
    return false;
}

// By name, and by card where two have the same name: each supplier's rows stand together.
void SortBySupplier(Grid& grid) {
    ClearSortMark(grid);
    grid.Sort(plan::kSupplierId, true);
    grid.sortedColumn = 0;
    GridSort(grid, plan::kSupplier);
}

std::vector<PlannedLine> LinesOf(const Grid& grid) {
    std::vector<PlannedLine> lines;
    for (int row = 1; row <= grid.RowCount(); ++row)
        lines.push_back({.row = row,
                         .code = grid.Text(row, plan::kCode),
                         .product = grid.Cell(row, plan::kProduct).AsLong(),
                         .supplierName = grid.Text(row, plan::kSupplier),
                         .supplier = grid.Cell(row, plan::kSupplierId).AsLong(),
                         .quantity = grid.Number(row, plan::kNeeded),
                         .price = grid.Number(row, plan::kPrice),
                         .amount = grid.Number(row, plan::kAmount)});
    return lines;
}

// The orders in one transaction, in which nobody is asked; the person is told to wait as long as it lasts.
PlannedOrders InTransaction(const frmJh02& s) {
    const ProgressEnds progressEnds;
    CurrentView().ShowProgress("正在转化采购订单", 0, s.Grid1.RowCount());
    const std::vector<PlannedLine> lines = LinesOf(s.Grid1);
    Transaction transaction(Conn());
    PlannedOrders orders = WriteOrders(lines);
    if (orders.refusal.empty())
        transaction.Commit();
    return orders;
}

void Convert(frmJh02& s) {
    SortBySupplier(s.Grid1);
    ShowSupplier(s);
    try {
        const PlannedOrders orders = InTransaction(s);
        if (!orders.refusal.empty())
            return Warn(s.title, orders.refusal);
        s.touched = false;
        Inform(s.title, "采购订单转化完毕，共生成 " + std::to_string(orders.count) + "张单据。");
    } catch (const CommitUnknown& error) {
        WarnOfFailure(s.title, CommitUnknownText(s.title, "转化"), CauseOf(error));
    } catch (const DatabaseError& error) {
        WarnOfFailure(s.title, std::string("存盘错误：") + error.what() + "\n操作已经取消！", CauseOf(error));
    }
}

} // namespace

void ExecutePlan(frmJh02& s) {
    if (s.IsProduction())
        return Inform(s.title, "请将本[生产计划单]打印后，根据本单制作[生产组装单]。");
    RemoveBlankRows(s.Grid1, plan::kNeeded);
    if (s.Grid1.RowCount() == 0 || !FiguresFit(s) || !SuppliersGiven(s))
        return;
    if (AskOkCancel(s.title,
                    "本操作将列表中的所有实际计划需求数，转化为多张“采购订单”，分别对应不同的供应商。"
                    "继续？"))
        Convert(s);
}

} // namespace jxc
