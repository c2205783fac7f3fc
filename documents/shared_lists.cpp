#include "documents/shared_lists.h"

#include "base/text.h"
#include "session/lookups/find_by_text.h"
#include "session/lookups/lists.h"
#include "settings/type_codes.h"

namespace jxc {

namespace {

constexpr int kNumberWidth = 3;

} // namespace

std::string TypesStatement() {
    return "Select fSetNo, fSetName from tJXC_InvSet Where fSetNo<" +
           std::to_string(DocType::FirstBeyondDocuments) + " And fSetNoUse_<>1 Order By fRowID";
}

std::string CurrenciesStatement() {
    return "Select MoneyCode,0 as aa from Moneys Order By MoneyType desc,MoneyCode";
}

std::string HandlersStatement(bool fromSalespeople) {
    return "Select fName,0 as aa from " + std::string(fromSalespeople ? "tJXC_Yj_Jbr" : "tRsBasic") +
           " Order By fCode";
}

void FillTypes(ListBox& list, int chosen) {
    FillCombo(TypesStatement(), list, kNumberWidth, true);
    list.SetIndex(ComboIndexByLeftValue(list, chosen, kNumberWidth));
}

int TypeOf(const std::string& item) {
    return static_cast<int>(Val(MidText(item, 1, kNumberWidth)));
}

void FillWarehouses(ListBox& list, int kind) {
    if (kind == kNoChoice)
        return list.Clear();
    FillCombo(WarehouseFilter(kind, "Select fCkName,0 as aaa from tJXC_Ck") + " Order By fCkCode", list);
}

void FillCurrencies(ListBox& list) {
    FillCombo(CurrenciesStatement(), list);
}

void FillHandlers(ListBox& list, bool fromSalespeople) {
    FillCombo(HandlersStatement(fromSalespeople), list);
}

} // namespace jxc
