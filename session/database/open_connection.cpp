#include "session/database/open_connection.h"

#include <unistd.h>

#include <filesystem>

#include "session/database/postgres_engine.h"
#include "session/database/schema.h"
#include "session/database/sqlite_engine.h"

namespace jxc {

namespace {

void RequireReadableFile(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        throw DatabaseError("数据库文件 " + path + " 不存在。");
    if (!std::filesystem::is_regular_file(path, error))
        throw DatabaseError(path + " 不是数据库文件。");
    if (access(path.c_str(), R_OK | W_OK) != 0)
        throw DatabaseError("没有读写数据库文件 " + path + " 的权限。");
}

// One look at every table; late tables and columns are added when the screens that own them open, and may be
// missing here.
void RequireTables(Connection& connection) {
    for (const TableDef& table : AllTables()) {
        if (table.late)
            continue;
        const std::string name(table.name), field(table.fields.front().name);
        try {
            connection.Query("Select Top 1 " + field + " From " + name);
        } catch (const DatabaseError&) {
            throw DatabaseError("该数据库不是公司帐套：缺少表 " + name + "。");
        }
    }
}

} // namespace

int OpenConnection(int dialect, Connection& connection, const std::string& path, const std::string& password,
                   const std::string& user, const std::string& defaultName) {
    connection.Close();
    if (dialect == 0) {
        RequireReadableFile(path);
        connection.Open(std::make_unique<SqliteEngine>(path, false));
    } else {
        connection.Open(std::make_unique<PostgresEngine>(ServerAddress{path, password, user, defaultName}));
    }
    try {
        RequireTables(connection);
        connection.EngineInUse().Adopt();
    } catch (const DatabaseError&) {
        connection.Close();
        throw;
    }
    return 0;
}

} // namespace jxc
