#include "host/editors/frmHostMoneys.h"

#include "base/text.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

const std::vector<Use> kUses{
    {"tJXC_CkDj01 Where fInvHb=", "仓库单据"},       {"tJXC_CkHt01 Where fInvHb=", "合同订单"},
    {"tJXC_CkJh01 Where fInvHb=", "计划单"},         {"tJXC_CkXjBj01 Where fInvHb=", "询价报价单"},
    {"tJXC_CkDj_Bak01 Where fInvHb=", "已结帐单据"}, {"tAccountDetail Where fMoneyCode=", "帐户单"},
};

// The home currency when another one than that in hand is, "" when none is.
std::string OtherHomeCurrency(const frmHostMoneys& s) {
    const Recordset home(Conn(), "Select MoneyCode From " + OtherRows(s) + " And MoneyType=1");
    return home.AtEnd() ? "" : home["MoneyCode"].AsText();
}

bool IsUsed(const std::string& currency) {
    return !currency.empty() && !WhereUsed(kUses, InQuotes(currency)).empty();
}

} // namespace

frmHostMoneys::frmHostMoneys()
    : ListEditor("frmHostMoneys", "货币", {"Moneys", "MoneyCode", "MoneyType desc,MoneyCode", kUses}) {
    mark = &chkMoneyType;
    SetColumns(
        {{"货币", "MoneyCode", 12},
         {.caption = "汇率", .field = "MoneyRate", .width = 12, .figure = Figure::Number, .decimals = 4},
         {"本位币", "MoneyType", 8, Figure::Tick}});
    const auto rate = [this] { return Val(txtMoneyRate.text); };
    guards = {
        {[rate] { return rate() <= 0; }, "[汇率]必须大于 0！", &txtMoneyRate},
        {[this, rate] { return chkMoneyType.value && rate() != 1; }, "[本位币]的汇率必须是 1！",
         &txtMoneyRate},
        // Costs and stock values are kept in home currency, so it cannot change under documents.
        {[this] { return chkMoneyType.value && IsUsed(OtherHomeCurrency(*this)); },
         "已有单据使用[本位币] {}，不能更换！", &chkMoneyType, [this] { return OtherHomeCurrency(*this); }},
    };
}

} // namespace jxc
