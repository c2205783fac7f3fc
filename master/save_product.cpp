// Adding, changing and deleting a product.

#include <optional>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "forms/guard.h"
#include "forms/record_editor.h"
#include "master/frmCp.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kMsgDangerousChange = 41;
constexpr int kMsgDangerousDelete = 42;

std::string Named(const Label& label) {
    return "[" + label.caption + "]";
}

std::string InHand() {
    return "fCpID=" + std::to_string(session.SelectedProductID);
}

MayRefuse RefuseTexts(frmCp& s) {
    const auto holds = [](const TextBox& box) { return box.text.find('\'') != std::string::npos; };
    return FirstRefusal(
        {{[&] { return Trim(s.txtCpCode.text).empty(); }, "请输入" + Named(s.lblCpCode) + "!", &s.txtCpCode},
         {[&] { return Trim(s.txtCpName.text).empty(); }, "请输入" + Named(s.lblCpName), &s.txtCpName},
         {[&] { return holds(s.txtCpCode); }, Named(s.lblCpCode) + "不可含有引号!", &s.txtCpCode},
         {[&] { return holds(s.txtCpName); }, Named(s.lblCpName) + "不可含有引号!", &s.txtCpName}});
}

// One's own code is no other's, in whatever case it is written.
MayRefuse RefuseCode(frmCp& s) {
    const std::string others =
        s.mode == EditorMode::Change ? " And fCpID<>" + std::to_string(session.SelectedProductID) : "";
    if (!HasRows("tJXC_Cp", "fCpCode = " + InQuotes(s.txtCpCode.text) + others))
        return std::nullopt;
    return Refusal{Named(s.lblCpCode) + "重复 !", &s.txtCpCode};
}

bool Tell(frmCp& s, const MayRefuse& refusal) {
    if (refusal)
        TellRefusal(s, *refusal);
    return refusal.has_value();
}

// Two products may share a name, if the person says so.
bool MayShareName(frmCp& s) {
    return !HasRows("tJXC_Cp", "fCpName = " + InQuotes(s.txtCpName.text)) ||
           AskYesNo(s.title, Named(s.lblCpName) + "已有存在，继续 ?");
}

// Of a product that is changed only what the person changed: what approvals and other users wrote meanwhile stays, and so
// do decimals that the fields do not show.
void WriteFields(const frmCp& s, Recordset& row) {
    const auto values = ProductValues(s);
    for (size_t field = 0; field < values.size(); ++field)
        if (s.mode == EditorMode::Add || values[field] != s.asShown.at(field))
            row.Set(values[field].first, values[field].second);
}

// Nothing is asked while it is open: another user may have taken the code since the person was asked.
MayRefuse StoreNew(frmCp& s) {
    Transaction transaction(Conn());
    if (MayRefuse refusal = RefuseCode(s))
        return refusal;
    std::int32_t id = DbMax("tJXC_Cp", "fCpID") + 1;
    Recordset row(Conn(), "select * from tJXC_Cp Where fCpID=" + std::to_string(id), Access::Write);
    if (!row.AtEnd())
        ++id;
    row.AddNew();
    row.Set("fCpID", id);
    WriteFields(s, row);
    WriteAudit({"新增", "tJXC_Cp", std::to_string(id), s.txtCpCode.text, "", JsonOf(row)});
    row.Update();
    transaction.Commit();
    session.SelectedProductID = id;
    return std::nullopt;
}

void Add(frmCp& s) {
    if (Tell(s, RefuseCode(s)) || !MayShareName(s) ||
        !AskOkCancel(s.title, "确定新增 [" + s.txtCpName.text + "] ?") || Tell(s, StoreNew(s)))
        return;
    Inform(s.title, "新增完毕!");
    ClearProduct(s);
    s.asBegun = TypedWork(s);
    s.MoveFocus(&s.txtCpCode);
}

// Told beside the work: there is nothing to answer, and nothing was done.
MayRefuse Gone() {
    CurrentView().Signal("该产品已被其他用户删除，没有存盘。");
    return std::nullopt;
}

MayRefuse StoreChanged(frmCp& s) {
    Transaction transaction(Conn());
    if (s.txtCpCode.text != s.oldCode)
        if (MayRefuse refusal = RefuseCode(s))
            return refusal;
    Recordset row(Conn(), "select * from tJXC_Cp where " + InHand(), Access::Write);
    if (row.AtEnd())
        return Gone();
    const std::string before = JsonOf(row);
    WriteFields(s, row);
    WriteAudit({"修改", "tJXC_Cp", row["fCpID"].AsText(), s.txtCpCode.text, before, JsonOf(row)});
    row.Update();
    transaction.Commit();
    LeaveProductMode(s);
    return std::nullopt;
}

void Change(frmCp& s) {
    if (session.SelectedProductID == 0)
        return;
    const std::string& page = s.SSTab1.captions[static_cast<size_t>(s.SSTab1.index)];
    if (!AskOkCancel(s.title, s.oldCode + "-" + s.oldName + ": " + page + GetResStr(kMsgDangerousChange)))
        return;
    if (s.txtCpName.text != s.oldName && !MayShareName(s))
        return;
    Tell(s, StoreChanged(s));
}

