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

using FillTables = std::function<void(Connection&)>;
using Observer = std::function<void(std::string_view)>;

void FillOfKind(Connection& connection, CompanyKind kind) {
    static constexpr CompanyHeader kUnnamed = {.name = "新公司"};
    FillDefaultSettings(connection, kind == CompanyKind::Sample ? kSampleCompany : kUnnamed);
    FillForeignCurrency(connection);
    FillColumnDictionary(connection);
    FillCodeLists(connection);
    if (kind == CompanyKind::Sample)
        FillSampleCompany(connection);
}

void FillAsWished(Connection& connection, const NewCompany& wishes) {
    FillDefaultSettings(connection, {.fullName = wishes.name, .name = wishes.name}, wishes.books);
    FillColumnDictionary(connection, wishes.books.priceDecimals);
    FillCodeLists(connection);
    FillNewCompany(connection, wishes);
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

// All rows in one transaction.
void FillNew(int dialect, Connection& connection, const std::string& path, Observer observer,
             const FillTables& fill) {
    connection.SetObserver(std::move(observer));
    try {
        Transaction transaction(connection);
        fill(connection);
        transaction.Commit();
    } catch (...) {
        RemoveCompany(dialect, connection, path);
        throw;
    }
}

} // namespace

void CreateCompany(int dialect, const std::string& path, CompanyKind kind, Observer observer) {
    Connection connection;
    CreateCompanyTables(dialect, connection, path);
    if (kind != CompanyKind::Bare)
        FillNew(dialect, connection, path, std::move(observer),
                [kind](Connection& filled) { FillOfKind(filled, kind); });
}

void CreateCompany(int dialect, const std::string& path, const NewCompany& wishes, Observer observer) {
    Connection connection;
    CreateCompanyTables(dialect, connection, path);
    FillNew(dialect, connection, path, std::move(observer),
            [&wishes](Connection& filled) { FillAsWished(filled, wishes); });
}

} // namespace jxc
