// How the command line names a company: a file, or a postgresql:// address.
#pragma once

#include <string>

#include "session/lzjxc.h"

namespace jxc {

// 0 for a file (SQLite, the Jet form of statements), 1 for an address (PostgreSQL, the SQL Server form).
int DialectOf(const std::string& company);
// The address without a password, for people to see and for what is written down; a file as it is.
std::string WithoutPassword(const std::string& company);
// Points the control at the company.
void UseCompany(lzJxc& control, const std::string& company);

// The session's connection open on the company for its lifetime; to look only, the company may be read-only
// and is left as it is. A DatabaseError when it cannot be opened.
enum class OpenFor { Work, Looking };
class OpenCompany {
  public:
    explicit OpenCompany(const std::string& company, OpenFor purpose = OpenFor::Work);
    ~OpenCompany();
    OpenCompany(const OpenCompany&) = delete;
    OpenCompany& operator=(const OpenCompany&) = delete;
};

} // namespace jxc
