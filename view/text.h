// Texts between the control models (UTF-8) and the toolkit.
#pragma once

#include <string>

#include <QString>

namespace jxc {

inline QString Q(const std::string& text) {
    return QString::fromStdString(text);
}
inline std::string S(const QString& text) {
    return text.toStdString();
}

} // namespace jxc
