#include "host/editors/frmHostAccounts.h"

#include "base/text.h"

namespace jxc {

namespace {

const std::vector<Use> kUses{{"tJXC_Ck Where fZhID=", "零售仓库"},
                             {"tAccountDetail Where fType1=1 And fCompID=", "内部资金帐"}};

bool IsNumber(const std::string& code) {
    return !code.starts_with('0') && code.find_first_not_of("0123456789") == std::string::npos;
}

} // namespace

frmHostAccounts::frmHostAccounts()
    : ListEditor("frmHostAccounts", "内部资金帐户", {"tAccounts", "compCode", "compCode", kUses}) {
    SetColumns({{"编号", "compCode", 12}, {"名称", "compname", 32}});
    guards = {{[this] { return !IsNumber(Trim(txtCompCode.text)); }, "[编号]只能是数字，且不以 0 开头！",
               &txtCompCode}};
}

std::string frmHostAccounts::UsedKey() const {
    return NumberText(Val(key.AsText()));
}

} // namespace jxc
