// Opening a company's database by the four texts a host hands over.
#pragma once

#include <memory>
#include <string>

#include "database/connection.h"

namespace jxc {

// Opens `connection` on the company's database.
// `dialect` 0: statements come in the Jet form and run on the SQLite file `path` (which must exist; see
// schema.h for a new one); `password`, `user` and `defaultName` are not needed. Any other value: the SQL
// Server form on PostgreSQL; `path` is a libpq URI ("postgresql://...") or a host or socket directory,
// `defaultName` the database, `user` and `password` the log-in (empty ones leave the URI's). Returns 0. A
// file that is missing, unreadable or no database, a server that does not answer or refuses the log-in, or a
// database without the system's tables throws DatabaseError with a text for people and leaves `connection`
// closed. So does a company that a newer program has written; one of an older version is raised.
int OpenConnection(int dialect, Connection& connection, const std::string& path, const std::string& password,
                   const std::string& user, const std::string& defaultName);

// Opens it on the company of the session's properties.
void OpenOfSession(Connection& connection);

// The same to look only: nothing is raised or written, and the file may be read-only. `path` as the command
// line names a company.
void OpenToRead(int dialect, Connection& connection, const std::string& path);

} // namespace jxc
