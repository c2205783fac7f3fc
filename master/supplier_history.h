// Which supplier sold a product at what price and when (tJXC_CpGys).
#pragma once

#include <string>

#include "base/date.h"

namespace jxc {

// Adds an approved receipt's lines to the history, or with `reversal` takes them out. Inside the caller's
// transaction, which stays usable when this fails. "" on success, else the warning for the user: the caller
// shows it when the transaction is over, since other users wait for its end.
std::string RefreshSupplierByDocument(const std::string& number, bool reversal);

// Reads the history from a date on anew from the approved receipts, and sets each product's supplier
// (tJXC_Cp) to that of its latest purchase. Without a transaction: what was done before a failure stands, and
// a repeat mends it. A failure is told to the user and gives false.
bool RefreshSupplierAll(Date from);

} // namespace jxc
