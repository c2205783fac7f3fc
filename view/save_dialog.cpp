#include "view/save_dialog.h"

#include <QFileDialog>

#include "controls/view.h"
#include "view/qt_text.h"

namespace jxc {

void SaveTo(QWidget& window, const std::string& title, const QString& kind, const QString& ending,
            const std::function<void(const QString&)>& save) {
    QFileDialog dialog(&window, kind, Q(title) + ending, "*" + ending);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(ending.mid(1)); // before the dialog asks about a file that is there
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString file = dialog.selectedFiles().front();
    if (Attempt(title, [&] { save(file); }))
        Inform(title, "已保存：" + S(file));
}

} // namespace jxc
