// A copy of a company, taken while others work on it.
#pragma once

#include <string>

namespace jxc {

// Writes the company, a file, to `file`, which must not exist yet, and proves that the copy can be read. A
// company on a database server has the server's own tools: a DatabaseError says so. Nothing half written stays.
void BackUpCompany(const std::string& company, const std::string& file);
// The way back: makes the company `company`, which must not exist yet, from a copy.
void RestoreCompany(const std::string& file, const std::string& company);

} // namespace jxc
