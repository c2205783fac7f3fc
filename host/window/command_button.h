// A button that Enter presses too: in a window that is no dialog Enter does not press buttons by itself.
#pragma once

#include <QKeyEvent>
#include <QPushButton>

namespace jxc {

class CommandButton : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QPushButton::keyPressEvent(event);
    }
};

} // namespace jxc
