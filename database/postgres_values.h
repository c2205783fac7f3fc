// Values as PostgreSQL writes and reads them in its text form.
#pragma once

#include <libpq-fe.h>

#include <string>

#include "database/connection.h"

namespace jxc {

// Types a parameter can be sent as; kUntyped takes the type of what it meets.
constexpr Oid kUntyped = 0, kInt4 = 23, kNumeric = 1700, kTimestamp = 1114;

// Not for null.
std::string ServerText(const Value& value);
Rows RowsOf(const PGresult* result);

} // namespace jxc
