#include "host/editors/frmHostAccounts.h"

#include "base/text.h"

namespace jxc {

namespace {

constexpr Use kUses[] = {
    {"tJXC_Ck Where fZhID=", "零售仓库"},
    {"tAccountDetail Where fType1=1 And fCompID=", "内部资金帐"},
};
constexpr int kCodeDigits = 9;

} // namespace

frmHostAccounts::frmHostAccounts() : ListEditor("frmHostAccounts", "内部资金帐户", "tAccounts", "compCode") {
    EditorField& code = Hold(txtCompCode, "compCode", "编号", kCodeDigits);
    code.required = code.unique = true;
    Hold(txtCompname, "compname", "名称", 40).required = true;
    Grid1.SetColumns({{.caption = "编号", .width = 12},
                      {.caption = "名称", .width = 32},
                      {.caption = "compCode", .hidden = true}});
}

std::string frmHostAccounts::ListStatement() const {
    return "select compCode,compname,compCode from tAccounts Order By compCode";
}

std::span<const Use> frmHostAccounts::Uses() const {
    return kUses;
}

std::string frmHostAccounts::UsedKey() const {
    return NumberText(Val(key.AsText()));
}

MayRefuse frmHostAccounts::RefuseContent() {
    const std::string code = Trim(txtCompCode.text);
    if (code.starts_with('0') || code.find_first_not_of("0123456789") != std::string::npos)
        return Refusal{"[编号]只能是数字，且不以 0 开头！", &txtCompCode};
    return std::nullopt;
}

} // namespace jxc
