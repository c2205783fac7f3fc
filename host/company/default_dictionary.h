// The column dictionary of a new company: which columns the product list shows and how a document's columns
// print.
#pragma once

#include "database/connection.h"

namespace jxc {

// Writes rptListDetail (the product list) and tJXC_rptListDetail (document columns), which must be empty, on
// the caller's transaction. Prices are listed with `priceDecimals`.
//
// In tJXC_rptListDetail fieldID is the number of the entry grid's column, from 1; the always hidden discount
// (8) and key (16) have no row. FieldName_1 is the caption on stocktakes, FieldName_0 on all other documents;
// a column without caption is on the screen only.
void FillColumnDictionary(Connection& connection, int priceDecimals = 2);

} // namespace jxc
