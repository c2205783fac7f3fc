// Which supplier sold a product at what price and when (tJXC_CpGys).
#pragma once

#include <string>

namespace jxc {

// Adds an approved receipt's lines to the history, or with `reversal` takes them out. Inside the caller's
// transaction, which stays usable when this fails: the failure is told to the user and gives false.
bool RefreshSupplierByDocument(const std::string& number, bool reversal);

} // namespace jxc
