#include "session/company/create_tables.h"

#include <unistd.h>

#include "base/text.h"
#include "database/postgres_engine.h"
#include "database/sqlite_engine.h"
#include "session/company/company_version.h"

namespace jxc {

std::string IndexScript(const Engine& engine, const TableDef& table, size_t place, bool mayStand) {
    const IndexDef& index = table.indexes[place];
    const std::string name(table.name);
    std::string columns;
    for (const std::string& field : Split(index.fields, ','))
        columns.append(columns.empty() ? "" : ", ").append(engine.IndexedColumn(field));
    return std::string(index.unique ? "create unique index " : "create index ") +
           (mayStand ? "if not exists " : "") + name + "_" + std::to_string(place + 1) + " on " + name +
           " (" + columns + ");\n";
}

std::string TableScript(const Engine& engine, const TableDef& table) {
    const std::string name(table.name);
    std::string sql = "create table " + name + " (";
    for (size_t i = 0; i < table.fields.size(); ++i)
        sql.append(i > 0 ? ", " : "").append(engine.ColumnDefinition(table.fields[i]));
    sql.append(")").append(engine.TableSuffix()).append(";\n");
    for (size_t place = 0; place < table.indexes.size(); ++place)
        sql += IndexScript(engine, table, place, false);
    return sql;
}

namespace {

void CreateIn(Connection& connection, std::unique_ptr<Engine> engine) {
    engine->Begin();
    try {
        engine->ExecuteScript(CompanyTablesScript(*engine));
        engine->SetVersion(kCompanyVersion);
        engine->Commit();
    } catch (...) {
        engine->Rollback();
        throw;
    }
    engine->Adopt();
    connection.Open(std::move(engine));
}

} // namespace

std::string CompanyTablesScript(const Engine& engine) {
    std::string sql = engine.ScriptPrologue();
    for (const TableDef& table : AllTables())
        sql += TableScript(engine, table);
    for (const NotedTable& table : kNotedTables)
        sql += engine.NotingScript(table);
    return sql;
}

void CreateCompanyTables(int dialect, Connection& connection, const std::string& path,
                         const std::string& password, const std::string& user,
                         const std::string& defaultName) {
    connection.Close();
    if (dialect != 0) {
        CreateIn(connection,
                 std::make_unique<PostgresEngine>(ServerAddress{path, password, user, defaultName}));
        return;
    }
    auto engine = std::make_unique<SqliteEngine>(path, SqliteFile::Create);
    try {
        CreateIn(connection, std::move(engine));
    } catch (...) {
        for (const char* suffix : {"", "-wal", "-shm"})
            unlink((path + suffix).c_str());
        throw;
    }
}

} // namespace jxc
