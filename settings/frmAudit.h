// The trail of what was done, for the supervisor: who did what to which document or record, when, from where, and what
// it was before and after. It only shows.
#pragma once

#include "controls/screen.h"
#include "forms/columns.h"
#include "forms/fields.h"
#include "forms/filters.h"

namespace jxc {

struct frmAudit : Screen {
    frmAudit();
    void Open() override;
    Arrangement Arrange() override;

    CheckBox chkDate{*this, "chkDate", "日期"};
    DateRange dtpDate{*this, "dtpDate"};
    CheckBox chkUser{*this, "chkUser", "用户"};
    PatternField txtUser{*this, "txtUser"};
    CheckBox chkAction{*this, "chkAction", "操作"};
    ListField cboAction{*this, "cboAction"};
    CheckBox chkName{*this, "chkName", "单号/编码/名称"};
    PatternField txtName{*this, "txtName"};
    Grid Grid1{*this, "Grid1"};
    Grid Grid2{*this,
               "Grid2"}; // the fields of the chosen row's document or record, those that changed in colour
    Button cmdQuery{*this, "cmdQuery", "查询(&Q)", "F5"};
    Button cmdVerify{*this, "cmdVerify", "校验(&V)"};
    Button cmdPrint{*this, "cmdPrint", "打印(&P)", "Ctrl+P"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    Columns list;
    Filters filters;
};

// -- audit_query.cpp
std::vector<Column> AuditColumns();
std::vector<Filter> AuditFilters(frmAudit& s);
// The newest rows that fit; says so when there are none, and when there are more.
void QueryAudit(frmAudit& s);
// What the action of the row changed.
void ShowAuditRow(frmAudit& s, int row);
// Walks the whole trail and tells what is wrong with it.
void VerifyAudit(const frmAudit& s);

} // namespace jxc
