// The stages of approval and reversal. Each works inside the caller's transaction on a stored document, and throws
// DatabaseError on failure.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "database/connection.h"
#include "documents/document_data.h"

namespace jxc {

// Lowers the balance of the order that the document refers to by its quantities; a reversal raises it.
// Balances end at 0 at least. A DatabaseError when the order is gone.
std::string OrderStatement(const std::string& orderNumber); // with which the order is found
void PostOrderBalance(const DocumentData& document, bool reversal);
// Marks the order's line of the assembled product as produced, if both are there.
void MarkProduced(const DocumentData& document);

// Moves the stock counters of the document's lines, warehouse by warehouse (tJXC_CkTj).
void PostStock(const DocumentData& document, bool reversal);
// The statements with which PostStock reads the lines and stock of a document that is still as it was loaded, none where
// it does not run.
std::vector<Connection::Expected> StockStatements(const DocumentData& document,
                                                  const StoredDocument& asLoaded);
// Works out the whole-moving price of each product received (tJXC_CkTj_tmp). Runs after PostStock.
void PostOverallCost(const DocumentData& document, bool reversal);
std::string OverallLinesStatement(const DocumentData& document); // with which it reads the lines
// Writes the cost of each line issued (fInvDJ2) by the cost method.
void ReadCostPrice(const DocumentData& document);

// The series of numbers from which the type's account entries take theirs, 0 without entries.
int AccountSeries(const TypeRow& type);
// The rule of their numbers, "" without entries.
std::string AccountRule(const TypeRow& type);
// The text (fBrief) by which an entry is known as an approval's; others are the host's own.
inline constexpr const char* kPlacedByApproval = "自动挂入";
// Whose an entry is (fType1).
enum class AccountKind { Customer = 0, Money = 1 };
// What it says of the money (fType2): it comes in or is owed to the house, or it goes out or is owed by it.
namespace EntrySide {
constexpr int In = 1;
constexpr int Out = 2;
} // namespace EntrySide
// One entry of the host's ledger, or its removal.
void PostAccountEntry(const DocumentData& document, AccountKind kind, int side, std::int64_t company,
                      bool reversal);

} // namespace jxc
