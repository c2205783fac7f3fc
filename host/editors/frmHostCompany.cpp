#include "host/editors/frmHostCompany.h"

#include "session/audit/audit.h"
#include "session/company/company_fields.h"
#include "session/period.h"
#include "session/session.h"

namespace jxc {

namespace {

const char* const kHeader = "select * from myCompany";
const char* const kStart = "select * from SystemSets";

// The first row, or a new one.
Recordset RowToWrite(const char* statement) {
    Recordset row(Conn(), statement, Access::Write);
    if (row.AtEnd())
        row.AddNew();
    return row;
}

} // namespace

frmHostCompany::frmHostCompany() : RecordEditor("frmHostCompany", "公司资料") {
    fieldsInARow = 2;
    dtpCompDate.caption = "启用日期";
    guards = {{[this] { return !dtpCompDate.date; }, "[启用日期]不能为空值！", &dtpCompDate},
              {[this] {
                   LoadPeriodSettings(); // a close by another user may have moved it
                   return session.PeriodEnd && *dtpCompDate.date > *session.PeriodEnd;
               },
               "[启用日期]不能晚于本期（至 {}）！", &dtpCompDate,
               [] { return IsoText(*session.PeriodEnd); }}};
}

Arrangement frmHostCompany::Arrange() {
    Arrangement plain = RecordEditor::Arrange();
    plain.fields.push_back({&dtpCompDate});
    plain.width = 760;
    plain.height = 360;
    return plain;
}

void frmHostCompany::Load() {
    ShowFields(*this, Recordset(Conn(), kHeader));
    const Recordset start(Conn(), kStart);
    dtpCompDate.date = start.AtEnd() ? std::nullopt : ParseDate(start["CompDate"].AsText());
}

void frmHostCompany::Store() {
    Recordset header = RowToWrite(kHeader);
    const std::string before = JsonOf(header);
    WriteFields(*this, header);
    WriteAudit({"修改", "myCompany", "", CompanyName(header), before, JsonOf(header)});
    header.Update();
    Recordset start = RowToWrite(kStart);
    start.Set("CompDate", IsoText(*dtpCompDate.date));
    start.Update();
}

void frmHostCompany::ShapeByMode() {
    dtpCompDate.enabled = mode == EditorMode::Change;
}

} // namespace jxc
