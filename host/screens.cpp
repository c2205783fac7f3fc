#include "host/screens.h"

#include "documents/frmDj02.h"
#include "host/editors/host_editors.h"
#include "settings/frmRs_RptSet.h"
#include "stock/frmCkKc.h"

namespace jxc {

void RegisterAllScreens() {
    RegisterSettingsScreens();
    RegisterDocumentScreens();
    RegisterStockScreens();
    RegisterHostEditors();
}

} // namespace jxc
