// Saving a kit template: its checks in their order, then adding, changing, deleting.

#include <set>

#include "base/json_value.h"
#include "base/text.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "forms/guard.h"
#include "master/frmCpTj.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

namespace {

std::string ThisKit(std::int32_t id) {
    return "fTjID=" + std::to_string(id);
}

MayRefuse RefuseFields(frmCpTj& s) {
    const bool none = s.TjID == 0;
    return FirstRefusal(
        {{[&] { return s.mode == EditorMode::Change && none; }, "请选择修改模板！"},
         {[&] { return s.mode == EditorMode::Delete && none; }, "请选择删除模板！"},
         {[&] { return Trim(s.txtTjCode.text).empty(); }, "请输入模板编号！", &s.txtTjCode},
         {[&] { return Trim(s.txtTjName.text).empty(); }, "请输入模板名称！", &s.txtTjName},
         {[&] { return session.SelectedProductID == 0; }, "请输入模板的产品信息！", &s.txtCpCode},
         {[&] { return s.Grid2.RowCount() == 0; }, "请输入模板的配件信息！", &s.Grid2}});
}

// Rows without a product or a quantity are no parts; a person who typed something in them is told that they go.
void RemoveRowsWithoutPart(frmCpTj& s) {
    const std::string rows = HalfBlankRows(s.Grid2, part::kQuantity);
    RemoveBlankRows(s.Grid2, part::kQuantity);
    RefreshTotal(s);
    std::string told = rows.empty() ? "" : "以下各行不计入模板：" + rows + "。";
    if (s.Grid2.RowCount() == 0)
        told += "模板没有配件，再次打开时将被删除。";
    if (!told.empty() && s.IsTyping())
        CurrentView().Signal(told);
}

void CutToTheirLimits(frmCpTj& s) {
    for (TextBox* box : std::initializer_list<TextBox*>{&s.txtTjCode, &s.txtTjName, &s.txtTjMemo})
        box->text = TruncateToBytes(box->text, box->maxBytes);
}

bool IsTaken(const std::string& field, const TextBox& box) {
    return HasRows("tJXC_CpTj01", field + " = " + InQuotes(box.text));
}

// One's own code and name never count as taken.
MayRefuse RefuseTaken(frmCpTj& s) {
    const bool added = s.mode == EditorMode::Add;
    const std::string taken = added ? "已有存在!" : "已另有存在!";
    if ((added || !EqualsNoCase(s.txtTjCode.text, s.oldCode)) && IsTaken("fTjCode", s.txtTjCode))
        return Refusal{"该[模板编号]" + taken, &s.txtTjCode};
    if ((added || !EqualsNoCase(s.txtTjName.text, s.oldName)) && IsTaken("fTjName", s.txtTjName))
        return Refusal{"该[模板名称]" + taken, &s.txtTjName};
    return std::nullopt;
}

// What another user has made of the template, or of one of its parts, since it was shown. `stored` is it as it is now.
MayRefuse RefuseOthersWork(frmCpTj& s, const std::string& stored) {
    if (stored.empty())
        return Refusal{"该套件模板已不存在！", &s.cmdCancel};
    if (stored != s.asShown)
        return Refusal{"该套件模板已被其他用户修改，请重新打开！", &s.cmdCancel};
    return std::nullopt;
}

// Another user may have deleted what the template is made of, as long as no template held it.
MayRefuse RefuseGoneProducts(frmCpTj& s) {
    if (!HasRows("tJXC_Cp", "fCpID=" + std::to_string(session.SelectedProductID)))
        return Refusal{"该套件产品资料已不存在！", &s.txtCpCode};
    std::vector<std::int64_t> parts;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        parts.push_back(s.Grid2.Cell(row, part::kProduct).AsLong());
    if (parts.empty())
        return std::nullopt;
    std::set<std::int64_t> there;
    for (Recordset row(Conn(), "Select fCpID From tJXC_Cp Where fCpID" + InKeys(parts)); !row.AtEnd();
         row.MoveNext())
        there.insert(row[size_t{0}].AsLong());
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        if (!there.contains(s.Grid2.Cell(row, part::kProduct).AsLong()))
            return Refusal{"[" + s.Grid2.Text(row, part::kCode) + "] 已不存在！", &s.Grid2};
    return std::nullopt;
}

void WriteHeader(const frmCpTj& s, std::int32_t id) {
    Recordset row(Conn(), "select * from tJXC_CpTj01 Where " + ThisKit(id), Access::Write);
    if (row.AtEnd()) {
        row.AddNew();
        row.Set("fTjID", id);
        row.Set("fTjFlag", 0); // plans count it
    }
    row.Set("fTjCode", s.txtTjCode.text);
    row.Set("fTjName", s.txtTjName.text);
    row.Set("fTjMemo", s.txtTjMemo.text);
    row.Set("fTjJe", Val(s.txtTjPrice.text));
    row.Set("fCpID", session.SelectedProductID);
    row.Update();
}

void WriteParts(const frmCpTj& s, std::int32_t id) {
    Recordset rows(Conn(), "select * from tJXC_CpTj02 Where fTjID = " + std::to_string(id), Access::Write);
    for (int row = 1; row <= s.Grid2.RowCount(); ++row) {
        rows.AddNew();
        rows.Set("fTjID", id);
        rows.Set("fRowID", row);
        rows.Set("fCpPjID", s.Grid2.Cell(row, part::kProduct));
        rows.Set("fCpPjSL", s.Grid2.Cell(row, part::kQuantity));
        rows.Set("fCpPjMemo", s.Grid2.Text(row, part::kMemo));
        rows.Update();
    }
}

void AuditKit(const frmCpTj& s, const std::string& action, std::int32_t id, const std::string& before) {
    WriteAudit({action, "tJXC_CpTj01", std::to_string(id), s.txtTjCode.text, before, StoredKit(id)});
}

MayRefuse StoreNew(frmCpTj& s, std::int32_t& id) {
    if (MayRefuse taken = RefuseTaken(s))
        return taken;
    if (MayRefuse gone = RefuseGoneProducts(s))
        return gone;
    id = DbMax("tJXC_CpTj01", "fTjID") + 1;
    WriteHeader(s, id);
    WriteParts(s, id);
    AuditKit(s, "新增", id, "");
    return std::nullopt;
}

MayRefuse StoreChanged(frmCpTj& s) {
    const std::string before = StoredKit(s.TjID);
    if (MayRefuse refusal = RefuseOthersWork(s, before))
        return refusal;
    if (MayRefuse taken = RefuseTaken(s))
        return taken;
    if (MayRefuse gone = RefuseGoneProducts(s))
        return gone;
    WriteHeader(s, s.TjID);
    Conn().Execute("Delete From tJXC_CpTj02 Where " + ThisKit(s.TjID));
    WriteParts(s, s.TjID);
    AuditKit(s, "修改", s.TjID, before);
    return std::nullopt;
}

MayRefuse Remove(frmCpTj& s) {
    const std::string before = StoredKit(s.TjID);
    if (MayRefuse refusal = RefuseOthersWork(s, before))
        return refusal;
    if (!DeleteDocumentRows("tJXC_CpTj", ThisKit(s.TjID)))
        throw DatabaseError("不能删除套件模板。");
    AuditKit(s, "删除", s.TjID, before);
    return std::nullopt;
}

// The work in one transaction, in which nobody is asked. False when it was refused or failed, which is told.
bool Stored(frmCpTj& s, const std::function<MayRefuse()>& work) {
    try {
        MayRefuse refusal;
        {
            Transaction transaction(Conn());
            refusal = work();
            if (!refusal)
                transaction.Commit();
        }
        if (refusal)
            TellRefusal(s, *refusal);
        return !refusal;
    } catch (const CommitUnknown& error) {
        WarnOfFailure(s.title, CommitUnknownText(s.txtTjName.text, "存盘"), CauseOf(error));
        return false;
    } catch (const DatabaseError& error) {
        WarnOfFailure(s.title, "系统存盘错误，操作已经取消！", CauseOf(error));
        return false;
    }
}

void AppendToList(frmCpTj& s, std::int32_t id) {
    Grid& grid = s.Grid1;
    const int row = grid.RowCount() + 1;
    grid.InsertRow(row);
    grid.FillCell(row, s.list.Place("fTjCode"), s.txtTjCode.text);
    grid.FillCell(row, s.list.Place("fTjName"), s.txtTjName.text);
    grid.FillCell(row, s.list.Place("fTjMemo"), s.txtTjMemo.text);
    grid.FillCell(row, s.list.Place("fTjID"), id);
    grid.selectedRow = row;
}

void Add(frmCpTj& s) {
    if (const MayRefuse taken = RefuseTaken(s))
        return TellRefusal(s, *taken);
    if (!AskOkCancel(s.title, s.txtTjName.text + "：新增模板，确定？"))
        return;
    std::int32_t id = 0;
    if (!Stored(s, [&] { return StoreNew(s, id); }))
        return;
    Inform(s.title, "新增完毕!");
    AppendToList(s, id);
    ClearKit(s);
    s.Grid2.InsertRow(1);
    s.asBegun = TypedWork(s);
    s.MoveFocus(&s.txtTjCode);
}

void Change(frmCpTj& s) {
    if (const MayRefuse taken = RefuseTaken(s))
        return TellRefusal(s, *taken);
    if (!AskOkCancel(s.title, s.oldName + "：修改模板，确定？"))
        return;
    if (Stored(s, [&] { return StoreChanged(s); }))
        LeaveMode(s);
}

void Delete(frmCpTj& s) {
    if (!Stored(s, [&] { return Remove(s); }))
        return;
    Inform(s.title, s.txtTjName.text + "：套件模板删除完毕！");
    ClearKit(s);
    LeaveMode(s);
}

} // namespace

void SaveKit(frmCpTj& s) {
    if (const MayRefuse refusal = RefuseFields(s))
        return TellRefusal(s, *refusal);
    CutToTheirLimits(s);
    RemoveRowsWithoutPart(s);
    if (s.mode == EditorMode::Add)
        Add(s);
    else if (s.mode == EditorMode::Change)
        Change(s);
    else
        Delete(s);
}

} // namespace jxc
