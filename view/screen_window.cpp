#include "view/screen_window.h"

#include <QTimer>
#include <QUiLoader>

#include "controls/gestures.h"
#include "controls/leave.h"
#include "session/session.h"
#include "view/binding.h"
#include "view/plain_form.h"
#include "view/qt_text.h"
#include "view/qt_view.h"

namespace jxc {

std::unique_ptr<QWidget> FormOf(Screen& screen) {
    if (const Arrangement plain = screen.Arrange(); !plain.IsEmpty())
        return PlainForm(plain);
    QFile file(FormFileOf(screen.name));
    if (!file.open(QIODevice::ReadOnly))
        throw ScreenError("窗口 " + screen.name + " 没有界面文件。");
    QUiLoader loader;
    std::unique_ptr<QWidget> form(loader.load(&file));
    if (!form)
        throw ScreenError("窗口 " + screen.name + " 的界面文件有误：" + S(loader.errorString()));
    return form;
}

QString FormFileOf(const std::string& screen) {
    return ":/ui/" + Q(screen) + ".ui";
}

ScreenWindow::ScreenWindow(QtView& view, Screen& screen, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint), view_(view),
      screen_(screen) {
    setObjectName(Q(screen.name));
    LoadForm();
    BindControls();
    AddFunctionKeys();
    AddTabKeys();
    if (session.Language != 0)
        setFont(QFont("MS Sans Serif"));
    Refresh();
}

ScreenWindow::~ScreenWindow() {
    ++depth_; // what the widgets say while they go is no gesture
}

void ScreenWindow::LoadForm() {
    form_ = FormOf(screen_).release();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form_);
    resize(form_->size());
    if (QGuiApplication::platformName() != "offscreen") // its display has a size of no meaning
        resize(size().boundedTo(screen()->availableGeometry().size() - QSize(8, 40))); // with its frame
}

void ScreenWindow::BindControls() {
    for (Control* control : screen_.Controls()) {
        auto* widget = form_->findChild<QWidget*>(Q(control->name));
        if (!widget)
            continue;
        std::unique_ptr<Binding> binding = Bind(*this, *control, *widget);
        if (!binding)
            throw ScreenError("窗口 " + screen_.name + " 的 " + control->name + " 不是合适的控件。");
        byControl_[control] = binding.get();
        bindings_.push_back(std::move(binding));
    }
}

// The line at the foot tells the keys of the commands that can be pressed.
void ScreenWindow::AddFunctionKeys() {
    for (auto* button : form_->findChildren<QAbstractButton*>()) {
        const auto* command = dynamic_cast<Command*>(screen_.Find(S(button->objectName())));
        if (!command || command->shortcut.empty())
            continue;
        withKeys_.emplace_back(button, Q(command->shortcut));
        connect(new QShortcut(QKeySequence(Q(command->shortcut)), this), &QShortcut::activated, button,
                [this, button] { PressByKey(*button); });
    }
    keys_ = new QLabel;
    keys_->setContentsMargins(9, 0, 9, 6);
    QPalette colors = keys_->palette();
    colors.setColor(QPalette::WindowText, QColor(176, 0, 32)); // what is told there wants to be seen
    keys_->setPalette(colors);
    layout()->addWidget(keys_);
}

// The person goes on where they were, unless the command led elsewhere: an Enter typed next does not press the button.
void ScreenWindow::PressByKey(QAbstractButton& button) {
    if (!button.isVisible() || !button.isEnabled())
        return;
    const QPointer<QWidget> from = focusWidget();
    button.click();
    if (!from || !screen_.IsOpen() || focusWidget() != &button)
        return;
    if (Binding* back = BindingOf(from); back && back->control.IsUsable())
        back->TakeFocus(Qt::OtherFocusReason);
}

// Ctrl+Tab and Ctrl+PgDn turn to the next page that can be chosen.
void ScreenWindow::AddTabKeys() {
    if (!form_->findChild<QTabWidget*>())
        return;
    for (const auto& [keys, step] :
         {std::pair("Ctrl+Tab", 1), {"Ctrl+PgDown", 1}, {"Ctrl+Shift+Tab", -1}, {"Ctrl+PgUp", -1}})
        connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this,
                [this, step = step] { TurnTab(step); });
}

void ScreenWindow::TurnTab(int step) {
    auto* tabs = form_->findChild<QTabWidget*>();
    const int pages = tabs->count();
    for (int page = (tabs->currentIndex() + step + pages) % pages; page != tabs->currentIndex();
         page = (page + step + pages) % pages)
        if (tabs->isTabEnabled(page))
            return tabs->setCurrentIndex(page);
}

void ScreenWindow::ShowFunctionKeys() {
    QStringList told;
    for (const auto& [button, key] : withKeys_)
        if (button->isVisibleTo(this) && button->isEnabled())
            told << key + " " + WithoutMnemonic(S(button->text()));
    if (form_->findChild<QTabWidget*>())
        told << "Ctrl+Tab 换页";
    keys_->setText(told_.isEmpty() ? told.join("    ") : told_);
    keys_->setForegroundRole(told_.isEmpty() ? QPalette::PlaceholderText : QPalette::WindowText);
    QFont font = this->font();
    font.setBold(!told_.isEmpty());
    keys_->setFont(font);
    keys_->setVisible(!keys_->text().isEmpty());
}

