// Lines to a PostgreSQL server and the results that come over them, each with its owner: how one is opened, and what the
// server says in plain words.
#pragma once

#include <libpq-fe.h>

#include <memory>
#include <string>

namespace jxc {

// Where the database is and who logs in: `path` a libpq URI or a host or socket directory; the others may be
// empty.
struct ServerAddress {
    std::string path, password, user, database;
};

struct PostgresDeleter {
    void operator()(PGconn* line) const { PQfinish(line); }
    void operator()(PGresult* result) const { PQclear(result); }
    void operator()(PGcancel* cancel) const { PQfreeCancel(cancel); }
    void operator()(PQconninfoOption* options) const { PQconninfoFree(options); }
    void operator()(char* text) const { PQfreemem(text); }
};
using PostgresLine = std::unique_ptr<PGconn, PostgresDeleter>;
using PostgresResult = std::unique_ptr<PGresult, PostgresDeleter>;
using PostgresCancel = std::unique_ptr<PGcancel, PostgresDeleter>;
using PostgresOptions = std::unique_ptr<PQconninfoOption, PostgresDeleter>;
using PostgresText = std::unique_ptr<char, PostgresDeleter>;

// A line, which may have failed (RequireLine). An address that cannot be read is a DatabaseError.
[[nodiscard]] PostgresLine OpenLine(const ServerAddress& address);

// A line that failed is a LoginError where the server does not let the user in, otherwise a DatabaseError with the reason.
void RequireLine(const PostgresLine& line);

// What the library says last of the line, without the line ends behind it.
[[nodiscard]] std::string ReasonOf(const PostgresLine& line);

// What the server says first of a failure: its main line; "" when it says nothing.
[[nodiscard]] std::string ReasonOf(const PGresult* result);

} // namespace jxc
