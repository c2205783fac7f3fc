#include "tests/support/test_company.h"

#include <unistd.h>

#include "database/engine.h"
#include "database/schema.h"
#include "session/company/open_connection.h"
#include "session/session.h"

namespace jxc::test {

namespace {

std::string NewName() {
    static int made = 0;
    return "jxc_test_" + std::to_string(getpid()) + "_" + std::to_string(++made);
}

// The tables are made once for the program; each company on the server is a copy.
struct EmptyCompany : CompanyPlace {
    EmptyCompany() : CompanyPlace(EngineKind::Postgres) {
        Connection connection;
        CreateCompanyTables(1, connection, TestServer(), "", "", Database());
    }
};

std::string NameOfEmptyCompany() {
    static const EmptyCompany company;
    return company.Database();
}

} // namespace

std::string WhyUnavailable(EngineKind kind) {
    if (kind == EngineKind::Postgres && TestServer().empty())
        return "JXC_TEST_PG names no PostgreSQL server";
    return "";
}

CompanyPlace::CompanyPlace(EngineKind kind, const std::string& copied) {
    if (kind == EngineKind::Postgres)
        database_.emplace(NewName(), copied);
    address_ = database_ ? database_->Address() : folder_.File("company.db");
}

TestCompany::TestCompany(EngineKind kind)
    : place_(kind, kind == EngineKind::Postgres ? NameOfEmptyCompany() : "") {
    session.Conn = std::make_unique<Connection>();
    session.SQLData = static_cast<std::int16_t>(Dialect());
    session.DateDelimiter = Dialect() == 0 ? "#" : "'";
    if (Dialect() == 0)
        CreateCompanyTables(0, *session.Conn, Path());
    else
        Open(*session.Conn);
}

TestCompany::~TestCompany() {
    session.Conn.reset();
}

void TestCompany::Open(Connection& connection) const {
    OpenConnection(Dialect(), connection, Path(), "", "", Database());
}

void Do(const std::string& sql) {
    Conn().Execute(sql);
}

Lines LinesOf(const Rows& rows) {
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

Lines RowsOf(const std::string& sql) {
    return LinesOf(Conn().Query(sql));
}

std::string One(const std::string& sql) {
    const Lines rows = RowsOf(sql);
    return rows.size() == 1 ? rows[0] : std::to_string(rows.size()) + " rows";
}

std::string Day(const std::string& slashDate) {
    return session.DateDelimiter + slashDate + session.DateDelimiter;
}

std::string RefusalOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const DatabaseError& error) {
        return error.what();
    }
    return "";
}

void CutLinesOfOthers(Connection& connection) {
    connection.EngineInUse().ExecuteScript(
        "select pg_terminate_backend(pid) from pg_stat_activity where pid<>"
        "pg_backend_pid() and datname=current_database()");
}

} // namespace jxc::test
