#include "controls/grid_routines.h"

#include <algorithm>

namespace jxc {

namespace {

const std::string kUp = "↑";
const std::string kDown = "↓";

void RemoveMark(std::string& caption) {
    for (const std::string& mark : {kUp, kDown})
        if (caption.ends_with(mark))
            caption.resize(caption.size() - mark.size());
}

} // namespace

void GridAppendRow(Grid& grid, int mode) {
    if (mode != 1) {
        if (grid.selectedRow > 0)
            grid.RemoveRow(grid.selectedRow);
        return;
    }
    if (grid.RowCount() > 0 && grid.selectedRow == 0)
        return;
    const int at = grid.selectedRow + 1;
    grid.InsertRow(at);
    grid.selectedRow = at;
}

double SumGridColumn(const Grid& grid, int column) {
    double sum = 0;
    for (int row = 1; row <= grid.RowCount(); ++row)
        sum += grid.Number(row, column);
    return sum;
}

int GridHasValue(const Grid& grid, int row, const std::string& text) {
    for (int other = 1; other <= grid.RowCount(); ++other)
        if (other != row && grid.Text(other, 1) == text)
            return other;
    return 0;
}

void RemoveBlankRows(Grid& grid, int column) {
    for (int row = grid.RowCount(); row >= 1; --row)
        if (grid.Text(row, 1).empty() || grid.Number(row, column) == 0)
            grid.RemoveRow(row);
}

std::string HalfBlankRows(const Grid& grid, int column) {
    std::string rows;
    for (int row = 1; row <= grid.RowCount(); ++row) {
        const std::string code = grid.Text(row, 1);
        if (code.empty() != (grid.Number(row, column) == 0))
            rows += (rows.empty() ? "第 " : "、第 ") + std::to_string(row) + " 行" +
                    (code.empty() ? "（没有产品）" : "（" + code + "，没有数量）");
    }
    return rows;
}

void GridSort(Grid& grid, int column, bool skip) {
    if (skip)
        return;
    const bool ascending = !(grid.sortedColumn == column && grid.sortedAscending);
    ClearSortMark(grid);
    grid.Sort(column, ascending);
    grid.Column(column).caption += ascending ? kUp : kDown;
}

void ClearSortMark(Grid& grid) {
    if (grid.sortedColumn > 0)
        RemoveMark(grid.Column(grid.sortedColumn).caption);
    grid.sortedColumn = 0;
}

} // namespace jxc
