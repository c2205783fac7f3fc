// The tie between one control model and its widget. It turns what the person does to the widget into gestures
// on the model, and shows the model on the widget.
#pragma once

#include <memory>

#include <QObject>
#include <QWidget>

#include "controls/control.h"

namespace jxc {

class ScreenWindow;

class Binding : public QObject {
  public:
    Binding(ScreenWindow& window, Control& control, QWidget& widget);

    // Shows what the model says. Runs after every gesture: it must be cheap, and must not fire gestures.
    virtual void Refresh();
    virtual bool TakesFocus() const { return true; }
    virtual void TakeFocus(Qt::FocusReason reason) { widget.setFocus(reason); }
    // Hands over what is typed but not yet in the model: an open cell, half a date. False when that raised a
    // message.
    virtual bool FinishTyping() { return true; }

    Control& control;
    QWidget& widget;

    bool eventFilter(QObject* object, QEvent* event) override;

  protected:
    // Has the widget's events, and those of `inner`, come through the filter.
    void Watch(QWidget& inner) { inner.installEventFilter(this); }
    // A key that the person pressed; true when it has been dealt with.
    virtual bool OnKey(QKeyEvent& key);
    // Text that an input method has finished; true when it has been dealt with.
    virtual bool OnInput(QInputMethodEvent&) { return false; }
    // Enter: the model's own meaning of it, then on to the next field.
    void PressEnter();
    // Whether the person may go on in this field. One that the present field does not let them reach is not
    // entered; buttons ask when they are clicked.
    bool MayEnter();
    // Puts the focus back where the screen has it.
    void GiveFocusBack();

    ScreenWindow& window_;
};

// The binding that fits the control's kind, by the file: edits, buttons, grids. Null when the widget is of
// another kind.
std::unique_ptr<Binding> Bind(ScreenWindow& window, Control& control, QWidget& widget);
std::unique_ptr<Binding> BindEdit(ScreenWindow& window, Control& control, QWidget& widget);
std::unique_ptr<Binding> BindButton(ScreenWindow& window, Control& control, QWidget& widget);
std::unique_ptr<Binding> BindGrid(ScreenWindow& window, Control& control, QWidget& widget);
std::unique_ptr<Binding> BindTree(ScreenWindow& window, Control& control, QWidget& widget);

// Whether Bind would give a binding: for checks of the .ui files.
bool Fits(const Control& control, const QWidget& widget);

} // namespace jxc
