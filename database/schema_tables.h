// The two halves of the schema, joined by schema.cpp.
#pragma once

#include <vector>

#include "database/schema.h"

namespace jxc {

void AddOwnTables(std::vector<TableDef>& tables);
void AddHostTables(std::vector<TableDef>& tables);

} // namespace jxc
