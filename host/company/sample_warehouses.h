// Warehouses of the sample company, one of each kind.
#pragma once

#include <string_view>

#include "database/connection.h"

namespace jxc {

constexpr std::string_view kHeadOfficeWarehouse = "总部仓";

// Fills tJXC_Ck, empty before, on the caller's transaction. The retail warehouse posts its takings to the
// cash account, the consignment warehouse belongs to a consignee's card.
void FillSampleWarehouses(Connection& connection);

} // namespace jxc
