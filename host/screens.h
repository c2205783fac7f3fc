#pragma once

namespace jxc {

// Puts every screen of the system into the table of screens.
void RegisterAllScreens();
void RegisterPlannedScreens(); // part of it: those that are still to come

} // namespace jxc
