// Plays a script on the windows: one step each time the program waits for the person, in whatever window is
// in front then, also in those that a step before opened.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include <QString>

class QWidget;

namespace jxc {

class WindowScript {
  public:
    void Then(std::function<void()> step) { steps_.push_back(std::move(step)); }
    // Characters and keys come to the window in front as from the window system.
    void Type(const QString& ascii);
    void Press(int key, Qt::KeyboardModifiers held = Qt::NoModifier, int times = 1);
    // Text from an input method, for which the person presses so many keys.
    void Compose(const QString& text, int keys);
    void Click(const QString& button); // of the window in front, by object name
    void Picture(const QString& file); // of the window in front
    // Runs the steps until all are done; windows that are still open then are closed.
    void Run();

    // What did not go as told; empty when all went well.
    const std::string& Failure() const { return failure_; }
    // Pressed so far.
    int Keys() const { return keys_; }

  private:
    void Send(int key, Qt::KeyboardModifiers held, const QString& text);
    void Schedule();
    void Next();
    std::deque<std::function<void()>> steps_;
    std::string failure_;
    int keys_ = 0;
    int tries_ = 0;
};

// The window that the person would see in front.
QWidget* WindowInFront();

} // namespace jxc