bool ScreenWindow::Do(const std::function<void()>& gesture) {
    const int boxes = view_.BoxesShown();
    bool accepted = true;
    if (depth_++ == 0 && !justTold_)
        told_.clear();
    try {
        gesture();
    } catch (const GestureRefused& refused) {
        accepted = false;
        view_.Signal(refused.what());
    } catch (const std::exception& error) {
        accepted = false;
        WarnOfError(screen_.title, error);
    }
    --depth_;
    if (!screen_.IsOpen())
        done(0);
    else if (depth_ == 0)
        Refresh();
    return accepted && boxes == view_.BoxesShown();
}

void ScreenWindow::Tell(const QString& text) {
    told_ = text;
    justTold_ = true; // one key or click can bring several gestures: the line outlives those behind it
    QTimer::singleShot(0, this, [this] { justTold_ = false; });
    ShowFunctionKeys();
}

bool ScreenWindow::FinishTyping() {
    return depth_ > 0 || std::all_of(bindings_.begin(), bindings_.end(),
                                     [](const auto& binding) { return binding->FinishTyping(); });
}

bool ScreenWindow::Arrive(Control& control) {
    if (depth_ > 0 || !screen_.IsOpen() || screen_.Focus() == &control)
        return true;
    if (!control.IsUsable() || !FinishTyping())
        return false;
    bool arrived = false;
    Do([&] { arrived = GoTo(screen_, control); });
    return arrived;
}

void ScreenWindow::Step(bool forward) {
    QWidget* from = focusWidget();
    if (!from || !FinishTyping())
        return;
    Binding* here = BindingOf(from);
    const auto next = [forward](QWidget* w) {
        return forward ? w->nextInFocusChain() : w->previousInFocusChain();
    };
    for (QWidget* to = next(from); to != from; to = next(to)) {
        Binding* there = BindingOf(to);
        if (!there || there == here || !there->TakesFocus() || !to->isVisible() || !to->isEnabled() ||
            !(to->focusPolicy() & Qt::TabFocus))
            continue;
        if (Arrive(there->control) && screen_.IsOpen() && screen_.Focus() == &there->control)
            there->TakeFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return;
    }
}

void ScreenWindow::Refresh() {
    ++depth_;
    setWindowTitle(Q(screen_.title));
    for (const auto& binding : bindings_)
        binding->Refresh();
    for (auto* label : form_->findChildren<QLabel*>())
        if (label->buddy() && label->objectName().startsWith("label"))
            label->setVisible(label->buddy()->isVisibleTo(label->parentWidget()));
    ShowFunctionKeys();
    ShowFocus();
    --depth_;
}

// Where the screen has its focus, the window has it too. A screen without one gets the control where the
// window has its own, unless a routine is at work: one that leaves a control has the focus nowhere until it
// is done.
void ScreenWindow::ShowFocus() {
    Binding* here = BindingOf(focusWidget());
    if (Control* wanted = screen_.Focus()) {
        Binding* there = BindingOf(*wanted);
        if (there && there != here)
            there->TakeFocus(Qt::OtherFocusReason);
    } else if (depth_ == 1 && here && here->TakesFocus() && here->control.IsUsable() &&
               !dynamic_cast<Command*>(&here->control)) {
        screen_.MoveFocus(&here->control);
    }
}

Binding* ScreenWindow::BindingOf(const Control& control) const {
    const auto found = byControl_.find(&control);
    return found == byControl_.end() ? nullptr : found->second;
}

Binding* ScreenWindow::BindingOf(const QWidget* widget) const {
    for (; widget && widget != this; widget = widget->parentWidget())
        for (const auto& binding : bindings_)
            if (&binding->widget == widget)
                return binding->TakesFocus() ? binding.get() : nullptr;
    return nullptr;
}

Command* ScreenWindow::LeaveCommand() const {
    return LeaveCommandOf(screen_);
}

void ScreenWindow::reject() {
    const Binding* here = BindingOf(focusWidget());
    if (Command* closes = here ? screen_.PanelCommand(here->control) : nullptr) {
        Do([&] { Click(screen_, *closes); });
        return;
    }
    Command* leave = LeaveCommand();
    Binding* button = leave ? BindingOf(*leave) : nullptr;
    if (button && BindingOf(focusWidget()) != button)
        return button->TakeFocus(Qt::ShortcutFocusReason);
    Leave();
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    Leave();
}

bool ScreenWindow::MayDropWork() {
    bool may = false;
    Do([&] { may = jxc::MayDropWork(screen_); });
    return may;
}

void ScreenWindow::Leave() {
    Command* leave = LeaveCommand();
    if (!FinishTyping() || !MayDropWork())
        return;
    Do([&] {
        if (leave && leave->onClick)
            leave->onClick();
        else
            screen_.Close();
    });
}

// The first field has the focus unless the screen said otherwise.
void ScreenWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (Control* wanted = screen_.Focus(); wanted && BindingOf(*wanted))
        return BindingOf(*wanted)->TakeFocus(Qt::OtherFocusReason);
    for (QWidget* to = form_->nextInFocusChain(); to != form_; to = to->nextInFocusChain()) {
        Binding* there = BindingOf(to);
        if (!there || !to->isVisible() || !to->isEnabled() || !(to->focusPolicy() & Qt::TabFocus))
            continue;
        if (Arrive(there->control))
            there->TakeFocus(Qt::OtherFocusReason);
        return;
    }
}

} // namespace jxc
