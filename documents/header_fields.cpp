// Date, warehouses, currency and quick payment of the document in hand.

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/figure_bounds.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/lookups/find_by_text.h"
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
    if (DbCount("tJXC_CkDj01",
                "fInvType=" + std::to_string(DocType::Opening) + " And fCkName=" + InQuotes(warehouse)) > 0)
        Warn(
            s.title,
            "注意：每个仓库最好设置一张[期初单]！\n\n该仓库的[期初单]已有存在，建议您选择原[期初单]的修改。");
}

} // namespace

void MakeNumber(frmDj02& s) {
    s.madeNumber = NextDocumentNo(*s.dtpInvDate.date, s.type.fSetAutoNo, s.invType);
    if (AnsiByteLength(s.madeNumber) > s.txtNo.maxBytes) {
        Warn(s.title, "自动单号 " + s.madeNumber + " 超过 " + std::to_string(s.txtNo.maxBytes) +
                          " 个字节，请在 [单据类型设置] 中缩短单号规则，或自行输入单号！");
        s.madeNumber.clear();
    } else if (HasUsedUpCounter(s.madeNumber, s.type.fSetAutoNo)) {
        CurrentView().Signal(
            "自动单号的计数位已经用完，又从 0 开始：请自行输入单号，或在 [单据类型设置] 中增加计数位。");
    }
    s.txtNo.text = s.madeNumber;
}

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
        MakeNumber(s);
    return true;
}

void ChooseWarehouse(frmDj02& s, bool second) {
    const std::string warehouse = (second ? s.cboCkName2 : s.cboCkName).Chosen();
    const int kind = second ? s.type.fSetCkType2 : s.type.fSetCkType1;
    if (s.InHand() == DocAction::New && !warehouse.empty()) {
        if (s.invType == DocType::Opening)
            WarnOfSecondOpening(s, warehouse);
        if (kind == WarehouseKind::Consignment && s.type.fSetKhType == Partner::Consignee)
            FollowConsignee(s, warehouse);
    }
    RefreshGridStock(s);
}

std::string RateStatement(const std::string& currency) {
    return "Select MoneyRate from Moneys where MoneyCode=" + InQuotes(currency);
}

void ChooseCurrency(frmDj02& s) {
    const std::string code = s.cboInvHb.Chosen();
    ShowRate(s, code.empty() ? 1 : Val(DbScalar(RateStatement(code))));
}

void ShowRate(frmDj02& s, double rate) {
    s.txtInvHbDl.text = s.txtInvHbDl.tag = FormatFixed(rate, kRateDecimals);
}

// The rate before comes back: a person who only wanted to choose another currency is not held here.
void LeaveRate(frmDj02& s) {
    const double rate = Val(s.txtInvHbDl.text);
    if (s.txtInvHbDl.text == s.txtInvHbDl.tag)
        return;
    if (RoundDecimal(rate, kRateDecimals) > 0 && !Reaches(rate, below::kRate))
        return ShowRate(s, rate);
    s.txtInvHbDl.text = s.txtInvHbDl.tag;
    Warn(s.title, rate > 0 ? BoundText("汇率", below::kRate) : "汇率必须大于 0！");
}

bool FormatPayment(frmDj02& s) {
    std::string typed = s.txtSsSf.text;
    std::erase(typed, ',');
    const double payment = IsNumericText(typed) ? Val(typed) : 0;
    if (Reaches(payment, below::kAmount)) {
        Warn(s.title, BoundText(s.lblSsSf.caption, below::kAmount));
        return false;
    }
    s.txtSsSf.text = FormatFixed(payment, kAmountDecimals);
    return true;
}

} // namespace jxc
