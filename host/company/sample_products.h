// Products and kit templates of the sample company.
#pragma once

#include "database/connection.h"

namespace jxc {

// Fills tJXC_Cp, the entries of its three code lists in briefDetail (locations, categories, places of
// origin), and the kit templates tJXC_CpTj01 and tJXC_CpTj02. Products and templates must not exist yet. Runs
// on the caller's transaction.
void FillSampleProducts(Connection& connection);

} // namespace jxc
