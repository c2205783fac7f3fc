// What a warehouse's modes do: its checks in their order, then adding, changing, deleting.

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "master/frmCk.h"
#include "master/rename_warehouse.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kMsgMayConfuse = 42, kMsgSupervisorOnly = 43;

bool HoldsQuote(const TextBox& box) {
    return box.text.find('\'') != std::string::npos;
}

MayRefuse RefuseFields(frmCk& s) {
    const bool noAccount = s.chkCkType[1].value && s.cboZhID.Index() < 0;
    return FirstRefusal(
        {{[&] { return Trim(s.txtCkCode.text).empty(); }, "请输入[编号]!", &s.txtCkCode},
         {[&] { return Trim(s.txtCkName.text).empty(); }, "请输入[名称]", &s.txtCkName},
         {[&] { return HoldsQuote(s.txtCkCode); }, "[编号]不可含有引号!", &s.txtCkCode},
         {[&] { return HoldsQuote(s.txtCkName); }, "[名称]不可含有引号!", &s.txtCkName},
         {[&] { return noAccount && s.cboZhID.items.empty(); }, "请先设置公司内部帐户！", &s.chkCkType[1]},
         {[&] { return noAccount; }, "请选择入帐帐户！", &s.cboZhID}});
}

void TickAKind(frmCk& s) {
    if (std::ranges::none_of(s.chkCkType, [](const CheckBox& kind) { return kind.value; }))
        s.chkCkType[0].value = true;
}

MayRefuse RefuseTakenCode(frmCk& s) {
    if (!HasRows("tJXC_Ck", "fCkCode = " + InQuotes(s.txtCkCode.text)))
        return std::nullopt;
    return Refusal{"[编号]重复 !", &s.txtCkCode};
}

MayRefuse RefuseTakenName(frmCk& s) {
    if (!HasRows("tJXC_Ck", "fCkName = " + InQuotes(s.txtCkName.text)))
        return std::nullopt;
    return Refusal{"[名称]已有存在 !", &s.txtCkName};
}

// What lies under the name still, of a warehouse that is gone.
MayRefuse RefuseOthersStock(frmCk& s, const std::string& oldName) {
    MayRefuse leftover = RefuseLeftoverStock(oldName, s.txtCkName.text);
    if (leftover)
        leftover->focus = &s.txtCkName;
    return leftover;
}

Refusal Gone(frmCk& s) {
    return {"[" + session.OldName + "] 已不存在！", &s.cmdCancel};
}

// What another user has made of the warehouse since it was shown. `stored` is it as it is now.
MayRefuse RefuseOthersWork(frmCk& s, const std::string& stored) {
    if (stored.empty())
        return Gone(s);
    if (stored == s.asShown)
        return std::nullopt;
    return Refusal{"[" + session.OldName + "] 已被其他用户修改，请重新打开！", &s.cmdCancel};
}

void WriteFields(const frmCk& s, Recordset& row) {
    const auto tick = [](const CheckBox& box) { return Value(box.value ? 1 : 0); };
    row.Set("fCkCode", s.txtCkCode.text);
    row.Set("fCkName", s.txtCkName.text);
    row.Set("fCkMemo", s.txtCkMemo.text);
    for (size_t kind = 0; kind < std::size(s.chkCkType); ++kind)
        row.Set("fCkType" + std::to_string(kind), tick(s.chkCkType[kind]));
    row.Set("fCkFlag", tick(s.chkCkFlag));
    row.Set("fZhID", s.chkCkType[1].value ? s.cboZhID.Id() : 0);
    row.Set("fKhID", s.chkCkType[2].value ? s.cboKhID.Id() : 0);
    row.Update();
}

MayRefuse RefuseNew(frmCk& s) {
    if (MayRefuse code = RefuseTakenCode(s))
        return code;
    if (MayRefuse name = RefuseTakenName(s))
        return name;
    return RefuseOthersStock(s, "");
}

// The checks are made again where nobody can come between them and the writing.
MayRefuse StoreNew(frmCk& s) {
    Transaction transaction(Conn());
    if (MayRefuse taken = RefuseNew(s))
        return taken;
    DropLeftoverStock(s.txtCkName.text);
    Recordset row(Conn(), "select * from tJXC_Ck where fCkName = " + InQuotes(s.txtCkName.text),
                  Access::Write);
    row.AddNew();
    WriteFields(s, row);
    WriteAudit(
        {"新增", "tJXC_Ck", s.txtCkCode.text, s.txtCkName.text, "", StoredWarehouse(s.txtCkName.text)});
    transaction.Commit();
    return std::nullopt;
}

