// The log of changes on a server. Transactions end in another order than they begin in, so a change bears the number of
// its transaction, and who asks gets everything of those that had not ended when he asked last.
#include "base/text.h"
#include "database/postgres_engine.h"
#include "database/postgres_values.h"

namespace jxc {

std::string PostgresEngine::NotingScript(const NotedTable& table) const {
    const std::string name(table.table), key(table.key), kind = std::to_string(table.kind), log = kChangeLog;
    const std::string function = name + "_noted";
    // The log is written with the rights of the company's owner: who may change a product need not know of it.
    return "create or replace function " + function +
           "() returns trigger language plpgsql security definer set search_path from current as $noting$ "
           "begin "
           "insert into " +
           log + " (fKind, fID, fStamp) select distinct " + kind +
           ", k, pg_current_xact_id()::text::double precision from (values (old." + key + "), (new." + key +
           ")) v(k) where k is not null on conflict (fKind, fID) do update set fStamp = excluded.fStamp; "
           "return null; end $noting$;\n"
           "drop trigger if exists " +
           name + "_noted on " + name + ";\ncreate trigger " + name +
           "_noted after insert or delete or update of " + std::string(table.fields) + " on " + name +
           " for each row execute function " + function + "();\n";
}

// Stamps beyond this server's transactions came with a copy from another one.
NotedChanges PostgresEngine::ChangesSince(const NotedTable& table, double from) {
    const std::string text =
        "select c.fID, c.fStamp, pg_snapshot_xmin(s.seen)::text::double precision, "
        "(select oid from pg_database where datname = current_database())::text || ':' || "
        "pg_relation_filenode('" +
        std::string(table.table) + "')::text from (select pg_current_snapshot() as seen) s left join " +
        kChangeLog + " c on c.fKind = " + std::to_string(table.kind) +
        " and c.fStamp >= $1::double precision and c.fStamp < pg_snapshot_xmax(s.seen)::text::double "
        "precision";
    std::shared_ptr<ServerStatement>& statement = commands_[text];
    if (!statement)
        statement = NewStatement(text, {kUntyped});
    StartCall();
    line_.Send(statement, std::vector<Value>{from}, depth_);
    const Rows rows = line_.Settle();
    NotedChanges changes;
    changes.next = rows.At(0, 2).AsDouble();
    changes.place = rows.At(0, 3).AsText();
    for (size_t row = 0; row < rows.Count(); ++row)
        if (!rows.At(row, 0).IsNull())
            changes.changed.emplace_back(rows.At(row, 0).AsLong(), rows.At(row, 1).AsDouble());
    return changes;
}

} // namespace jxc
