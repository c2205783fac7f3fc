// The stages of approval and reversal. Each works inside the caller's transaction, reads what it needs of the
// document in hand, and throws DatabaseError on failure.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "database/connection.h"
#include "documents/frmDj02.h"

namespace jxc {

// Lowers the balance of the order that the document refers to by its quantities; a reversal raises it.
// Balances end at 0 at least. A DatabaseError when the order is gone.
std::string OrderStatement(const std::string& orderNumber); // with which the order is found
void PostOrderBalance(const frmDj02& s, bool reversal);
// Marks the order's line of the assembled product as produced, if both are there.
void MarkProduced(const frmDj02& s);

// Moves the stock counters of the document's lines, warehouse by warehouse (tJXC_CkTj).
void PostStock(const frmDj02& s, bool reversal);
// The statements with which PostStock reads lines and stock, none where it does not run.
std::vector<Connection::Expected> StockStatements(const frmDj02& s);
// Works out the whole-moving price of each product received (tJXC_CkTj_tmp). Runs after PostStock.
void PostOverallCost(const frmDj02& s, bool reversal);
std::string OverallLinesStatement(const frmDj02& s); // with which it reads the lines
// Writes the cost of each line issued (fInvDJ2) by the cost method.
void ReadCostPrice(const frmDj02& s);

// The series of numbers from which the type's account entries take theirs, 0 without entries.
int AccountSeries(const TypeRow& type);
// The text (fBrief) by which an entry is known as an approval's; others are the host's own.
inline constexpr const char* kPlacedByApproval = "自动挂入";
// One entry of the host's ledger: a customer's (kind 0) or a money account's (kind 1), or its removal.
void PostAccountEntry(const frmDj02& s, int kind, int direction, std::int64_t company, bool reversal);

} // namespace jxc
