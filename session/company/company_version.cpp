#include "session/company/company_version.h"

#include "database/schema.h"
#include "session/company/create_tables.h"

namespace jxc {

namespace {

struct NewColumn {
    const char* table;
    const char* field;
};
constexpr NewColumn kColumnsOfVersion1[] = {{"tJXC_Ck", "fKhID"}, {"tJXC_CpTj02", "fCpPjMemo"}};
constexpr NewColumn kColumnsOfVersion2[] = {{"tHostUser", "fPassword"}};
constexpr NewColumn kColumnsOfVersion5[] = {{"tJXC_InvSys", "fSysWarnKc"}};

void AddLateTables(Connection& connection) {
    Engine& engine = connection.EngineInUse();
    for (const TableDef& table : AllTables())
        if (table.late && !connection.HasColumn(table.name, table.fields.front().name))
            engine.ExecuteScript(TableScript(engine, table));
}

template <size_t N>
void AddColumns(Connection& connection, const NewColumn (&columns)[N]) {
    Engine& engine = connection.EngineInUse();
    for (const auto& [table, field] : columns)
        if (!connection.HasColumn(table, field))
            engine.ExecuteScript(std::string("alter table ") + table + " add column " +
                                 engine.ColumnDefinition(*FindField(*FindTable(table), field)));
}

void RaiseToVersion1(Connection& connection) {
    AddColumns(connection, kColumnsOfVersion1);
}

// The indexes of the table that are not there yet.
void AddIndexes(Connection& connection, const std::string& name) {
    Engine& engine = connection.EngineInUse();
    const TableDef& table = *FindTable(name);
    for (size_t place = 0; place < table.indexes.size(); ++place)
        engine.ExecuteScript(IndexScript(engine, table, place, true));
}

void RaiseToVersion2(Connection& connection) {
    connection.Execute(
        "Update tJXC_InvSet Set fSetNoUse_=0 Where fSetNoUse_ is null"); // in use is what is not shut
    AddIndexes(connection, "tJXC_CkDj01"); // guards ask the headers of documents for their warehouse
    AddColumns(connection, kColumnsOfVersion2);
    for (const NotedTable& table : kNotedTables)
        connection.EngineInUse().ExecuteScript(connection.EngineInUse().NotingScript(table));
}

void RaiseToVersion3(Connection& connection) {
    connection.Execute("Update tJXC_CpTj01 Set fTjFlag=0 Where fTjFlag is null"); // plans count 0 and below
}

void RaiseToVersion5(Connection& connection) {
    AddColumns(connection, kColumnsOfVersion5);
}

// The last trades of a product are asked for while a line is typed.
void RaiseToVersion6(Connection& connection) {
    AddIndexes(connection, "tJXC_CkDj02");
    AddIndexes(connection, "tJXC_CkDj_Bak02");
}

} // namespace

void RequireKnownVersion(Connection& connection) {
    connection.HasColumn("tJXC_InvSys", "fSysDate"); // a server tells tables and version at once
    const int version = connection.EngineInUse().Version();
    if (version > kCompanyVersion)
        throw DatabaseError("该帐套由较新版本的程序建立（版本 " + std::to_string(version) + "，本程序只到 " +
                            std::to_string(kCompanyVersion) + "），请使用新版本打开。");
}

void RaiseCompany(Connection& connection) {
    if (connection.EngineInUse().Version() >= kCompanyVersion)
        return;
    try {
        Transaction transaction(connection); // another program may be doing the same
        connection.ForgetCatalogue();
        if (connection.HasColumn("tJXC_InvSys", "fSysDate") &&
            connection.EngineInUse().Version() < kCompanyVersion) {
            AddLateTables(connection);
            connection.ForgetCatalogue();
            RaiseToVersion1(connection);
            RaiseToVersion2(connection);
            RaiseToVersion3(connection);
            RaiseToVersion5(connection);
            RaiseToVersion6(connection);
            connection.EngineInUse().SetVersion(kCompanyVersion);
            transaction.Commit();
        }
    } catch (const DatabaseError& error) {
        throw DatabaseError("该帐套由较早的版本建立，须由有权修改表结构的用户打开一次，未能升级：" +
                            std::string(error.what()));
    }
    connection.ForgetCatalogue();
}

} // namespace jxc
