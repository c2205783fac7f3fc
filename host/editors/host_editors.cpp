#include "host/editors/host_editors.h"

#include "host/editors/frmHostAccounts.h"
#include "host/editors/frmHostCards.h"
#include "host/editors/frmHostCompany.h"
#include "host/editors/frmHostMoneys.h"
#include "host/editors/frmHostUsers.h"
#include "session/company_visit.h"
#include "session/rights.h"

namespace jxc {

namespace {

constexpr HostEditor kEditors[] = {{"frmHostCompany", "公司资料", ""},
                                   {"frmHostUsers", "用户与权限", ""},
                                   {"frmHostCards", "客户资料", "mnuCardAdd"},
                                   {"frmHostMoneys", "货币", ""},
                                   {"frmHostAccounts", "内部资金帐户", ""}};

} // namespace

std::span<const HostEditor> HostEditors() {
    return kEditors;
}

const HostEditor& FindHostEditor(std::string_view screen) {
    for (const HostEditor& editor : kEditors)
        if (editor.screen == screen)
            return editor;
    throw ScreenError("没有窗口 " + std::string(screen) + "。");
}

void RegisterHostEditors() {
    RegisterScreen("frmHostCompany", [] { return std::make_unique<frmHostCompany>(); });
    RegisterScreen("frmHostUsers", [] { return std::make_unique<frmHostUsers>(); });
    RegisterScreen("frmHostCards", [] { return std::make_unique<frmHostCards>(); });
    RegisterScreen("frmHostMoneys", [] { return std::make_unique<frmHostMoneys>(); });
    RegisterScreen("frmHostAccounts", [] { return std::make_unique<frmHostAccounts>(); });
}

bool MayOpen(const HostEditor& editor) {
    return editor.module.empty() || HasModuleRight(std::string(editor.module), 0);
}

void OpenHostEditor(std::string_view screen) {
    const HostEditor& editor = FindHostEditor(screen);
    VisitCompany([&] {
        if (editor.module.empty() || ModuleRight(std::string(editor.module), 0) != 0)
            ShowModal(ScreenNamed(screen));
    });
}

} // namespace jxc
