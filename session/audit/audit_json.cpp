#include "session/audit/audit_json.h"

#include <map>

#include "base/text.h"
#include "database/schema.h"

namespace jxc {

Json JsonValue(const Value& value) {
    if (value.IsNull())
        return nullptr;
    if (value.IsLong())
        return value.AsLong();
    if (value.IsDouble())
        return value.AsDouble();
    return value.Text();
}

std::string FieldNameOf(const std::string& told) {
    static const std::map<std::string, std::string> names = [] {
        std::map<std::string, std::string> all;
        for (const TableDef& table : AllTables())
            for (const FieldDef& field : table.fields)
                all.emplace(LowerCase(field.name), field.name);
        return all;
    }();
    const auto known = names.find(LowerCase(told));
    return known == names.end() ? told : known->second;
}

std::string JsonText(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace jxc
