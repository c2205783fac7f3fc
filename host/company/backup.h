// A copy of a company, taken while others work on it.
#pragma once

#include <string>

namespace jxc {

// Both look through the source and the copy with the engine's own check. A copy has mode 0600 from its first
// byte, and its name only when it is complete and on disk; nothing half written stays. Sources may be
// read-only. All failures are DatabaseErrors.

// Writes the company, a file, to `file`, which must not exist yet, and notes in it what it holds. A damaged
// company is written to `file` + ".damaged" instead, and a DatabaseError tells the damage and this name. A
// company on a database server has the server's own tools: a DatabaseError says so.
void BackUpCompany(const std::string& company, const std::string& file);
// The way back: makes the company `company`, which must not exist yet, from a copy. A damaged copy is refused.
void RestoreCompany(const std::string& file, const std::string& company);

} // namespace jxc
