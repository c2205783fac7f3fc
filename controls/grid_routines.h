// The small loops over a grid that screens share.
#pragma once

#include <string>

#include "controls/grid.h"

namespace jxc {

// Mode 1: with the last row selected or an empty grid a row is added at the end, with another row selected
// one is inserted below it, with none selected in a filled grid nothing happens. Other modes remove the
// selected row. The new row, or the one that took the removed one's place, is selected.
void GridAppendRow(Grid& grid, int mode);
double SumGridColumn(const Grid& grid, int column);
// The first row other than `row` whose column 1 equals the text; 0 when there is none.
int GridHasValue(const Grid& grid, int row, const std::string& text);
// Removes the rows whose column 1 is empty or whose `column` is 0.
void RemoveBlankRows(Grid& grid, int column);
// Those of them in which one of the two is typed, as people are told: they go, but not without a word. "" for none.
std::string HalfBlankRows(const Grid& grid, int column);
// Nothing with `skip`; otherwise sorts by the column, the same column again swaps the direction. The heading
// of the sorted column ends in "↑" or "↓", the mark of the one before goes.
void GridSort(Grid& grid, int column, bool skip = false);
// Takes the mark away: the rows were filled anew, in their own order.
void ClearSortMark(Grid& grid);

} // namespace jxc
