#include "database/row_inserter.h"

#include "database/engine.h"
#include "database/field_values.h"

namespace jxc {

RowInserter::RowInserter(Connection& connection, const std::string& table,
                         const std::vector<std::string>& fields)
    : connection_(connection), values_(fields.size()),
      text_(connection.EngineInUse().InsertText(table, fields)) {
    const TableDef* definition = FindTable(table);
    if (!definition)
        throw DatabaseError("数据库没有表 " + table + "。");
    for (const std::string& field : fields) {
        fields_.push_back(FindField(*definition, field));
        if (!fields_.back())
            throw DatabaseError("没有字段 " + field + "。");
    }
}

void RowInserter::Set(size_t place, Value value) {
    values_.at(place) = FieldValue(*fields_.at(place), std::move(value));
}

void RowInserter::Insert() {
    connection_.RunOnRow(text_, values_, nullptr);
}

} // namespace jxc
