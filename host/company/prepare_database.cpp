#include "host/company/prepare_database.h"

#include <libpq-fe.h>
#include <unistd.h>

#include <iostream>
#include <memory>

#include "database/connection.h"
#include "database/server_address.h"

namespace jxc {

namespace {

using Line = std::unique_ptr<PGconn, decltype(&PQfinish)>;
using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

// The line to the database of the address, or to another of the same server.
Line Connect(const std::string& address, const char* database) {
    const char* const names[] = {"dbname", "dbname", "connect_timeout", nullptr};
    const std::string readable = ReadableAddress(address);
    const char* const values[] = {readable.c_str(), database, "10", nullptr};
    return Line(PQconnectdbParams(names, values, 1), PQfinish);
}

std::string ReasonOf(PGconn* line) {
    std::string reason = PQerrorMessage(line);
    while (!reason.empty() && reason.back() == '\n')
        reason.pop_back();
    return reason;
}

// Why a line could not be had is told in the server's language only: the server's list of databases knows.
bool IsMissing(const std::string& address, PGconn* line) {
    if (PQstatus(line) == CONNECTION_OK)
        return false;
    const Line other = Connect(address, "postgres");
    const char* const name[] = {PQdb(line)};
    const Result found(PQexecParams(other.get(), "select 1 from pg_database where datname = $1", 1, nullptr,
                                    name, nullptr, nullptr, 0),
                       PQclear);
    return PQresultStatus(found.get()) == PGRES_TUPLES_OK && PQntuples(found.get()) == 0;
}

bool HasTables(PGconn* line) {
    const Result found(PQexec(line, "select 1 where to_regclass('tjxc_invsys') is not null"), PQclear);
    return PQntuples(found.get()) > 0;
}

bool WantsIt(const std::string& shown) {
    if (!isatty(STDIN_FILENO))
        return false;
    std::cout << "数据库 " << shown << " 不存在。现在建立吗？(y/n) " << std::flush;
    std::string answer;
    return std::getline(std::cin, answer) && (answer == "y" || answer == "Y");
}

void CreateDatabase(const std::string& address, const std::string& name) {
    const Line line = Connect(address, "postgres");
    if (PQstatus(line.get()) != CONNECTION_OK)
        throw DatabaseError("不能连接服务器的 postgres 数据库，无法建立数据库：" + ReasonOf(line.get()));
    const std::unique_ptr<char, decltype(&PQfreemem)> quoted(
        PQescapeIdentifier(line.get(), name.c_str(), name.size()), PQfreemem);
    const Result made(PQexec(line.get(), ("create database " + std::string(quoted.get())).c_str()), PQclear);
    if (PQresultStatus(made.get()) != PGRES_COMMAND_OK)
        throw DatabaseError("不能建立数据库 " + name + "：" +
                            PQresultErrorField(made.get(), PG_DIAG_MESSAGE_PRIMARY));
}

} // namespace

bool HoldsCompany(const std::string& address) {
    const Line line = Connect(address, nullptr);
    return PQstatus(line.get()) == CONNECTION_OK && HasTables(line.get());
}

void PrepareDatabase(const std::string& address, bool create) {
    const std::string shown = ShownAddress(address);
    const Line line = Connect(address, nullptr);
    if (IsMissing(address, line.get())) {
        const std::string name = PQdb(line.get());
        if (!create && !WantsIt(shown))
            throw DatabaseError("数据库 " + name + " 不存在；请先建立，或加 --create-database 一并建立。");
        CreateDatabase(address, name);
        return;
    }
    if (PQstatus(line.get()) != CONNECTION_OK)
        throw DatabaseError("不能连接数据库服务器：" + ReasonOf(line.get()));
    if (HasTables(line.get()))
        throw DatabaseError("数据库 " + std::string(PQdb(line.get())) +
                            " 中已有帐套，没有改动；请用另一个数据库。");
}

} // namespace jxc