void Add(frmCk& s) {
    if (const MayRefuse taken = RefuseNew(s))
        return TellRefusal(s, *taken);
    if (!AskOkCancel(s.title, "确定新增 [" + s.txtCkName.text + "] ?"))
        return;
    if (const MayRefuse taken = StoreNew(s))
        return TellRefusal(s, *taken);
    Inform(s.title, "新增完毕!");
    for (TextBox* box : {&s.txtCkCode, &s.txtCkName, &s.txtCkMemo})
        box->text.clear();
    s.asBegun = TypedWork(s);
    s.MoveFocus(&s.txtCkCode);
    ListWarehouses(s);
}

bool IsRenamed(const frmCk& s) {
    return s.txtCkName.text != session.OldName;
}

// One's own code and name never count as taken, in whatever case they are written.
MayRefuse RefuseChange(frmCk& s) {
    if (!EqualsNoCase(s.txtCkName.text, session.OldName))
        if (MayRefuse taken = RefuseTakenName(s))
            return taken;
    if (!EqualsNoCase(s.txtCkCode.text, s.oldCode))
        if (MayRefuse taken = RefuseTakenCode(s))
            return taken;
    return RefuseOthersStock(s, session.OldName);
}

// `followed` is false when documents, stock and products could not be renamed with the warehouse.
MayRefuse StoreChange(frmCk& s, bool& followed) {
    Transaction transaction(Conn());
    if (MayRefuse refusal = RefuseChange(s))
        return refusal;
    Recordset row(Conn(),
                  "select * from tJXC_Ck where fCkName=" + InQuotes(session.OldName) + " order by fCkCode",
                  Access::Write);
    const std::string before = JsonOf(row);
    if (MayRefuse refusal = RefuseOthersWork(s, before))
        return refusal;
    WriteFields(s, row);
    followed = !IsRenamed(s) || RenameWarehouseEverywhere(session.OldName, s.txtCkName.text);
    WriteAudit({IsRenamed(s) ? "改名" : "修改", "tJXC_Ck", s.txtCkCode.text, s.txtCkName.text, before,
                StoredWarehouse(s.txtCkName.text)});
    transaction.Commit();
    return std::nullopt;
}

void Change(frmCk& s) {
    if (!AskOkCancel(s.title, "修改将涉及系统所有单据的相关调整,确定?[" + session.OldName + "]"))
        return;
    bool followed = true;
    if (const MayRefuse refusal = StoreChange(s, followed))
        return TellRefusal(s, *refusal);
    session.OldName = s.txtCkName.text;
    if (!followed)
        Warn(s.title, "注意：仓库已经改名。但关联的其它表（仓库出入单据、产品的限定仓库等）无法调整！");
    ListWarehouses(s);
    LeaveMode(s);
}

MayRefuse RefuseDeletion(frmCk& s, const std::string& name) {
    if (HasRows("tJXC_CkDj01", "fCkName=" + InQuotes(session.OldName)))
        return Refusal{"[" + name + "]：该仓库已经投入使用，不可删除。请选择“仓库停用”！", &s.cmdCancel};
    return RefuseOthersWork(s, StoredWarehouse(session.OldName));
}

MayRefuse StoreDeletion(frmCk& s, const std::string& name) {
    Transaction transaction(Conn());
    if (MayRefuse refusal = RefuseDeletion(s, name))
        return refusal;
    WriteAudit({"删除", "tJXC_Ck", s.txtCkCode.text, name, s.asShown, ""});
    Conn().Execute("Delete From tJXC_Ck Where fCkName = " + InQuotes(name));
    transaction.Commit();
    return std::nullopt;
}

void Delete(frmCk& s) {
    const std::string name = s.txtCkName.text;
    if (!AskOkCancel(s.title, GetResStr(kMsgMayConfuse)))
        return;
    if (session.UserName != session.ZgName)
        return Warn(s.title, GetResStr(kMsgSupervisorOnly));
    if (s.TreeView1.nodes.size() == 1)
        return Warn(s.title, "不能够删除所有仓库。");
    if (!AskOkCancel(s.title, "确定删除 [" + name + "] ?"))
        return;
    if (const MayRefuse refusal = StoreDeletion(s, name)) {
        Inform(s.title, refusal->text);
        return s.MoveFocus(refusal->focus);
    }
    Inform(s.title, "[" + name + "] 删除完毕!");
    ClearWarehouse(s);
    ListWarehouses(s);
    LeaveMode(s);
}

} // namespace

void ConfirmMode(frmCk& s) {
    if (const MayRefuse refusal = RefuseFields(s))
        return TellRefusal(s, *refusal);
    TickAKind(s);
    if (s.mode == EditorMode::Add)
        return Add(s);
    if (session.OldName.empty())
        return Warn(s.title, "请先选定一个仓库！");
    s.mode == EditorMode::Change ? Change(s) : Delete(s);
}

} // namespace jxc
