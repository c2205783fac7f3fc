// Date, warehouses, currency and quick payment of the document in hand.

#include "controls/text.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "session/database/recordset.h"
#include "session/database/routines.h"
#include "session/lookups.h"
#include "session/session.h"
#include "settings/document_numbers.h"

namespace jxc {

namespace {

// A consignment warehouse belongs to one consignee, who becomes the document's customer.
void FollowConsignee(frmDj02& s, const std::string& warehouse) {
    const auto card = static_cast<std::int64_t>(
        Val(DbScalar("Select fKhID from tJxc_Ck Where fCkName=" + InQuotes(warehouse))));
    if (card <= 0)
        return;
    ShowCustomer(s, card);
}

void WarnOfSecondOpening(const frmDj02& s, const std::string& warehouse) {
    if (DbCount("tJXC_CkDj01", "fInvType=0 And fCkName=" + InQuotes(warehouse)) > 0)
        Warn(
            s.title,
            "注意：每个仓库最好设置一张[期初单]！\n\n该仓库的[期初单]已有存在，建议您选择原[期初单]的修改。");
}

} // namespace

bool LeaveDate(frmDj02& s) {
    if (!IsEditing(s.InHand()))
        return true;
    if (!s.dtpInvDate.date)
        s.dtpInvDate.date = Today();
    if (*s.dtpInvDate.date < s.parameters.periodStart) {
        Warn(s.title, "本期起始日期为：" + IsoText(s.parameters.periodStart));
        s.dtpInvDate.date = s.parameters.periodStart;
    }
    if (s.InHand() == DocAction::New)
        s.txtNo.text = NextDocumentNo(*s.dtpInvDate.date, s.type.fSetAutoNo, s.invType);
    return true;
}

void ChooseWarehouse(frmDj02& s, bool second) {
    const std::string warehouse = (second ? s.cboCkName2 : s.cboCkName).Chosen();
    const int kind = second ? s.type.fSetCkType2 : s.type.fSetCkType1;
    if (s.InHand() == DocAction::New && !warehouse.empty()) {
        if (s.invType == 0)
            WarnOfSecondOpening(s, warehouse);
        if (kind == 3 && s.type.fSetKhType == 3)
            FollowConsignee(s, warehouse);
    }
    RefreshGridStock(s);
}

void ChooseCurrency(frmDj02& s) {
    const std::string code = s.cboInvHb.Chosen();
    if (code.empty()) {
        s.txtInvHbDl.text = FormatFixed(1, 4);
        return;
    }
    const std::string rate = DbScalar("Select MoneyRate from Moneys where MoneyCode=" + InQuotes(code));
    s.txtInvHbDl.text = FormatFixed(Val(rate), 4);
}

void FormatPayment(frmDj02& s) {
    std::string typed = s.txtSsSf.text;
    std::erase(typed, ',');
    s.txtSsSf.text = IsNumericText(typed) ? FormatFixed(Val(typed), 2) : "0.00";
}

} // namespace jxc
