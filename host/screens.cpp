#include "host/screens.h"

#include "documents/frmDj02.h"
#include "stock/frmCkKc.h"

namespace jxc {

void RegisterAllScreens() {
    RegisterDocumentScreens();
    RegisterStockScreens();
}

} // namespace jxc
