#include "host/embedding.h"

#include "close/frmJz_Step.h"
#include "documents/document_screens.h"
#include "host/editors/host_editors.h"
#include "host/planned_screens.h"
#include "master/master_screens.h"
#include "plans/frmJh02.h"
#include "settings/frmRs_RptSet.h"
#include "stock/frmCkKc.h"

namespace jxc {

void RegisterAllScreens() {
    RegisterSettingsScreens();
    RegisterMasterScreens();
    RegisterStockScreens();
    RegisterDocumentScreens();
    RegisterPlanScreens();
    RegisterPlannedScreens();
    RegisterCloseScreens();
    RegisterHostEditors();
}

} // namespace jxc
