#include "host/property_settings.h"

#include "controls/screen.h"

namespace jxc {

PropertySettings ReadSettings(const std::vector<std::string>& texts) {
    PropertySettings settings;
    for (const std::string& text : texts) {
        const size_t equals = text.find('=');
        if (equals == std::string::npos)
            throw ScreenError("--set 须为 属性=值：" + text);
        settings[text.substr(0, equals)] = text.substr(equals + 1);
    }
    return settings;
}

void SetProperties(lzJxc& control, const PropertySettings& settings) {
    for (const auto& [name, value] : settings)
        control.SetProperty(name, value);
}

} // namespace jxc
