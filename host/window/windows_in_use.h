// The application object, the view for people and its printer, in use for their lifetime.
#pragma once

#include <memory>

#include <QApplication>

#include "controls/view.h"
#include "view/focus_mark.h"
#include "view/qt_view.h"

namespace jxc {

class WindowsInUse {
  public:
    WindowsInUse();
    WindowsInUse(const WindowsInUse&) = delete;
    WindowsInUse& operator=(const WindowsInUse&) = delete;

    QtView& InView() { return view_; }

  private:
    int argc_ = 1;
    char name_[4] = "jxc";
    char* argv_[2] = {name_, nullptr};
    QApplication application_;
    FocusMark focus_;
    QtView view_;
    ViewInUse inUse_{view_};
};

} // namespace jxc
