#include "bench/server.h"

#include <libpq-fe.h>

#include "session/database/connection.h"

namespace jxc::bench {

void OnServer(const std::string& server, const std::string& command) {
    PGconn* connection = PQconnectdb(server.c_str());
    PGresult* result = PQexec(connection, command.c_str());
    const bool succeeded = PQresultStatus(result) == PGRES_COMMAND_OK;
    const std::string reason = PQerrorMessage(connection);
    PQclear(result);
    PQfinish(connection);
    if (!succeeded)
        throw DatabaseError(command + ": " + reason);
}

std::string AddressOnServer(const std::string& server, const std::string& database) {
    return server + (server.find('?') == std::string::npos ? "?" : "&") + "dbname=" + database;
}

} // namespace jxc::bench