// A place that keeps a product from being deleted, and what the person is told of it.
struct ProductUse {
    const char* table;
    const char* field;
    const char* text;
};
constexpr ProductUse kUses[] = {
    {"tJXC_CkDj02", "fCpID", "]：该产品已经投入仓库单据的使用，不可删除。请选择“停用”！"},
    {"tJXC_CkHt02", "fCpID", "]：该产品已经投入合同订单的使用，不可删除。请选择“停用”！"},
    {"tJXC_CpTj01", "fCpID", "]：该产品已经投入套件模板的使用，暂时不可删除。请删除其套件模板！"},
    {"tJXC_CpTj02", "fCpPjID", "]：该配件已经投入套件模板的使用，暂时不可删除。请删除其套件模板！"}};

std::string WhyInUse(const frmCp& s) {
    for (const ProductUse& use : kUses)
        if (HasRows(use.table, std::string(use.field) + "=" + std::to_string(session.SelectedProductID)))
            return "[" + s.oldName + use.text;
    return "";
}

// Why it stays after all: a document may have been saved while the person was asked.
std::string DeleteRow(const frmCp& s) {
    Transaction transaction(Conn());
    const Recordset row(Conn(), "select * from tJXC_Cp where " + InHand());
    if (row.AtEnd())
        return "[" + s.oldName + "]：该产品已被其他用户删除。";
    if (std::string use = WhyInUse(s); !use.empty())
        return use;
    WriteAudit({"删除", "tJXC_Cp", std::to_string(session.SelectedProductID), s.oldCode, JsonOf(row), ""});
    Conn().Execute("Delete From tJXC_Cp Where fCpID = " + std::to_string(session.SelectedProductID));
    transaction.Commit();
    return "";
}

void Delete(frmCp& s) {
    if (session.SelectedProductID == 0 || !AskOkCancel(s.title, GetResStr(kMsgDangerousDelete)))
        return;
    const std::string name = "[" + s.oldName + "]";
    if (const std::string use = WhyInUse(s); !use.empty())
        return Inform(s.title, use);
    if (!AskOkCancel(s.title, "确定删除 " + name + " ?"))
        return;
    if (const std::string kept = DeleteRow(s); !kept.empty())
        return Inform(s.title, kept);
    Inform(s.title, name + " 删除完毕!");
    session.SelectedProductID = 0;
    ClearProduct(s);
    LeaveProductMode(s);
}

void SetMode(frmCp& s, EditorMode mode) {
    s.mode = mode;
    const bool browsing = mode == EditorMode::Browse;
    s.cmdSave.visible = s.cmdCancel.visible = !browsing;
    s.cmdSave.caption = mode == EditorMode::Delete ? "确认删除(&S)" : "保存(&S)";
    for (Frame& frame : s.fraCp)
        frame.enabled = !browsing;
    for (Button* command : {&s.cmdAdd, &s.cmdChange, &s.cmdDelete, &s.cmdSupplier, &s.cmdStock, &s.cmdPrint,
                            &s.cmdColumns, &s.cmdColumnSave, &s.cmdSelect, &s.cmdQuit, &s.cmdQuery})
        command->enabled = browsing;
    s.SSTab1.disabledTabs = browsing ? std::set<int>{} : std::set<int>{frmCp::kList, frmCp::kQuery};
}

} // namespace

void BeginProductMode(frmCp& s, EditorMode mode) {
    if (mode != EditorMode::Add) {
        ShowProduct(s, session.SelectedProductID); // as it is now
        if (session.SelectedProductID == 0)
            return Inform(s.title, "请先选定一个产品！");
    }
    SetMode(s, mode);
    s.SSTab1.index = frmCp::kDetail;
    if (mode == EditorMode::Add)
        ClearProduct(s);
    s.asBegun = TypedWork(s);
    if (mode == EditorMode::Delete)
        s.MoveFocus(&s.cmdSave);
    else
        s.MoveFocus(&s.txtCpCode);
}

void EndProductMode(frmCp& s) {
    SetMode(s, EditorMode::Browse);
    s.SSTab1.index = frmCp::kList;
    s.MoveFocus(&s.Grid1);
}

void LeaveProductMode(frmCp& s) {
    EndProductMode(s);
    QueryProducts(s);
}

void SaveProduct(frmCp& s) {
    for (TextBox* box : {&s.txtCpCode, &s.txtCpName})
        box->text = Trim(box->text); // with a blank a code would be another
    if (Tell(s, RefuseTexts(s)))
        return;
    switch (s.mode) {
    case EditorMode::Add:
        return Add(s);
    case EditorMode::Change:
        return Change(s);
    case EditorMode::Delete:
        return Delete(s);
    case EditorMode::Browse:
        break;
    }
}

} // namespace jxc
