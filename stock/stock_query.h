// The query of the stock screen and its grid.
#pragma once

#include "stock/frmCkKc.h"

namespace jxc {

// The columns for the question asked; the grid has no rows then.
void SetUpStockGrid(frmCkKc& s);
// Hides the columns that the question or the detail box does not want.
void HideStockColumns(frmCkKc& s);
// Runs the query and fills the grid; says so when nothing matched.
void QueryStock(frmCkKc& s);
// Sets the alarm's row colours from stock and limits.
void ColorRows(frmCkKc& s);

} // namespace jxc
