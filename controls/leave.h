// Leaving a screen as the frame of its window does.
#pragma once

#include "controls/control.h"

namespace jxc {

// The command with which the screen is left and which can be used now; null when there is none.
Command* LeaveCommandOf(const Screen& screen);

// By that command, so that the screen leaves behind what leaving means; asks nothing. A screen without one is closed.
void Leave(Screen& screen);

} // namespace jxc
