#include "database/sqlite_content.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <set>

#include "database/connection.h"
#include "database/sqlite_handles.h"
#include "database/storable_text.h"

namespace jxc {

namespace {

[[noreturn]] void Fail(sqlite3* db) {
    throw DatabaseError(std::string("数据库错误：") + sqlite3_errmsg(db));
}

SqliteStatementHandle Prepared(sqlite3* db, const std::string& sql) {
    SqliteStatementHandle statement = PrepareSqlite(db, sql);
    if (!statement)
        Fail(db);
    return statement;
}

bool Step(sqlite3* db, sqlite3_stmt* statement) {
    const int result = sqlite3_step(statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        Fail(db);
    return result == SQLITE_ROW;
}

// FNV-1a, 64 bits: any single changed byte changes it. It guards against damage, not against forgery.
class Digest {
  public:
    void Add(const void* data, size_t size) {
        const auto* bytes = static_cast<const unsigned char*>(data);
        for (size_t i = 0; i < size; ++i)
            state_ = (state_ ^ bytes[i]) * 0x100000001b3ULL;
    }
    template <typename Number>
    void AddNumber(Number number) {
        Add(&number, sizeof number);
    }
    std::string Text() const {
        char text[17];
        std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(state_));
        return text;
    }

  private:
    std::uint64_t state_ = 0xcbf29ce484222325ULL;
};

void AddCell(Digest& digest, sqlite3_stmt* row, int column) {
    const int type = sqlite3_column_type(row, column);
    digest.AddNumber(type);
    if (type == SQLITE_INTEGER)
        return digest.AddNumber(sqlite3_column_int64(row, column));
    if (type == SQLITE_FLOAT)
        return digest.AddNumber(sqlite3_column_double(row, column));
    if (type == SQLITE_NULL)
        return;
    const void* bytes = sqlite3_column_blob(row, column);
    const int size = sqlite3_column_bytes(row, column);
    digest.AddNumber(size);
    digest.Add(bytes, static_cast<size_t>(size));
}

bool IsStrange(sqlite3_stmt* row, int column) {
    if (sqlite3_column_type(row, column) != SQLITE_TEXT)
        return false;
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    return !IsStorable(std::string_view(text, static_cast<size_t>(sqlite3_column_bytes(row, column))));
}

void ReadTable(sqlite3* db, const std::string& table, Digest& digest, SqliteContent& content) {
    digest.Add(table.data(), table.size());
    const SqliteStatementHandle rows = Prepared(db, "select * from \"" + table + "\" order by rowid");
    std::set<std::string> strange;
    while (Step(db, rows.get()))
        for (int column = 0; column < sqlite3_column_count(rows.get()); ++column) {
            AddCell(digest, rows.get(), column);
            if (IsStrange(rows.get(), column))
                strange.insert(sqlite3_column_name(rows.get(), column));
        }
    for (const std::string& column : strange)
        content.strangeTexts.push_back("表 " + table + " 的 " + column + " 中有不是文字的内容");
}

} // namespace

SqliteContent ReadContent(sqlite3* db) {
    SqliteContent content;
    Digest digest;
    const SqliteStatementHandle tables =
        Prepared(db, "select name from sqlite_master where type = 'table' and name not "
                     "like 'sqlite~_%' escape '~' order by name");
    while (Step(db, tables.get())) {
        const std::string table = reinterpret_cast<const char*>(sqlite3_column_text(tables.get(), 0));
        if (table != kSeal)
            ReadTable(db, table, digest, content);
    }
    content.digest = digest.Text();
    return content;
}

void CopyPages(sqlite3* db, const std::string& path) {
    const SqliteHandle owner = OpenSqlite(path, SQLITE_OPEN_READWRITE);
    sqlite3* copy = owner.get();
    if (sqlite3_errcode(copy) != SQLITE_OK)
        Fail(copy);
    sqlite3_backup* pages = sqlite3_backup_init(copy, "main", db, "main");
    if (!pages)
        Fail(copy);
    sqlite3_backup_step(pages, -1);
    if (sqlite3_backup_finish(pages) != SQLITE_OK)
        Fail(copy);
    // A damaged copy may refuse this; it keeps its log then.
    sqlite3_exec(copy, "pragma journal_mode = delete", nullptr, nullptr, nullptr);
}

} // namespace jxc
