#include "session/database/late_columns.h"

#include "controls/text.h"
#include "session/database/create_tables.h"
#include "session/database/routines.h"
#include "session/session.h"

namespace jxc {

namespace {

struct LateColumn {
    const char* table;
    const char* field;
    const char* test; // fails, and so counts -1, as long as the column is missing
    const char* jet;
    const char* sqlServer;
};

constexpr LateColumn kLateColumns[] = {
    {"tJXC_Ck", "fKhID", "fKhID=0", "ALTER TABLE tJXC_Ck ADD fKhID Int NULL",
     "ALTER TABLE tJXC_Ck ADD fKhID Int NULL"},
    {"tJXC_CpTj02", "fCpPjMemo", "fCpPjMemo=''", "ALTER TABLE tJXC_CpTj02 ADD fCpPjMemo varchar(50) Null",
     "ALTER TABLE tJXC_CpTj02 ADD fCpPjMemo nvarchar(50) Null"},
};

bool CanBeRead(std::string_view table, std::string_view field) {
    try {
        Conn().Tolerantly(
            [&] { Conn().Query("Select Top 1 " + std::string(field) + " From " + std::string(table)); });
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

} // namespace

void EnsureLateColumn(std::string_view table, std::string_view field) {
    for (const LateColumn& column : kLateColumns) {
        if (!EqualsNoCase(column.table, table) || !EqualsNoCase(column.field, field))
            continue;
        // The count also fails where more rows match than it can tell.
        if (DbCount(column.table, column.test) == -1 && !CanBeRead(column.table, column.field))
            Conn().Execute(Dialect(column.jet, column.sqlServer));
        return;
    }
    throw DatabaseError("字段 " + std::string(table) + "." + std::string(field) + " 不能补加。");
}

void EnsureLateTable(std::string_view name) {
    const TableDef* table = FindTable(name);
    if (!table || !table->late)
        throw DatabaseError("表 " + std::string(name) + " 不能补加。");
    const std::string_view field = table->fields.front().name;
    if (CanBeRead(name, field))
        return;
    Transaction transaction(Conn()); // another program may be doing the same
    if (!CanBeRead(name, field)) {
        Engine& engine = Conn().EngineInUse();
        engine.ExecuteScript(TableScript(engine, *table));
    }
    transaction.Commit();
}

} // namespace jxc
