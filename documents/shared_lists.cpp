#include "documents/shared_lists.h"

#include "controls/text.h"
#include "session/lists.h"
#include "session/lookups.h"

namespace jxc {

namespace {

constexpr int kNumberWidth = 3;

} // namespace

void FillTypes(ListBox& list, int chosen) {
    FillCombo("Select fSetNo, fSetName from tJXC_InvSet Where fSetNo<50 And fSetNoUse_<>1 Order By fRowID",
              list, kNumberWidth, true);
    list.SetIndex(ComboIndexByLeftValue(list, chosen, kNumberWidth));
}

int TypeOf(const std::string& item) {
    return static_cast<int>(Val(MidText(item, 1, kNumberWidth)));
}

void FillWarehouses(ListBox& list, int kind) {
    if (kind == -1)
        return list.Clear();
    FillCombo(WarehouseFilter(kind, "Select fCkName,0 as aaa from tJXC_Ck") + " Order By fCkCode", list);
}

void FillCurrencies(ListBox& list) {
    FillCombo("Select MoneyCode,0 as aa from Moneys Order By MoneyType desc", list);
}

void FillHandlers(ListBox& list, bool fromSalespeople) {
    FillCombo("Select fName,0 as aa from " + std::string(fromSalespeople ? "tJXC_Yj_Jbr" : "tRsBasic") +
                  " Order By fCode",
              list);
}

} // namespace jxc
