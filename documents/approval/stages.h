// The stages of approval and reversal. Each works inside the caller's transaction, reads what it needs of the
// document in hand, and throws DatabaseError on failure.
#pragma once

#include <cstdint>
#include <string>

#include "documents/frmDj02.h"

namespace jxc {

// Lowers the balance of the order that the document refers to by its quantities; a reversal raises it.
// Balances end at 0 at least. A DatabaseError when the order is gone.
void PostOrderBalance(const frmDj02& s, bool reversal);
// Marks the order's line of the assembled product as produced, if both are there.
void MarkProduced(const frmDj02& s);

// Moves the stock counters of the document's lines, warehouse by warehouse (tJXC_CkTj).
void PostStock(const frmDj02& s, bool reversal);
// Works out the whole-moving price of each product received (tJXC_CkTj_tmp). Runs after PostStock.
void PostOverallCost(const frmDj02& s, bool reversal);
// Writes the cost of each line issued (fInvDJ2) by the cost method.
void ReadCostPrice(const frmDj02& s);

// One entry of the host's ledger: a customer's (kind 0) or a money account's (kind 1), or its removal.
void PostAccountEntry(const frmDj02& s, int kind, int direction, std::int64_t company, bool reversal);

} // namespace jxc
