// The stock statistics worked out anew from the documents: posting keeps them up to date one document at a time, this throws
// them away and adds up every approved line.
#pragma once

#include <string>

#include "base/date.h"

namespace jxc {

// Fills tJXC_CkTj anew from the approved lines of the stock book that are dated up to `dateLimit`: one row for each product
// and warehouse that has such a line. Values are quantity x price x rate in home currency; the cost of issues is quantity x
// cost price. A sum that people read as nothing is nothing, whatever the binary fractions left of it. fMonth stays empty.
// In a transaction of its own. False when it failed: that has been told, headed by `title`, and the table is as before.
[[nodiscard]] bool RebuildStockStatistics(Date dateLimit, const std::string& title);

// Fills tJXC_CkTj_tmp, the cost of each product over all warehouses, anew from tJXC_CkTj, in a transaction of its own. Rows
// of a warehouse that is gone do not count. Tells its own failure, and then leaves the table as it was.
void RebuildOverallCost(const std::string& title);

// How many approved documents of the stock book are dated after the day, so that statistics up to it are without them.
[[nodiscard]] int ApprovedDocumentsAfter(Date dateLimit);

} // namespace jxc
