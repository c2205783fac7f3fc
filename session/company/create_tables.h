// The DDL of a company, rendered from the schema for an engine.
#pragma once

#include <string>

#include "database/engine.h"

namespace jxc {

// One table with its indexes.
[[nodiscard]] std::string TableScript(const Engine& engine, const TableDef& table);
// All tables and indexes and what keeps the log of changes, as one script without transaction commands.
[[nodiscard]] std::string CompanyTablesScript(const Engine& engine);

} // namespace jxc
