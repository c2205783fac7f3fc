// An outer join keeps rows whose partner is missing, with nulls in its place. A condition that no null
// satisfies throws those rows away again; the join may then as well be an inner one, which an engine can
// start from either side.
#pragma once

#include "database/statement_tree.h"

namespace jxc {

// Turns the outer joins of `from` into inner ones as far as `where` allows it.
void MakeJoinsInner(Source& from, const Node& where);

} // namespace jxc
