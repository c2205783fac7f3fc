// What must always be true of a company's books, whatever was done to them.
#pragma once

#include <string>
#include <vector>

#include "session/database/connection.h"

namespace jxc {

// Checks on the open session connection, which it only reads: stock counters against a recount of the
// approved lines, numbers and keys used twice, lines without a header, pairs without a partner, account
// entries without their document. A line per violation.
std::vector<std::string> CheckCompany();

} // namespace jxc
