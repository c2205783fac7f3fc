// Versions of a company's tables. A company says which it has; the program knows one and raises older ones.
#pragma once

#include "database/connection.h"

namespace jxc {

// 1: late columns and tables are there. 2: changes of products and cards are noted, there
// is a trail, users have pass words. 3: kit templates say that plans count them. 4: templates of
// printed documents are kept. 5: a company may be warned of negative stock.
inline constexpr int kCompanyVersion = 6;

// A DatabaseError for a company that a newer program has written, and for another program's database.
void RequireKnownVersion(Connection& connection);

// Raises an older company, all or nothing, in a transaction of its own; leaves others alone. A user who may
// not change tables gets a DatabaseError that says who can.
void RaiseCompany(Connection& connection);

} // namespace jxc
