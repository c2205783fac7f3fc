// The DDL of a company, rendered from the schema for an engine.
#pragma once

#include <string>

#include "database/engine.h"

namespace jxc {

// One table with its indexes.
[[nodiscard]] std::string TableScript(const Engine& engine, const TableDef& table);
// The index at that place of a table that stands; one that is there already is left alone where it may be there.
[[nodiscard]] std::string IndexScript(const Engine& engine, const TableDef& table, size_t place,
                                      bool mayStand);
// All tables and indexes and what keeps the log of changes, as one script without transaction commands.
[[nodiscard]] std::string CompanyTablesScript(const Engine& engine);

} // namespace jxc
