// The code lists of a new company.
#pragma once

#include "database/connection.h"

namespace jxc {

// Fills Brief with the heads of the system's lists (summaries of documents, locations, categories and places
// of origin of products, line notes, the list of lists) and briefDetail with the entries that suit any trade.
// Both must be empty. Runs on the caller's transaction.
void FillCodeLists(Connection& connection);

} // namespace jxc
