#include "documents/kept_lines.h"

namespace jxc {

KeptLines::KeptLines(Grid& grid)
    : grid_(grid), selectedRow_(grid.selectedRow), selectedColumn_(grid.selectedColumn) {
    for (int row = 1; row <= grid.RowCount(); ++row) {
        rows_.emplace_back();
        for (int column = 1; column <= grid.ColumnCount(); ++column)
            rows_.back().push_back(grid.Cell(row, column));
    }
}

// Cell by cell without formulas: their results were kept too.
void KeptLines::PutBack() {
    grid_.SetRowCount(static_cast<int>(rows_.size()));
    for (int row = 1; row <= grid_.RowCount(); ++row)
        for (int column = 1; column <= grid_.ColumnCount(); ++column)
            grid_.FillCell(row, column, rows_[static_cast<size_t>(row - 1)][static_cast<size_t>(column - 1)]);
    grid_.selectedRow = selectedRow_;
    grid_.selectedColumn = selectedColumn_;
}

} // namespace jxc
