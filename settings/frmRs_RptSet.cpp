#include "settings/frmRs_RptSet.h"

#include "database/recordset.h"
#include "forms/column_dictionary.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/screen_entries.h"
#include "session/session.h"
#include "settings/frmAudit.h"
#include "settings/frmBrief.h"
#include "settings/frmSystem.h"

namespace jxc {

namespace {

const std::string kListOfLists = "99999999";

void ShowField(frmRs_RptSet& s) {
    const std::string which =
        s.Field.empty() ? CaptionField() + "=" + InQuotes(s.ModelName) : "FieldName=" + InQuotes(s.Field);
    const Recordset row(Conn(), "Select " + CaptionField() +
                                    ",FieldBriefType,FieldName,FEnabled from RptListDetail "
                                    "where ftable=" +
                                    InQuotes(s.TabelName) + " And " + which);
    s.txtName.text.clear();
    s.txtItemNo.text.clear();
    s.txtItemNo.enabled = s.Command3.enabled = true;
    if (row.AtEnd())
        return;
    s.txtName.text = row[CaptionField()].AsText();
    s.txtItemNo.text = row["FieldBriefType"].AsText();
    if (s.Field.empty())
        s.Field = row["FieldName"].AsText();
    s.txtItemNo.enabled = s.Command3.enabled = row["FEnabled"].IsNull() || row["FEnabled"].AsLong() != 0;
}

void FindCodeList(frmRs_RptSet& s) {
    const std::string chosen = OpenBriefPicker("", kListOfLists, BriefKind::ChooseList);
    if (!chosen.empty())
        s.txtItemNo.text = chosen;
}

void Confirm(frmRs_RptSet& s) {
    if (s.txtName.text.empty())
        return;
    Transaction transaction(Conn());
    const AuditedFields after{{CaptionField(), s.txtName.text}, {"FieldBriefType", s.txtItemNo.text}};
    const Recordset before(Conn(), "Select " + CaptionField() +
                                       ",FieldBriefType from rptListDetail where ftable=" +
                                       InQuotes(s.TabelName) + " and FieldName=" + InQuotes(s.Field));
    WriteAudit({"修改", "rptListDetail", s.TabelName, s.Field, JsonOf(before), JsonOf(after)});
    Conn().Execute("UpDate rptListDetail Set " + CaptionField() + "=" + InQuotes(s.txtName.text) +
                   ",FieldBriefType=" + InQuotes(s.txtItemNo.text) +
                   " where ftable=" + InQuotes(s.TabelName) + " and FieldName=" + InQuotes(s.Field));
    transaction.Commit();
    session.RptSetResult = s.txtName.text;
    s.Close();
}

} // namespace

frmRs_RptSet::frmRs_RptSet() : Screen("frmRs_RptSet") {
    AddTextProperty("TabelName", TabelName);
    AddTextProperty("Field", Field);
    AddTextProperty("ModelName", ModelName);
    AddNumberProperty("ItemEnable", ItemEnable);
    Command3.onClick = [this] { FindCodeList(*this); };
    CmdOk.onClick = [this] { Confirm(*this); };
    CmdCancel.onClick = [this] {
        session.RptSetResult = txtName.text;
        Close();
    };
}

void frmRs_RptSet::Open() {
    title = "项目设置";
    ShowField(*this);
    MoveFocus(&txtName);
}

Arrangement frmRs_RptSet::Arrange() {
    return {.fields = {{&txtName}, {&txtItemNo, &Command3}},
            .closingCommands = {&CmdOk, &CmdCancel},
            .width = 420,
            .height = 140};
}

void RegisterSettingsScreens() {
    AddScreen({"frmRs_RptSet", [] { return std::make_unique<frmRs_RptSet>(); }});
    AddScreen({"frmBrief", [] { return std::make_unique<frmBrief>(); }});
    AddScreen({.name = "frmAudit",
               .make = [] { return std::make_unique<frmAudit>(); },
               .menu = {{"系统(&T)", "操作日志", "谁在何时做了什么。"}},
               .openedByName = true});
    AddScreen({.name = "frmSystem",
               .make = [] { return std::make_unique<frmSystem>(); },
               .calls = {{0}},
               .menu = {{"系统(&T)", "系统参数", "会计期间、税、成本方法与小数位数。", 0}}});
}

} // namespace jxc
