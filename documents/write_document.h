// Header and lines of the document in hand into its book. The caller holds the transaction; errors are
// thrown.
#pragma once

#include <string>

#include "documents/frmDj02.h"

namespace jxc {

// Writes the header row of key s.oldInvID: over the stored one, or as a new row. It is not approved then.
std::string HeaderStatement(const frmDj02& s, const std::string& stem);
void WriteHeader(const frmDj02& s, const std::string& stem);
// Adds the line rows: one per grid row, again for a second warehouse, or the finished product's row of a kit
// document.
void WriteLines(const frmDj02& s, const std::string& stem);

} // namespace jxc
