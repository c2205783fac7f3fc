#include "view/qt_view.h"

#include "view/screen_window.h"
#include "view/text.h"

namespace jxc {

namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Warning:
        return QMessageBox::Warning;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Information:
        break;
    }
    return QMessageBox::Information;
}

QString CaptionOf(BoxButton button) {
    switch (button) {
    case BoxButton::Cancel:
        return "取消(&C)";
    case BoxButton::Yes:
        return "是(&Y)";
    case BoxButton::No:
        return "否(&N)";
    case BoxButton::OK:
        break;
    }
    return "确定(&O)";
}

QMessageBox::ButtonRole RoleOf(BoxButton button) {
    return button == BoxButton::Cancel || button == BoxButton::No ? QMessageBox::RejectRole
                                                                  : QMessageBox::AcceptRole;
}

constexpr int kPatience = 300; // milliseconds before a progress window shows

} // namespace

QtView::QtView() = default;
QtView::~QtView() = default;

void QtView::RunModal(Screen& screen) {
    QWidget* parent = Front();
    ScreenWindow window(*this, screen, parent ? parent : QApplication::activeWindow());
    windows_.push_back(&window);
    window.exec();
    windows_.pop_back();
}

BoxButton QtView::ShowBox(const MessageBox& box) {
    if (Front())
        Front()->Refresh();
    ++boxesShown_;
    QMessageBox window(IconOf(box.icon), Q(box.title), Q(box.text), QMessageBox::NoButton,
                       Front() ? Front() : QApplication::activeWindow());
    window.setTextFormat(Qt::PlainText);
    std::vector<QAbstractButton*> buttons;
    for (BoxButton button : box.buttons) {
        QPushButton* added = window.addButton(CaptionOf(button), RoleOf(button));
        added->setObjectName(QString::fromUtf8(ButtonName(button)));
        buttons.push_back(added);
    }
    window.setDefaultButton(static_cast<QPushButton*>(buttons.front()));
    window.setEscapeButton(buttons.back());
    window.exec();
    const auto clicked = std::find(buttons.begin(), buttons.end(), window.clickedButton());
    return clicked == buttons.end() ? box.buttons.back()
                                    : box.buttons[static_cast<size_t>(clicked - buttons.begin())];
}

// The step is painted, but nothing that the person does is taken until the work is done.
void QtView::ShowProgress(const std::string& step, int done, int total) {
    if (total <= 0) {
        progress_.reset();
        return;
    }
    if (!progress_) {
        progress_ = std::make_unique<QProgressDialog>(Front());
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setCancelButton(nullptr);
        progress_->setMinimumDuration(kPatience);
        progress_->setAutoClose(false);
        progress_->setAutoReset(false);
        if (Front())
            progress_->setWindowTitle(Front()->windowTitle());
    }
    progress_->setLabelText(Q(step));
    progress_->setMaximum(total);
    progress_->setValue(done);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtView::ShowNotice(const std::string& title, const std::string& text) {
    QDialog window(Front());
    window.setWindowTitle(Q(title));
    window.resize(640, 480);
    auto* layout = new QVBoxLayout(&window);
    auto* report = new QPlainTextEdit(Q(text));
    report->setReadOnly(true);
    layout->addWidget(report);
    auto* close = new QPushButton("关闭(&C)");
    QObject::connect(close, &QPushButton::clicked, &window, &QDialog::accept);
    layout->addWidget(close, 0, Qt::AlignRight);
    close->setFocus();
    window.exec();
}

void QtView::OpenAddress(const std::string& address) {
    const QUrl url = QFileInfo(Q(address)).isAbsolute() ? QUrl::fromLocalFile(Q(address)) : QUrl(Q(address));
    if (!QDesktopServices::openUrl(url))
        throw ScreenError("没有程序可以打开：" + address);
}

void QtView::DialNumber(const std::string&) {}

std::string QtView::Clipboard() {
    return S(QApplication::clipboard()->text());
}

void QtView::SetClipboard(const std::string& text) {
    QApplication::clipboard()->setText(Q(text));
}

} // namespace jxc
