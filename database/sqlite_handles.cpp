#include "database/sqlite_handles.h"

#include <new>

namespace jxc {

SqliteHandle OpenSqlite(const std::string& path, int flags) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(path.c_str(), &db, flags, nullptr);
    if (!db)
        throw std::bad_alloc();
    return SqliteHandle(db);
}

SqliteStatementHandle PrepareSqlite(sqlite3* db, const std::string& sql, unsigned flags) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v3(db, sql.c_str(), static_cast<int>(sql.size()) + 1, flags, &statement, nullptr);
    return SqliteStatementHandle(statement);
}

} // namespace jxc
