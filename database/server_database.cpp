#include "database/server_database.h"

#include "database/database_error.h"
#include "database/postgres_line.h"

namespace jxc {

namespace {

PostgresLine MaintenanceLine(const std::string& address) {
    return OpenLine({address, "", "", "postgres"});
}

// Why a line could not be had is told in the server's language only: the server's list of databases knows.
bool IsMissing(const std::string& address, const PostgresLine& line) {
    if (PQstatus(line.get()) == CONNECTION_OK)
        return false;
    const PostgresLine other = MaintenanceLine(address);
    const char* const name[] = {PQdb(line.get())};
    const PostgresResult found(PQexecParams(other.get(), "select 1 from pg_database where datname = $1", 1,
                                            nullptr, name, nullptr, nullptr, 0));
    return PQresultStatus(found.get()) == PGRES_TUPLES_OK && PQntuples(found.get()) == 0;
}

bool HasTables(const PostgresLine& line) {
    const PostgresResult found(PQexec(line.get(), "select 1 where to_regclass('tjxc_invsys') is not null"));
    if (PQresultStatus(found.get()) != PGRES_TUPLES_OK)
        throw DatabaseError("数据库错误：" + ReasonOf(found.get()));
    return PQntuples(found.get()) > 0;
}

} // namespace

ServerDatabase FindServerDatabase(const std::string& address) {
    using State = ServerDatabase::State;
    const PostgresLine line = OpenLine({address, "", "", ""});
    if (IsMissing(address, line))
        return {PQdb(line.get()), State::Missing};
    RequireLine(line);
    return {PQdb(line.get()), HasTables(line) ? State::HoldsCompany : State::Empty};
}

void CreateServerDatabase(const std::string& address, const std::string& name) {
    const PostgresLine line = MaintenanceLine(address);
    if (PQstatus(line.get()) != CONNECTION_OK)
        throw DatabaseError("不能连接服务器的 postgres 数据库，无法建立数据库：" + ReasonOf(line));
    const PostgresText quoted(PQescapeIdentifier(line.get(), name.c_str(), name.size()));
    if (!quoted)
        throw DatabaseError("不能建立数据库 " + name + "：" + ReasonOf(line));
    const PostgresResult made(PQexec(line.get(), ("create database " + std::string(quoted.get())).c_str()));
    if (PQresultStatus(made.get()) != PGRES_COMMAND_OK)
        throw DatabaseError("不能建立数据库 " + name + "：" + ReasonOf(made.get()));
}

} // namespace jxc
