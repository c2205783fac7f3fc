#include "host/editors/frmHostMoneys.h"

#include "base/text.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr Use kUses[] = {
    {"tJXC_CkDj01 Where fInvHb=", "仓库单据"},       {"tJXC_CkHt01 Where fInvHb=", "合同订单"},
    {"tJXC_CkJh01 Where fInvHb=", "计划单"},         {"tJXC_CkXjBj01 Where fInvHb=", "询价报价单"},
    {"tJXC_CkDj_Bak01 Where fInvHb=", "已结帐单据"}, {"tAccountDetail Where fMoneyCode=", "帐户单"},
};

} // namespace

frmHostMoneys::frmHostMoneys() : ListEditor("frmHostMoneys", "货币", "Moneys", "MoneyCode") {
    EditorField& code = Hold(txtMoneyCode, "MoneyCode", "货币", 10);
    code.required = code.unique = true;
    Hold(txtMoneyRate, "MoneyRate", "汇率", 12, true).required = true;
    mark = &chkMoneyType;
    markField = "MoneyType";
    Grid1.SetColumns({{.caption = "货币", .width = 12},
                      {.caption = "汇率",
                       .type = CellType::Number,
                       .decimals = 4,
                       .width = 12,
                       .alignment = Alignment::Right},
                      {.caption = "本位币", .type = CellType::Check},
                      {.caption = "MoneyCode", .hidden = true}});
}

std::string frmHostMoneys::ListStatement() const {
    return "select MoneyCode,MoneyRate,MoneyType,MoneyCode from Moneys Order By MoneyType desc,MoneyCode";
}

std::span<const Use> frmHostMoneys::Uses() const {
    return kUses;
}

MayRefuse frmHostMoneys::RefuseContent() {
    const double rate = Val(txtMoneyRate.text);
    if (rate <= 0)
        return Refusal{"[汇率]必须大于 0！", &txtMoneyRate};
    if (chkMoneyType.value && rate != 1)
        return Refusal{"[本位币]的汇率必须是 1！", &txtMoneyRate};
    // Costs and stock values are kept in home currency, so it cannot change under documents.
    const Recordset home(Conn(), "Select MoneyCode From " + OtherRows(*this) + " And MoneyType=1");
    if (!chkMoneyType.value || home.AtEnd())
        return std::nullopt;
    const std::string code = home["MoneyCode"].AsText();
    if (WhereUsed(kUses, InQuotes(code)).empty())
        return std::nullopt;
    return Refusal{"已有单据使用[本位币] " + code + "，不能更换！", &chkMoneyType};
}

} // namespace jxc
