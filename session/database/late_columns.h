// The columns and the table that databases of older versions lack. Who uses them calls this first.
#pragma once

#include <string_view>

namespace jxc {

// Adds `field` to `table` when the table has no such column; a column that is there is left alone. Only
// tJXC_Ck.fKhID and tJXC_CpTj02.fCpPjMemo are known; for any other, and for failures, a DatabaseError. Runs
// outside a transaction, on the session's connection.
void EnsureLateColumn(std::string_view table, std::string_view field);

// Creates a late table of the schema, with its indexes, in a company that lacks it; one that is there is left
// alone. A DatabaseError for a table that is not late, and for failures. Opens a transaction of its own on
// the session's connection.
void EnsureLateTable(std::string_view table);

} // namespace jxc
