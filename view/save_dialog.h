// Asking for a file and writing it.
#pragma once

#include <functional>
#include <string>

#include <QString>

class QWidget;

namespace jxc {

// `title` is offered as the file's name. What `save` throws is told, as is the file that was written.
void SaveTo(QWidget& window, const std::string& title, const QString& kind, const QString& ending,
            const std::function<void(const QString& file)>& save);

} // namespace jxc
