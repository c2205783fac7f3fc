// Properties of lzJxc as a command line sets them: "PROPERTY=VALUE".
#pragma once

#include <map>
#include <string>
#include <vector>

#include "session/lzjxc.h"

namespace jxc {

// Values by the name of their property.
using PropertySettings = std::map<std::string, std::string>;

// Of a property that is set twice the last value counts. A text without "=" is a ScreenError.
PropertySettings ReadSettings(const std::vector<std::string>& texts);

// Sets them. A name that lzJxc does not have, or a value that does not fit it, is a ScreenError.
void SetProperties(lzJxc& control, const PropertySettings& settings);

} // namespace jxc
