#include "tests/support/test_server.h"

#include <cstdio>
#include <cstdlib>

#include "database/connection.h"
#include "database/postgres_line.h"

namespace jxc::test {

std::string TestServer() {
    const char* uri = std::getenv("JXC_TEST_PG");
    return uri ? uri : "";
}

void OnServer(const std::string& command, const std::string& database) {
    const PostgresLine line =
        OpenLine({database.empty() ? TestServer() : AddressOnServer(database), "", "", ""});
    const PostgresResult result(PQexec(line.get(), command.c_str()));
    if (PQresultStatus(result.get()) != PGRES_COMMAND_OK)
        throw DatabaseError(command + ": " + ReasonOf(line));
}

std::string AddressOnServer(const std::string& database) {
    const std::string server = TestServer();
    return server + (server.find('?') == std::string::npos ? "?" : "&") + "dbname=" + database;
}

ServerDatabase::ServerDatabase(const std::string& name, const std::string& copied) : name_(name) {
    OnServer("create database " + name_ + " template " + copied + " encoding 'UTF8'");
}

ServerDatabase::~ServerDatabase() {
    try {
        OnServer("drop database if exists " + name_ + " with (force)");
    } catch (const DatabaseError& error) { // a server that is gone took the database with it
        std::fprintf(stderr, "%s\n", error.what());
    }
}

} // namespace jxc::test
