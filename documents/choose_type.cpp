// Another type for a new document. The screen was shaped by the first one: only a type whose documents look the same
// can take its place, such as a receipt's return.

#include <cmath>
#include <tuple>

#include "base/text.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "session/lookups/book.h"
#include "session/lookups/lists.h"

namespace jxc {

namespace {

// What of a type's row the screen shows: which fields and columns there are, what they are called and what they
// offer, and which prices the lines took.
auto ShapeOf(const frmDj02& s, const TypeRow& type) {
    const auto warehouse = [](int kind, const std::string& caption) {
        return std::pair(kind, kind == kNoChoice ? "" : caption);
    };
    const std::string customer = type.HasCustomer() ? CustomerCaption(type) + AddressCaption(type) : "";
    return std::tuple(type.IsKit(), type.IsStocktake(), type.fSetNo == DocType::Opening,
                      BookStem(type.fSetNo, false), warehouse(type.fSetCkType1, FirstWarehouseCaption(type)),
                      warehouse(type.fSetCkType2, SecondWarehouseCaption(type)), type.fSetKhType, customer,
                      std::pair(type.fSetDjType1, type.fSetDjType2), type.fSetHb_, type.fSetHbSl_,
                      type.fSetKc_ || type.IsStocktake(),
                      type.fSetDjDd_ ? OrderTypeFor(type.fSetNo) : kNoChoice,
                      OffersPayment(s, type) ? PaymentCaption(type) : "");
}

// The list shows the document's type again.
void RefuseType(frmDj02& s, const std::string& reason) {
    s.cboInvType.SetIndex(ComboIndexByLeftValue(s.cboInvType, s.invType, 3));
    Warn(s.title, reason);
}

// Between a document and its return the quantities change their sign.
void TurnSigns(frmDj02& s, bool wasReturn) {
    s.chkTh.value = s.type.fSetDjBack_;
    Grid& grid = s.Grid2;
    for (int row = 1; row <= grid.RowCount() && wasReturn && !s.type.fSetDjBack_; ++row)
        grid.SetCell(row, line::kQuantity, std::fabs(grid.Number(row, line::kQuantity)));
    SetReturnSign(s);
}

} // namespace

void ChooseType(frmDj02& s) {
    const int chosen = s.cboInvType.Type();
    if (s.cboInvType.Index() < 0 || chosen == s.invType)
        return;
    const auto type = ReadTypeRow(chosen);
    if (!type)
        return RefuseType(s, "单据类型 " + std::to_string(chosen) + " 已停用。");
    if (ShapeOf(s, *type) != ShapeOf(s, s.type))
        return RefuseType(s, "[" + type->fSetName + "]与[" + s.type.fSetName +
                                 "]的栏目不同，不能在本窗口转换！\n\n请退出后从菜单或[单据查询]中新增[" +
                                 type->fSetName + "]。");
    const bool wasReturn = s.type.fSetDjBack_;
    s.invType = chosen;
    s.type = *type;
    s.title = s.type.fSetName + "：" + ActionWord(s.InHand());
    TurnSigns(s, wasReturn);
    if (!s.Number().empty() && s.Number() == s.madeNumber)
        MakeNumber(s); // the new type's rule makes it; a number that was typed stays
}

} // namespace jxc
