// A new company: what it needs, its file, and the window stands over it.

#include <stdexcept>

#include "controls/view.h"
#include "host/company/create_company.h"
#include "host/editors/frmHostNewCompany.h"
#include "host/window/main_window.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

class WaitCursor {
  public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

void Create(const QString& file, const NewCompany& wishes) {
    if (QFileInfo::exists(file))
        throw std::runtime_error("文件已经存在，请另取名称：" + S(file));
    const WaitCursor wait;
    CreateCompany(0, S(file), wishes);
}

} // namespace

// "" when the person goes back. Characters that no file may have give way.
QString MainWindow::FileOfNewCompany(const std::string& name) {
    static const QRegularExpression noneOfAFile(R"([\\/:*?"<>|])");
    QFileDialog dialog(this, "新建帐套", newCompanies_ + "/" + Q(name).replace(noneOfAFile, "_") + ".db",
                       "帐套 (*.db)");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("db");
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // one that is there is refused
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().front() : "";
}

void MainWindow::NewCompany() {
    frmHostNewCompany screen;
    for (;;) {
        ShowModal(screen);
        if (!screen.wishes)
            return;
        const jxc::NewCompany wishes = *screen.wishes;
        const QString file = FileOfNewCompany(wishes.name);
        if (file.isEmpty() || !Attempt(screen.title, [&] { Create(file, wishes); }))
            continue;
        OpenOrStay([&] {
            TakeCompany(S(file), ReadFacts(S(file), wishes.user));
            return true;
        });
        return;
    }
}

} // namespace jxc
