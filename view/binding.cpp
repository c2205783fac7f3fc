#include "view/binding.h"

#include "controls/gestures.h"
#include "view/qt_view.h"
#include "view/screen_window.h"

namespace jxc {

Binding::Binding(ScreenWindow& window, Control& control, QWidget& widget)
    : control(control), widget(widget), window_(window) {
    Watch(widget);
}

void Binding::Refresh() {
    if (widget.isVisibleTo(widget.parentWidget()) != control.IsShown())
        widget.setVisible(control.IsShown());
    if (widget.isEnabled() != control.IsUsable())
        widget.setEnabled(control.IsUsable() || !control.IsShown());
}

void Binding::GiveFocusBack() {
    Control* held = window_.Shown().Focus();
    Binding* there = held ? window_.BindingOf(*held) : nullptr;
    if (there && there != this)
        there->TakeFocus(Qt::OtherFocusReason);
}

bool Binding::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        return OnKey(static_cast<QKeyEvent&>(*event));
    case QEvent::InputMethod:
        return OnInput(static_cast<QInputMethodEvent&>(*event));
    case QEvent::MouseButtonPress:
        return !MayEnter();
    case QEvent::FocusIn: {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        const bool byKeys = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
                            reason != Qt::MouseFocusReason; // the press behind it asks
        if (byKeys)
            MayEnter();
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

bool Binding::MayEnter() {
    if (!TakesFocus() || dynamic_cast<Command*>(&control) || window_.Arrive(control))
        return true;
    QMetaObject::invokeMethod(
        this, [this] { GiveFocusBack(); }, Qt::QueuedConnection);
    return false;
}

bool Binding::OnKey(QKeyEvent& key) {
    if (key.modifiers() & Qt::ControlModifier)
        return false; // pages are turned so
    switch (key.key()) {
    case Qt::Key_Tab:
        window_.Step(true);
        return true;
    case Qt::Key_Backtab:
        window_.Step(false);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        PressEnter();
        return true;
    default:
        return false;
    }
}

void Binding::PressEnter() {
    Screen& screen = window_.Shown();
    if (!FinishTyping())
        return;
    const bool quiet = !control.onKey || window_.Do([&] { PressKey(screen, control, "Enter"); });
    const bool still = !screen.Focus() || screen.Focus() == &control;
    if (quiet && screen.IsOpen() && still)
        window_.Step(true);
}

std::unique_ptr<Binding> Bind(ScreenWindow& window, Control& control, QWidget& widget) {
    for (const auto bind : {&BindEdit, &BindButton, &BindGrid, &BindTree})
        if (std::unique_ptr<Binding> binding = bind(window, control, widget))
            return binding;
    return nullptr;
}

bool Fits(const Control& control, const QWidget& widget) {
    switch (control.kind) {
    case ControlKind::Text:
        return qobject_cast<const QLineEdit*>(&widget);
    case ControlKind::Label:
    case ControlKind::Picture:
        return qobject_cast<const QLabel*>(&widget);
    case ControlKind::Button:
    case ControlKind::Menu:
        return qobject_cast<const QAbstractButton*>(&widget);
    case ControlKind::Check:
        return qobject_cast<const QCheckBox*>(&widget);
    case ControlKind::Option:
        return qobject_cast<const QRadioButton*>(&widget);
    case ControlKind::List:
        if (const auto* box = qobject_cast<const QComboBox*>(&widget))
            return box->isEditable() == static_cast<const ListBox&>(control).editable;
        return false;
    case ControlKind::Date:
        return qobject_cast<const QDateEdit*>(&widget);
    case ControlKind::Grid:
        return qobject_cast<const QTableView*>(&widget);
    case ControlKind::Tree:
        return qobject_cast<const QTreeWidget*>(&widget);
    case ControlKind::Tabs:
        return qobject_cast<const QTabWidget*>(&widget);
    case ControlKind::Frame:
        return qobject_cast<const QFrame*>(&widget) || qobject_cast<const QGroupBox*>(&widget) ||
               widget.metaObject() == &QWidget::staticMetaObject;
    }
    return false;
}

} // namespace jxc
