#pragma once

namespace jxc {

// Puts the screens that are still to come into the table of screens.
void RegisterPlannedScreens();

} // namespace jxc
