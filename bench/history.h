// A past of approved receipts: documents, stock, prices, supplier history and account entries, as if they had
// been entered day by day before the books' first day.
#pragma once

#include "bench/receipt.h"
#include "database/connection.h"

namespace jxc::bench {

// Fills an open sample company without documents with `documents` receipts of ten lines, a hundred a day, and
// lets the engine look at what it holds now. Throws DatabaseError.
void FillHistory(Connection& company, bool postgres, const Trade& trade, int documents);

} // namespace jxc::bench
