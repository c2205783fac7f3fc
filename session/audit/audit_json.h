// Values as JSON, as the trail keeps them.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "base/value.h"

namespace jxc {

using Json = nlohmann::ordered_json;

Json JsonValue(const Value& value);
// The field as the system writes it: a server tells names in lower case.
std::string FieldNameOf(const std::string& told);
std::string JsonText(const Json& json);

} // namespace jxc
