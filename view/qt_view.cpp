#include "view/qt_view.h"

#include "view/qt_text.h"
#include "view/screen_window.h"

// The forms stand in a library of which a host takes only what is asked for; the macro wants no namespace around it.
static void UseForms() {
    Q_INIT_RESOURCE(lzjxc_forms);
}

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
    case BoxButton::Save:
        return "存盘(&S)";
    case BoxButton::Discard:
        return "放弃(&D)";
    case BoxButton::OK:
        break;
    }
    return "确定(&O)";
}

QMessageBox::ButtonRole RoleOf(BoxButton button) {
    return button == BoxButton::Cancel || button == BoxButton::No ? QMessageBox::RejectRole
                                                                  : QMessageBox::AcceptRole;
}

constexpr int kFrameWidth = 140; // of a window's frame beside its title: icon and buttons
constexpr int kWidestBox = 860;

// A window's frame cuts a title that is wider than the window. The box gets as wide; a title too long for
// that stands above the text as well.
void ShowTitle(QMessageBox& window, const MessageBox& box) {
    QFont bold = window.font();
    bold.setBold(true); // as most frames have it
    const int width = QFontMetrics(bold).horizontalAdvance(Q(box.title)) + kFrameWidth;
    if (width > kWidestBox)
        window.setText(Q(box.title + "\n\n" + box.text));
    auto* layout = static_cast<QGridLayout*>(window.layout());
    layout->addItem(new QSpacerItem(std::min(width, kWidestBox), 0), layout->rowCount(), 0, 1,
                    layout->columnCount());
}

// A button that opens the cause below, and closes it again.
void AddDetails(QMessageBox& window, const std::string& details) {
    auto* shown = new QPlainTextEdit(Q(details));
    shown->setObjectName("details");
    shown->setReadOnly(true);
    shown->setFixedHeight(160);
    shown->setMinimumWidth(480);
    shown->hide();
    auto* layout = static_cast<QGridLayout*>(window.layout());
    layout->addWidget(shown, layout->rowCount(), 0, 1, layout->columnCount());
    QPushButton* button = window.addButton("详情(&D)", QMessageBox::HelpRole);
    button->setObjectName("showDetails");
    button->disconnect(); // the box would take it for an answer
    QObject::connect(button, &QPushButton::clicked, shown,
                     [shown] { shown->setVisible(!shown->isVisible()); });
}

constexpr int kPatience = 300; // milliseconds before a progress window shows

} // namespace

// The step that long work is at. The person can do nothing with it, not even close it: the work holds a
// transaction. Only work that asks whether it shall stop holds none, and can be stopped.
class ProgressWindow : public QDialog {
  public:
    explicit ProgressWindow(QWidget* parent)
        : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
        setModal(true);
        setMinimumWidth(360);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(step_);
        layout->addWidget(bar_);
        layout->addWidget(stop_, 0, Qt::AlignRight);
        stop_->setObjectName("stop");
        stop_->hide();
        connect(stop_, &QPushButton::clicked, this, [this] { stopped_ = true; });
        if (parent)
            setWindowTitle(parent->windowTitle());
        sinceBegin_.start();
    }

    void Show(const QString& step, int done, int total) {
        step_->setText(step);
        bar_->setRange(0, total);
        bar_->setValue(done);
        if (!isVisible() && sinceBegin_.elapsed() < kPatience)
            return;
        show();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }

    // Work that asks can be stopped: by the button, or Esc.
    bool StopAsked() {
        if (stopped_ || !isVisible())
            return stopped_;
        stop_->show();
        QCoreApplication::processEvents();
        return stopped_;
    }

    void reject() override { stopped_ = true; }
    void closeEvent(QCloseEvent* event) override { event->ignore(); }

  private:
    bool stopped_ = false;
    QPushButton* stop_ = new QPushButton("停止");
    QLabel* step_ = new QLabel;
    QProgressBar* bar_ = new QProgressBar;
    QElapsedTimer sinceBegin_;
};

// The database does not answer: what it is, for how long, and a way out. Everything else waits.
class WaitingWindow : public QDialog {
  public:
    explicit WaitingWindow(QWidget* parent)
        : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
        setObjectName("waiting");
        setModal(true);
        setMinimumWidth(360);
        setWindowTitle("请稍候");
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(text_);
        auto* cancel = new QPushButton("取消(&C)");
        cancel->setAutoDefault(false); // the next Enter of somebody who types on means no giving up
        cancel->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(cancel, 0, Qt::AlignRight);
        connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
        show();
    }

    // False when the person gave up.
    bool Show(int seconds) {
        text_->setText(QString("正在等待数据库（数据很多，或其他用户正在存盘）：%1 秒").arg(seconds));
        QCoreApplication::processEvents();
        return !gaveUp_;
    }
    void reject() override { gaveUp_ = true; }

  private:
    QLabel* text_ = new QLabel;
    bool gaveUp_ = false;
};

// A letter typed ahead, of the next code, say, must not answer a question that it was not meant for; with Alt it does.
class AnswerBox : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool bare = !(event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier));
        if (bare && !event->text().isEmpty() && event->text().at(0).isPrint() &&
            event->key() != Qt::Key_Space)
            return event->accept();
        QMessageBox::keyPressEvent(event);
    }
};

QtView::QtView() {
    UseForms();
}
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
    AnswerBox window(IconOf(box.icon), Q(box.title), Q(box.text), QMessageBox::NoButton,
                     Front() ? Front() : QApplication::activeWindow());
    window.setTextFormat(Qt::PlainText);
    std::vector<QAbstractButton*> buttons;
    for (BoxButton button : box.buttons) {
        QPushButton* added = window.addButton(CaptionOf(button), RoleOf(button));
        added->setObjectName(QString::fromUtf8(ButtonName(button)));
        buttons.push_back(added);
    }
    ShowTitle(window, box);
    if (!box.details.empty())
        AddDetails(window, box.details);
    window.setDefaultButton(static_cast<QPushButton*>(buttons[box.preset]));
    window.setEscapeButton(buttons.back());
    window.exec();
    const auto clicked = std::find(buttons.begin(), buttons.end(), window.clickedButton());
    return clicked == buttons.end() ? box.buttons.back()
                                    : box.buttons[static_cast<size_t>(clicked - buttons.begin())];
}

void QtView::ShowProgress(const std::string& step, int done, int total) {
    if (total <= 0) {
        progress_.reset();
        return;
    }
    if (!progress_)
        progress_ = std::make_unique<ProgressWindow>(Front());
    progress_->Show(Q(step), done, total);
}

bool QtView::StopAsked() {
    return progress_ && progress_->StopAsked();
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

bool QtView::KeepWaiting(int seconds) {
    if (seconds < 0) {
        waiting_.reset();
        return true;
    }
    if (!waiting_)
        waiting_ = std::make_unique<WaitingWindow>(Front() ? Front() : QApplication::activeWindow());
    return waiting_->Show(seconds);
}

void QtView::Signal(const std::string& text) {
    QApplication::beep();
    if (Front())
        Front()->Tell(Q(text));
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
