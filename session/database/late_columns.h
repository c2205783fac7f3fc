// The two columns that databases of older versions lack. The screens that own them call this as they open.
#pragma once

#include <string_view>

namespace jxc {

// Adds `field` to `table` when the table has no such column; a column that is there is left alone. Only
// tJXC_Ck.fKhID and tJXC_CpTj02.fCpPjMemo are known; for any other, and for failures, a DatabaseError. Runs
// outside a transaction, on the session's connection.
void EnsureLateColumn(std::string_view table, std::string_view field);

} // namespace jxc
