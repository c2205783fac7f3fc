#pragma once

namespace jxc {

// Puts every screen of the system into the table of screens.
void RegisterAllScreens();

} // namespace jxc
