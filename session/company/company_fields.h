// The company's header on every printout.
#pragma once

#include <string>

#include "database/recordset.h"

namespace jxc {

// Appends the company's name, addresses, numbers and accounts to the session's CompanyFieldList, alternating
// key and value, keys as "<text>" in the session's language. Without a company row nothing is added.
void CompanyFields();

// What a company's row calls it: its full name, the short one where it has no other.
std::string CompanyName(const Recordset& header);

} // namespace jxc
