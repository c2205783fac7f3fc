#include "host/window/window_script.h"

#include <stdexcept>

#include "view/qt_text.h"

// NOLINTBEGIN(readability-identifier-naming): Qt's name.
// How Qt's own library for tests sends keys: as the window system does, so that menus and shortcuts hear them too.
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key, Qt::KeyboardModifiers held,
                                    const QString& text, bool repeated, ushort count);
// NOLINTEND(readability-identifier-naming)

namespace jxc {

namespace {

constexpr int kPause = 40; // milliseconds for the windows to paint
constexpr int kTries = 25; // of having a window take the keyboard

QWidget& KeyboardsWindow() {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* window = popup ? popup : WindowInFront();
    if (!window || !window->windowHandle())
        throw std::runtime_error("没有窗口。");
    return *window;
}

// Without a desktop nothing hands the keyboard on when a window closes. True when the window in front has it.
bool HasKeyboard() {
    QWidget* window = WindowInFront();
    if (!window || window->isActiveWindow() || QApplication::activePopupWidget())
        return true;
    window->activateWindow();
    return false;
}

// The key that types an ASCII character, and what a key types.
int KeyOf(QChar character) {
    return character.toUpper().unicode();
}
QString TextOf(int key) {
    return key == Qt::Key_Return       ? QString("\r")
           : key <= Qt::Key_AsciiTilde ? QString(QChar(key)).toLower()
                                       : QString();
}

} // namespace

QWidget* WindowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == "mainWindow")
            return window;
    return nullptr;
}

void WindowScript::Send(int key, Qt::KeyboardModifiers held, const QString& text) {
    ++keys_;
    const QPointer<QWindow> window(KeyboardsWindow().windowHandle());
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        if (window) // the key may have closed it
            qt_handleKeyEvent(window, type, key, held, text, false, 1);
}

void WindowScript::Type(const QString& ascii) {
    Then([this, ascii] {
        for (const QChar character : ascii)
            Send(KeyOf(character), character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, character);
    });
}

void WindowScript::Compose(const QString& text, int keys) {
    Then([this, text, keys] {
        keys_ += keys;
        QInputMethodEvent event;
        event.setCommitString(text);
        if (QObject* focus = QApplication::focusObject())
            QCoreApplication::sendEvent(focus, &event);
    });
}

void WindowScript::Press(int key, Qt::KeyboardModifiers held, int times) {
    for (int time = 0; time < times; ++time)
        Then([this, key, held] { Send(key, held, TextOf(key)); });
}

void WindowScript::Click(const QString& name) {
    Then([name] {
        QWidget* window = WindowInFront();
        auto* button = window ? window->findChild<QAbstractButton*>(name) : nullptr;
        if (!button || !button->isVisible() || !button->isEnabled())
            throw std::runtime_error("不能按 " + S(name) + (window ? "：" + S(window->windowTitle()) : ""));
        button->setFocus();
        button->click();
    });
}

void WindowScript::Picture(const QString& file) {
    Then([file] {
        if (!KeyboardsWindow().grab().save(file))
            throw std::runtime_error("不能保存图片 " + S(file));
    });
}

void WindowScript::Run() {
    QEventLoop loop;
    Then([&loop] { loop.quit(); });
    Schedule();
    loop.exec();
}

void WindowScript::Schedule() {
    QTimer::singleShot(kPause, QCoreApplication::instance(), [this] { Next(); });
}

// The next step waits already while this one runs: it may open a window that needs it.
void WindowScript::Next() {
    if (steps_.empty())
        return;
    if (!HasKeyboard() && ++tries_ < kTries)
        return Schedule();
    tries_ = 0;
    auto step = std::move(steps_.front());
    steps_.pop_front();
    if (!steps_.empty())
        Schedule();
    try {
        step();
    } catch (const std::exception& error) {
        failure_ = error.what();
        if (!steps_.empty()) // the last one ends the script
            steps_.erase(steps_.begin(), steps_.end() - 1);
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(window); dialog && dialog->isVisible())
                dialog->QDialog::done(0);
    }
}

} // namespace jxc
