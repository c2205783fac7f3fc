// The engine's own objects, each with its owner.
#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>

namespace jxc {

struct SqliteDeleter {
    void operator()(sqlite3* db) const { sqlite3_close(db); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using SqliteHandle = std::unique_ptr<sqlite3, SqliteDeleter>;
using SqliteStatementHandle = std::unique_ptr<sqlite3_stmt, SqliteDeleter>;

// The file at `path` (or its URI), with sqlite3_open_v2's flags. Whether it could be opened stands in the handle's error
// code; there is a handle to ask in every case but that of no memory, which is a std::bad_alloc.
[[nodiscard]] SqliteHandle OpenSqlite(const std::string& path, int flags);

// A statement, with sqlite3_prepare_v3's flags; null where the engine refuses it and the handle's error tells why.
[[nodiscard]] SqliteStatementHandle PrepareSqlite(sqlite3* db, const std::string& sql, unsigned flags = 0);

} // namespace jxc
