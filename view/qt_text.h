// Texts between the control models (UTF-8) and the toolkit.
#pragma once

#include <string>

#include <QRegularExpression>
#include <QString>

namespace jxc {

inline QString Q(const std::string& text) {
    return QString::fromStdString(text);
}
inline std::string S(const QString& text) {
    return text.toStdString();
}

// A caption without the letter that Alt presses: "打印(&P)" reads "打印".
inline QString WithoutMnemonic(const std::string& caption) {
    return Q(caption).remove(QRegularExpression("\\(&.\\)|&"));
}

} // namespace jxc
