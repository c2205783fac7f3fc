// Values as JSON, for the robot's replies and for what is kept of actions.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "base/value.h"

namespace jxc {

using Json = nlohmann::ordered_json;

Json JsonValue(const Value& value);
// On one line; what is no UTF-8 is replaced.
std::string JsonText(const Json& json);

} // namespace jxc
