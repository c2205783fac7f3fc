#include "database/schema.h"

#include "base/text.h"
#include "database/schema_tables.h"

namespace jxc {

namespace {

struct Schema {
    std::vector<TableDef> tables;
    std::unordered_map<std::string, const TableDef*> byName; // lower case

    Schema() {
        AddOwnTables(tables);
        AddHostTables(tables);
        for (const TableDef& table : tables)
            byName.emplace(LowerCase(table.name), &table);
    }
};

const Schema& TheSchema() {
    static const Schema schema;
    return schema;
}

} // namespace

std::span<const TableDef> AllTables() {
    return TheSchema().tables;
}

const TableDef* FindTable(std::string_view name) {
    const auto found = TheSchema().byName.find(LowerCase(name));
    return found == TheSchema().byName.end() ? nullptr : found->second;
}

const FieldDef* FindField(const TableDef& table, std::string_view field) {
    for (const FieldDef& def : table.fields)
        if (EqualsNoCase(def.name, field))
            return &def;
    return nullptr;
}

} // namespace jxc
