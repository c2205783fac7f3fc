#include "base/json_value.h"

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

std::string JsonText(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace jxc
