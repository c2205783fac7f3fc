#include "session/company/open_connection.h"

#include <unistd.h>

#include <filesystem>

#include "database/postgres_engine.h"
#include "database/schema.h"
#include "database/server_address.h"
#include "database/sqlite_engine.h"
#include "session/company/company_version.h"
#include "session/session.h"

namespace jxc {

namespace {

void RequireReadableFile(const std::string& path, bool onlyRead) {
    const std::string shown = ShownAddress(path);
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        throw DatabaseError("数据库文件 " + shown + " 不存在。");
    if (!std::filesystem::is_regular_file(path, error))
        throw DatabaseError(shown + " 不是数据库文件。");
    if (access(path.c_str(), onlyRead ? R_OK : R_OK | W_OK) != 0)
        throw DatabaseError((onlyRead ? "没有读数据库文件 " : "没有读写数据库文件 ") + shown + " 的权限。");
}

// One look at every table; late tables are raised with the company, and may be missing here.
void RequireTables(Connection& connection) {
    for (const TableDef& table : AllTables()) {
        if (table.late)
            continue;
        if (connection.HasColumn(table.name, table.fields.front().name))
            continue;
        if (connection.EngineInUse().HidesTable(table.name))
            throw DatabaseError("该登录用户没有读取表 " + std::string(table.name) +
                                " 的权限；请数据库管理员授予对帐套各表的权限。");
        throw DatabaseError("该数据库不是公司帐套：缺少表 " + std::string(table.name) + "。");
    }
}

void OpenEngine(int dialect, Connection& connection, const ServerAddress& address, bool onlyRead) {
    connection.Close();
    if (dialect == 0) {
        RequireReadableFile(address.path, onlyRead);
        connection.Open(
            std::make_unique<SqliteEngine>(address.path, onlyRead ? SqliteFile::Read : SqliteFile::Open));
    } else {
        const auto connect = [address] { return std::make_unique<PostgresEngine>(address); };
        connection.Open(connect(), connect);
    }
    try {
        RequireKnownVersion(connection);
        RequireTables(connection);
        if (onlyRead)
            return;
        RaiseCompany(connection);
        connection.EngineInUse().Adopt();
    } catch (...) {
        connection.Close();
        throw;
    }
}

} // namespace

void OpenOfSession(Connection& connection) {
    OpenConnection(session.SQLData, connection, session.UserPath, session.Password, session.UserID,
                   session.Default);
}

int OpenConnection(int dialect, Connection& connection, const std::string& path, const std::string& password,
                   const std::string& user, const std::string& defaultName) {
    OpenEngine(dialect, connection, {path, password, user, defaultName}, false);
    return 0;
}

void OpenToRead(int dialect, Connection& connection, const std::string& path) {
    OpenEngine(dialect, connection, {path, "", "", ""}, true);
}

} // namespace jxc
