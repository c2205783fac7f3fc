// The log of changes in a file: its writers come one after the other, so the stamps count up as they are committed.
#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>

#include "database/sqlite_engine.h"

namespace jxc {

namespace {

// Notes a key at the end of the log.
std::string Noting(const NotedTable& table, const std::string& key, const std::string& condition) {
    const std::string log = kChangeLog, kind = std::to_string(table.kind);
    return "insert into " + log + " (fKind, fID, fStamp) select " + kind + ", " + key +
           ", (select coalesce(max(fStamp), 0) + 1 from " + log + " where fKind = " + kind + ") where " +
           condition + " on conflict (fKind, fID) do update set fStamp = excluded.fStamp;";
}

} // namespace

std::string SqliteEngine::NotingScript(const NotedTable& table) const {
    const std::string name(table.table), oldKey = "old." + std::string(table.key),
                                         newKey = "new." + std::string(table.key);
    const auto trigger = [&](const char* suffix, const std::string& event, const std::string& work) {
        return "create trigger if not exists " + name + suffix + " after " + event + " on " + name +
               " begin " + work + " end;\n";
    };
    return trigger("_inserted", "insert", Noting(table, newKey, newKey + " is not null")) +
           trigger("_deleted", "delete", Noting(table, oldKey, oldKey + " is not null")) +
           trigger(
               "_updated", "update of " + std::string(table.fields),
               Noting(table, newKey, newKey + " is not null") +
                   Noting(table, oldKey, oldKey + " is not " + newKey + " and " + oldKey + " is not null"));
}

NotedChanges SqliteEngine::ChangesSince(const NotedTable& table, double from) {
    static const std::string text =
        std::string(
            "select c.fID, c.fStamp, n.fNext from (select coalesce(max(fStamp), 0) + 1 as fNext from ") +
        kChangeLog + " where fKind = ?1) n left join " + kChangeLog + " c on c.fKind = ?1 and c.fStamp >= ?2";
    std::unique_ptr<EngineStatement>& statement = commands_[text];
    if (!statement)
        statement = Prepare(text, {});
    const Rows rows = Query(*statement, std::vector<Value>{table.kind, from});
    NotedChanges changes;
    changes.next = rows.At(0, 2).AsDouble();
    for (size_t row = 0; row < rows.Count(); ++row)
        if (!rows.At(row, 0).IsNull())
            changes.changed.emplace_back(rows.At(row, 0).AsLong(), rows.At(row, 1).AsDouble());
    struct stat file {};
    if (stat(sqlite3_db_filename(db_.get(), "main"), &file) == 0)
        changes.place = std::to_string(file.st_dev) + ":" + std::to_string(file.st_ino);
    return changes;
}

} // namespace jxc
