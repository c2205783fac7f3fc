#include "settings/frmAudit.h"

#include "base/text.h"
#include "controls/grid_routines.h"
#include "session/printing/print_grid.h"
#include "session/session.h"

namespace jxc {

frmAudit::frmAudit() : Screen("frmAudit"), list(Grid1, AuditColumns()), filters(AuditFilters(*this)) {
    title = "操作日志";
    dtpDate.last.caption = "至";
    Grid1.onSelect = [this](int row) { ShowAuditRow(*this, row); };
    Grid1.onHeading = [this](int column) { GridSort(Grid1, column); };
    cmdQuery.onClick = [this] { QueryAudit(*this); };
    cmdVerify.onClick = [this] { VerifyAudit(*this); };
    cmdPrint.onClick = [this] { PrintGrid(Grid1, title, title, ""); };
    cmdQuit.onClick = [this] { Close(); };
}

void frmAudit::Open() {
    if (session.UserName.empty() || !EqualsNoCase(session.ZgName, session.UserName))
        throw ScreenError("必须系统[负责人]才能够查看操作日志！");
    for (CheckBox* box : {&chkUser, &chkAction, &chkName, &chkDate})
        box->value = false;
    txtUser.text.clear();
    txtName.text.clear();
    cboAction.items = {"新增", "修改", "删除", "审核", "反审核", "改名", "修改密码"};
    cboAction.SetIndex(-1);
    dtpDate.first.date = dtpDate.last.date = Today();
    list.SetUp();
    Grid2.SetColumns({{.caption = "项目", .width = 14, .locked = true},
                      {.caption = "此前", .width = 24, .locked = true},
                      {.caption = "此后", .width = 24, .locked = true}});
    Grid2.readOnly = true;
    MoveFocus(&Grid1);
    QueryAudit(*this);
}

Arrangement frmAudit::Arrange() {
    return {.above = {{&chkDate, &dtpDate.first, &dtpDate.last, &chkUser, &txtUser},
                      {&chkAction, &cboAction, &chkName, &txtName}},
            .grid = &Grid1,
            .fields = {{&Grid2}},
            .commands = {&cmdQuery, &cmdVerify, &cmdPrint},
            .closingCommands = {&cmdQuit},
            .width = 1200,
            .height = 640};
}

} // namespace jxc
