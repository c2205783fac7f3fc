#include "host/editors/host_editors.h"

#include "host/editors/frmHostAccounts.h"
#include "host/editors/frmHostCards.h"
#include "host/editors/frmHostCompany.h"
#include "host/editors/frmHostMoneys.h"
#include "host/editors/frmHostNewCompany.h"
#include "host/editors/frmHostPassword.h"
#include "host/editors/frmHostUsers.h"
#include "session/screen_entries.h"

namespace jxc {

namespace {

template <typename Editor>
void AddEditor(const std::string& name, const MenuPlace& place, const std::string& module = "") {
    AddScreen({.name = name,
               .make = [] { return std::make_unique<Editor>(); },
               .menu = {place},
               .module = module,
               .openedByName = true});
}

} // namespace

// What asks for a new company stands in no menu: it is no screen of the company that is open.
void RegisterHostEditors() {
    AddScreen({.name = "frmHostNewCompany", .make = [] { return std::make_unique<frmHostNewCompany>(); }});
    AddEditor<frmHostCards>("frmHostCards", {"资料(&D)", "客户资料", "供应商、销售商与代销商。"},
                            "mnuCardAdd");
    AddEditor<frmHostMoneys>("frmHostMoneys", {"资料(&D)", "货币", "货币与汇率。"});
    AddEditor<frmHostAccounts>("frmHostAccounts", {"资料(&D)", "内部资金帐户", "现金与银行帐户。"});
    AddEditor<frmHostCompany>("frmHostCompany", {"系统(&T)", "公司资料", "印在单据上的公司名称与地址。"});
    AddEditor<frmHostUsers>("frmHostUsers", {"系统(&T)", "用户与权限", "谁可以使用哪些功能。"});
    AddEditor<frmHostPassword>("frmHostPassword", {"系统(&T)", "修改密码", "自己登录时的密码。"});
}

} // namespace jxc
