// The entries of the document screens: frmDj01, the list, and frmDj02, the entry.
#pragma once

namespace jxc {

void RegisterDocumentScreens();

} // namespace jxc
