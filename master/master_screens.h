// The screens of master data in the table of screens.
#pragma once

namespace jxc {

void RegisterMasterScreens();

} // namespace jxc
