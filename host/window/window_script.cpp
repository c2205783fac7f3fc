#include "host/window/window_script.h"

#include <stdexcept>

#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr int kPause = 40; // milliseconds for the windows to paint

void Send(QWidget& to, int key, const QString& text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&to, &event);
    }
}

QWidget& Focused() {
    QWidget* window = WindowInFront();
    QWidget* focused = window ? window->focusWidget() : nullptr;
    if (!focused)
        focused = window;
    if (!focused)
        throw std::runtime_error("没有窗口。");
    return *focused;
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

void WindowScript::Type(const QString& text) {
    Then([text] {
        for (const QChar character : text)
            Send(Focused(), 0, character);
    });
}

void WindowScript::Press(int key) {
    Then([key] { Send(Focused(), key, key == Qt::Key_Return ? "\r" : ""); });
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
        QWidget* window = WindowInFront();
        if (!window || !window->grab().save(file))
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
