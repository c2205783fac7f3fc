// What a host includes: the control lzJxc and the screens that it opens, with windows or without.
//
//     RegisterAllScreens();           // once
//     QtView view;                    // view/qt_view.h; or a view of the host's own (controls/view.h)
//     const ViewInUse inUse(view);
//     lzJxc control;                  // session/lzjxc.h
//     control.UserPath("company.db");
//     control.Refresh(13);            // document entry
#pragma once

#include "controls/view.h"
#include "session/lzjxc.h"

namespace jxc {

// Puts every screen of the system into the table of screens, in place of what a call before put there. Needs no view and
// no company.
void RegisterAllScreens();

} // namespace jxc
