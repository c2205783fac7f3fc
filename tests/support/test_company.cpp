#include "tests/support/test_company.h"

#include <libpq-fe.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "session/database/open_connection.h"
#include "session/database/schema.h"
#include "session/session.h"

namespace jxc::test {

namespace {

std::string ServerUri() {
    const char* uri = std::getenv("JXC_TEST_PG");
    return uri ? uri : "";
}

// Runs commands on the server's maintenance database.
void OnServer(const std::string& command) {
    PGconn* connection = PQconnectdb(ServerUri().c_str());
    PGresult* result = PQexec(connection, command.c_str());
    const bool succeeded = PQresultStatus(result) == PGRES_COMMAND_OK;
    const std::string reason = PQerrorMessage(connection);
    PQclear(result);
    PQfinish(connection);
    if (!succeeded)
        throw DatabaseError("test server: " + command + ": " + reason);
}

std::string NewName() {
    static int made = 0;
    return "jxc_test_" + std::to_string(getpid()) + "_" + std::to_string(++made);
}

// The tables are made once for the program; each company is a copy.
class TemplateDatabase {
  public:
    TemplateDatabase() : name_(NewName() + "_template") {
        OnServer("create database " + name_ + " template template0 encoding 'UTF8'");
        Connection connection;
        CreateCompanyTables(1, connection, ServerUri(), "", "", name_);
    }
    ~TemplateDatabase() {
        try {
            OnServer("drop database " + name_);
        } catch (const DatabaseError& error) {
            std::fprintf(stderr, "%s\n", error.what());
        }
    }
    const std::string& Name() const { return name_; }

  private:
    std::string name_;
};

const std::string& TemplateName() {
    static const TemplateDatabase database;
    return database.Name();
}

} // namespace

std::string WhyUnavailable(EngineKind kind) {
    if (kind == EngineKind::Postgres && ServerUri().empty())
        return "JXC_TEST_PG names no PostgreSQL server";
    return "";
}

TestCompany::TestCompany(EngineKind kind) : kind_(kind) {
    session.Conn = std::make_unique<Connection>();
    session.SQLData = static_cast<std::int16_t>(Dialect());
    if (kind == EngineKind::Sqlite) {
        path_ = std::filesystem::temp_directory_path() / (NewName() + ".db");
        session.DateDelimiter = "#";
        CreateCompanyTables(0, *session.Conn, path_);
    } else {
        path_ = ServerUri();
        database_ = NewName();
        session.DateDelimiter = "'";
        OnServer("create database " + database_ + " template " + TemplateName());
        OpenConnection(1, *session.Conn, path_, "", "", database_);
    }
}

TestCompany::~TestCompany() {
    session.Conn.reset();
    if (kind_ == EngineKind::Sqlite) {
        for (const char* suffix : {"", "-wal", "-shm"})
            std::filesystem::remove(path_ + suffix);
        return;
    }
    try {
        OnServer("drop database if exists " + database_ + " with (force)");
    } catch (const DatabaseError& error) {
        ADD_FAILURE() << error.what();
    }
}

int TestCompany::Dialect() const {
    return kind_ == EngineKind::Sqlite ? 0 : 1;
}

void Do(const std::string& sql) {
    Conn().Execute(sql);
}

Lines RowsOf(const std::string& sql) {
    const Rows rows = Conn().Query(sql);
    Lines lines;
    for (size_t row = 0; row < rows.Count(); ++row) {
        std::string line;
        for (size_t column = 0; column < rows.names.size(); ++column) {
            const Value& cell = rows.At(row, column);
            line.append(column > 0 ? "|" : "").append(cell.IsNull() ? "null" : cell.AsText());
        }
        lines.push_back(line);
    }
    return lines;
}

std::string One(const std::string& sql) {
    const Lines rows = RowsOf(sql);
    return rows.size() == 1 ? rows[0] : std::to_string(rows.size()) + " rows";
}

std::string Day(const std::string& slashDate) {
    return session.DateDelimiter + slashDate + session.DateDelimiter;
}

} // namespace jxc::test
