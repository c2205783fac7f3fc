// What a PostgreSQL server finds when it is made to read a whole company.
#include "base/text.h"
#include "database/postgres_engine.h"
#include "database/schema.h"

namespace jxc {

Rows PostgresEngine::Ask(const std::string& sql) {
    StartCall();
    line_.SendText(sql, {}, {}, depth_);
    return line_.Settle();
}

bool PostgresEngine::HidesTable(std::string_view table) {
    return Ask("select 1 where to_regclass('" + LowerCase(table) + "') is not null").Count() > 0;
}

void PostgresEngine::CheckTable(const std::string& table, bool thoroughly, std::vector<std::string>& faults) {
    if (thoroughly) {
        const Rows heap = Ask("select msg from verify_heapam('" + table + "')");
        for (size_t row = 0; row < heap.Count(); ++row)
            faults.push_back(table + "：" + heap.At(row, 0).AsText());
        Ask("select bt_index_check(i.indexrelid, true) from pg_index i join pg_class c on c.oid = "
            "i.indexrelid "
            "join pg_am m on m.oid = c.relam where m.amname = 'btree' and i.indrelid = '" +
            table + "'::regclass");
    }
    Ask("select count(*) from (select t::text from " + table + " t offset 0) x");
}

std::vector<std::string> PostgresEngine::Faults() {
    std::vector<std::string> faults;
    const bool thoroughly =
        Ask("select 1 from pg_extension e, pg_proc p where e.extname = 'amcheck' and p.proname in "
            "('verify_heapam', 'bt_index_check') and has_function_privilege(p.oid, 'execute')")
            .Count() > 0;
    const auto present = Catalogue();
    for (const TableDef& table : AllTables()) {
        const std::string name(table.name);
        if (!present.contains(LowerCase(name)))
            continue;
        try {
            CheckTable(name, thoroughly, faults);
        } catch (const DatabaseError& error) {
            faults.push_back(name + "：" + error.what());
        }
    }
    return faults;
}

} // namespace jxc
