#include "host/company/create_company.h"

#include <cstdio>

#include "database/engine.h"
#include "database/schema.h"
#include "host/company/code_lists.h"
#include "host/company/default_dictionary.h"
#include "host/company/default_settings.h"
#include "host/company/sample_company.h"

namespace jxc {

namespace {

void Fill(Connection& connection, CompanyKind kind) {
    static constexpr CompanyHeader kUnnamed = {.name = "新公司"};
    Transaction transaction(connection);
    FillDefaultSettings(connection, kind == CompanyKind::Sample ? kSampleCompany : kUnnamed);
    FillColumnDictionary(connection);
    FillCodeLists(connection);
    if (kind == CompanyKind::Sample)
        FillSampleCompany(connection);
    transaction.Commit();
}

// The tables stand already when filling fails. What goes wrong here is not told: the caller hears of the
// first failure.
void RemoveCompany(int dialect, Connection& connection, const std::string& path) noexcept {
    if (dialect == 0) {
        connection.Close();
        for (const char* ending : {"", "-wal", "-shm", "-journal"})
            std::remove((path + ending).c_str());
        return;
    }
    std::string drop = "drop table ";
    for (const TableDef& table : AllTables())
        drop.append(table.name).append(",");
    drop.pop_back();
    try {
        connection.EngineInUse().ExecuteScript(drop);
    } catch (const DatabaseError&) {
    }
}

} // namespace

void CreateCompany(int dialect, const std::string& path, CompanyKind kind,
                   std::function<void(std::string_view)> observer) {
    Connection connection;
    CreateCompanyTables(dialect, connection, path);
    if (kind == CompanyKind::Bare)
        return;
    connection.SetObserver(std::move(observer));
    try {
        Fill(connection, kind);
    } catch (...) {
        RemoveCompany(dialect, connection, path);
        throw;
    }
}

} // namespace jxc
