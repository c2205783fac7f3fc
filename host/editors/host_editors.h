// The host's own screens, by which a company is set up: they belong to the program around the module, have no screen
// number and are opened by name.
#pragma once

namespace jxc {

void RegisterHostEditors();

} // namespace jxc
