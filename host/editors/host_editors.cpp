#include "host/editors/host_editors.h"

#include <algorithm>

#include "host/editors/frmHostAccounts.h"
#include "host/editors/frmHostCards.h"
#include "host/editors/frmHostCompany.h"
#include "host/editors/frmHostMoneys.h"
#include "host/editors/frmHostUsers.h"
#include "session/company_visit.h"

namespace jxc {

namespace {

constexpr HostEditor kEditors[] = {{"frmHostCompany", "公司资料"},
                                   {"frmHostUsers", "用户与权限"},
                                   {"frmHostCards", "客户资料"},
                                   {"frmHostMoneys", "货币"},
                                   {"frmHostAccounts", "内部资金帐户"}};

} // namespace

std::span<const HostEditor> HostEditors() {
    return kEditors;
}

void RegisterHostEditors() {
    RegisterScreen("frmHostCompany", [] { return std::make_unique<frmHostCompany>(); });
    RegisterScreen("frmHostUsers", [] { return std::make_unique<frmHostUsers>(); });
    RegisterScreen("frmHostCards", [] { return std::make_unique<frmHostCards>(); });
    RegisterScreen("frmHostMoneys", [] { return std::make_unique<frmHostMoneys>(); });
    RegisterScreen("frmHostAccounts", [] { return std::make_unique<frmHostAccounts>(); });
}

void OpenHostEditor(std::string_view screen) {
    const auto named = [&](const HostEditor& editor) { return editor.screen == screen; };
    if (std::none_of(std::begin(kEditors), std::end(kEditors), named))
        throw ScreenError("没有窗口 " + std::string(screen) + "。");
    VisitCompany([&] { ShowModal(ScreenNamed(screen)); });
}

} // namespace jxc
