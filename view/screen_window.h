// The window of one open screen: its form, with each widget bound to the control of the same name. The
// models are the truth: every gesture goes to them, and afterwards all widgets show what they say.
//
// Static texts are labels whose names begin with "label"; one that names a field (its buddy) is shown and
// hidden with it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include <QDialog>

#include "controls/screen.h"

class QAbstractButton;
class QLabel;

namespace jxc {

class Binding;
class QtView;

class ScreenWindow : public QDialog {
  public:
    // A ScreenError when the screen has no form, or the form does not fit it.
    ScreenWindow(QtView& view, Screen& screen, QWidget* parent);
    ~ScreenWindow() override;

    Screen& Shown() { return screen_; }
    QtView& InView() { return view_; }

    // Runs a gesture and shows what it did. Nothing thrown leaves: why a gesture was refused is told at the
    // foot with a sound, an error in a box. False when the gesture was refused, or raised a message box.
    bool Do(const std::function<void()>& gesture);
    // What the person is typing goes into the models: before a command acts on them. False when that raised a
    // message: the person looks at it first.
    bool FinishTyping();
    // Has the control take the focus of the screen; false when it must not.
    bool Arrive(Control& control);
    // Moves the focus to the next field in tab order, if the present one lets it go.
    void Step(bool forward);
    void Refresh();

    // The command by which the person leaves; null when the screen has none to be used.
    Command* LeaveCommand() const;
    // False when typed work would be lost and the person rather keeps it.
    bool MayDropWork();
    // A line at the foot in place of the function keys, until the next gesture.
    void Tell(const QString& text);

    // The binding of a control, of a widget or of one of its inner widgets; null when there is none.
    Binding* BindingOf(const Control& control) const;
    Binding* BindingOf(const QWidget* widget) const;

    void reject() override; // Esc closes the panel in hand, or goes to the leave button and leaves from there
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void LoadForm();
    void BindControls();
    void AddFunctionKeys();
    void PressByKey(QAbstractButton& button);
    void ShowFunctionKeys();
    void ShowFocus();
    void AddTabKeys();
    void TurnTab(int step);
    void Leave();

    QtView& view_;
    Screen& screen_;
    QWidget* form_ = nullptr;
    std::vector<std::unique_ptr<Binding>> bindings_;
    std::map<const Control*, Binding*> byControl_;
    std::vector<std::pair<QAbstractButton*, QString>> withKeys_;
    QLabel* keys_ = nullptr; // the line at the foot
    QString told_;           // stands there instead of the keys
    bool justTold_ = false;  // by the key or click at work
    int depth_ = 0;          // of gestures in each other
};

// The widgets of a screen by the names of its controls: laid out plainly where the screen says how, else from its .ui
// file. A ScreenError when it has neither, or the file is broken.
std::unique_ptr<QWidget> FormOf(Screen& screen);
// The .ui file of a screen as a resource path.
QString FormFileOf(const std::string& screen);

} // namespace jxc
