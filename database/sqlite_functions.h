// The functions of the language that SQLite does not have.
#pragma once

struct sqlite3;

namespace jxc {

// jxc_ccur: four decimals, halves to even; jxc_money: four decimals, halves away from zero; jxc_isnumeric: 1
// or 0.
void AddSqliteFunctions(sqlite3* db);

} // namespace jxc
