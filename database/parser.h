// From the tokens of a statement to its tree. What the language does not have is refused with the place it
// stands at.
#pragma once

#include <span>

#include "database/statement_tree.h"

namespace jxc {

// Throws DatabaseError.
[[nodiscard]] StatementTree ParseStatement(std::span<const Token> tokens);

} // namespace jxc
