#include "base/value.h"

#include <cmath>

#include "base/text.h"

namespace jxc {

double Value::AsDouble() const {
    if (const auto* number = std::get_if<double>(&held_))
        return *number;
    if (const auto* number = std::get_if<std::int64_t>(&held_))
        return static_cast<double>(*number);
    if (const auto* text = std::get_if<std::string>(&held_))
        return Val(*text);
    return 0;
}

std::int64_t Value::AsLong() const {
    if (const auto* number = std::get_if<std::int64_t>(&held_))
        return *number;
    return std::llrint(AsDouble());
}

std::string Value::AsText() const {
    if (const auto* text = std::get_if<std::string>(&held_))
        return *text;
    if (const auto* number = std::get_if<std::int64_t>(&held_))
        return std::to_string(*number);
    if (const auto* number = std::get_if<double>(&held_))
        return NumberText(*number);
    return "";
}

} // namespace jxc
