#include "master/frmCk.h"

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/view.h"
#include "forms/edit_filter.h"
#include "forms/suggest.h"
#include "session/lookups/database_routines.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kCodeBytes = 12, kNameBytes = 20, kMemoBytes = 30, kSeekBytes = 50;

enum Word { kCode = 2, kName, kAdd, kChange, kDelete, kQuit, kOk, kCancel, kWarehouse = 12, kManage = 14 };

void SetCaptions(frmCk& s) {
    s.title = GetResStr(kWarehouse) + GetResStr(kManage);
    s.txtCkCode.caption = s.chkCode2.caption = GetResStr(kCode);
    s.txtCkName.caption = s.chkName2.caption = GetResStr(kName);
    s.txtCkMemo.caption = "说明：";
    s.cboZhID.caption = "入帐帐户";
    s.txtKhSeek.caption = "查找客户";
    s.cboKhID.caption = "代销商";
    s.cmdAdd.caption = GetResStr(kAdd) + "(&A)";
    s.cmdChange.caption = GetResStr(kChange) + "(&C)";
    s.cmdDelete.caption = GetResStr(kDelete) + "(&D)";
    s.cmdCancel.caption = GetResStr(kCancel) + "(&U)";
    s.cmdQuit.caption = GetResStr(kQuit) + "(&E)";
}

// Fields, commands and pages as the mode allows them.
void ShapeByMode(frmCk& s) {
    const bool browsing = s.mode == EditorMode::Browse;
    const bool typing = s.IsTyping();
    for (Control* field :
         std::initializer_list<Control*>{&s.txtCkCode, &s.txtCkName, &s.txtCkMemo, &s.chkCkType[0],
                                         &s.chkCkType[1], &s.chkCkType[2], &s.chkCkType[3], &s.chkCkFlag})
        field->enabled = typing;
    s.cboZhID.enabled = typing && s.chkCkType[1].value;
    s.txtKhSeek.enabled = s.cboKhID.enabled = typing && s.chkCkType[2].value;
    for (Control* control : std::initializer_list<Control*>{&s.cmdAdd, &s.cmdChange, &s.cmdDelete, &s.cmdQuit,
                                                            &s.cmdQuery, &s.TreeView1, &s.ChkNoCodeList})
        control->enabled = browsing;
    s.cmdSave.enabled = s.cmdCancel.enabled = !browsing;
    s.SSTab1.disabledTabs = browsing ? std::set<int>{} : std::set<int>{frmCk::kListPage, frmCk::kQueryPage};
}

void ShowPage(frmCk& s, frmCk::Page page) {
    s.SSTab1.index = page;
}

void SetMode(frmCk& s, EditorMode mode) {
    s.mode = mode;
    ShowPage(s, mode == EditorMode::Browse ? frmCk::kListPage : frmCk::kDetailPage);
    ShapeByMode(s);
}

void ResetFilters(frmCk& s) {
    for (CheckBox* box : {&s.ChkNoCodeList, &s.chkStopList, &s.chkCode2, &s.chkName2})
        box->value = false;
    s.txtCode2.text.clear();
    s.txtName2.text.clear();
    s.optSelect[0].Choose();
}

// Older companies have no consignee of a warehouse.
void AddMissingColumn() {
    if (DbCount("tJXC_Ck", "fKhID=0") == -1 && !Conn().HasColumn("tJXC_Ck", "fKhID"))
        Conn().Execute("ALTER TABLE tJXC_Ck ADD fKhID Int NULL");
}

// What stands before a tab is the caller's own.
void CutOldName() {
    if (const size_t tab = session.OldName.find('\t'); tab != std::string::npos)
        session.OldName.erase(0, tab + 1);
}

void WireList(frmCk& s) {
    s.TreeView1.onSelect = [&s](int node) {
        if (const std::string name = WarehouseOf(s, node); !name.empty())
            ShowWarehouse(s, name);
    };
    const auto showDetail = [&s] {
        if (s.TreeView1.selected <= 0)
            return;
        ShowPage(s, frmCk::kDetailPage);
        s.MoveFocus(&s.cmdChange);
    };
    s.TreeView1.onDoubleClick = [showDetail](int) { showDetail(); };
    s.TreeView1.onKey = [showDetail](const std::string& pressed) {
        if (pressed == "Enter")
            showDetail();
    };
    s.ChkNoCodeList.onChange = [&s] { ListWarehouses(s); };
    s.cmdQuery.onClick = [&s] {
        ListWarehouses(s);
        ShowPage(s, frmCk::kListPage);
        s.MoveFocus(&s.TreeView1);
    };
}

void WireFields(frmCk& s) {
    FilterKeys(s.txtCkCode, kCodeBytes);
    FilterKeys(s.txtCkName, kNameBytes);
    FilterKeys(s.txtCkMemo, kMemoBytes);
    FilterKeys(s.txtKhSeek, kSeekBytes);
    for (size_t kind = 0; kind < std::size(s.chkCkType); ++kind)
        s.chkCkType[kind].onChange = [&s, kind] {
            TickKind(s, kind);
            ShapeByMode(s);
        };
    s.txtKhSeek.onLeave = [&s] { return CheckNoQuote(s.txtKhSeek.text); };
    SuggestCardsFor(s.txtKhSeek, s.cboKhID, [&s] { ChooseConsignee(s); });
    SuggestWarehousesIn(s.txtCode2, WarehousePart::Code);
    SuggestWarehousesIn(s.txtName2, WarehousePart::Name);
    s.txtKhSeek.onKey = [&s](const std::string& pressed) {
        if (pressed == "Enter" && CheckNoQuote(s.txtKhSeek.text))
            SeekConsignee(s);
    };
    s.cboKhID.onChoose = [&s] { ChooseConsignee(s); };
}

} // namespace

frmCk::frmCk()
    : Screen("frmCk"),
      filters({{chkCode2, txtCode2, "fCkCode Like {like}"}, {chkName2, txtName2, "fCkName Like {like}"}}) {
    SetCaptions(*this);
    WireList(*this);
    WireFields(*this);
    cmdAdd.onClick = [this] { BeginMode(*this, EditorMode::Add, cmdAdd); };
    cmdChange.onClick = [this] { BeginMode(*this, EditorMode::Change, cmdChange); };
    cmdDelete.onClick = [this] { BeginMode(*this, EditorMode::Delete, cmdDelete); };
    cmdSave.onClick = [this] { ConfirmMode(*this); };
    cmdCancel.onClick = [this] { LeaveMode(*this); };
    cmdCancel.dropsWork = true;
    cmdQuit.onClick = [this] {
        session.OldName = txtCkName.text;
        Close();
    };
}

void frmCk::Open() {
    SetCaptions(*this);
    cboZhID.Offer();
    AddMissingColumn();
    CutOldName();
    ResetFilters(*this);
    ListWarehouses(*this);
    LeaveMode(*this);
}

Arrangement frmCk::Arrange() {
    const Arrangement list{.above = {{&ChkNoCodeList}}, .tree = &TreeView1};
    const Arrangement detail{.fields = {{&txtCkCode},
                                        {&txtCkName},
                                        {&txtCkMemo},
                                        {&chkCkType[0]},
                                        {&chkCkType[1]},
                                        {&cboZhID},
                                        {&chkCkType[2]},
                                        {&txtKhSeek},
                                        {&cboKhID},
                                        {&chkCkType[3]},
                                        {&chkCkFlag}}};
    const Arrangement query{.fields = {{&chkCode2, &txtCode2},
                                       {&chkName2, &txtName2},
                                       {&optSelect[0]},
                                       {&optSelect[1]},
                                       {&optSelect[2]},
                                       {&optSelect[3]},
                                       {&optSelect[4]},
                                       {&chkStopList},
                                       {&cmdQuery}}};
    return {.tabs = &SSTab1,
            .pages = {list, detail, query},
            .commands = {&cmdAdd, &cmdChange, &cmdDelete},
            .closingCommands = {&cmdSave, &cmdCancel, &cmdQuit},
            .width = 640,
            .height = 560};
}

std::string frmCk::UnsavedWork() const {
    return IsTyping() && TypedWork(*this) != asBegun ? "资料尚未保存，放弃所输入的内容？" : "";
}

void frmCk::SaveWork() {
    if (LeaveFocus(*this)) // what stands in the field in hand counts
        ConfirmMode(*this);
}

void BeginMode(frmCk& s, EditorMode mode, const Button& pressed) {
    if (MidText(session.myPower, static_cast<int>(mode), 1) == "0")
        return Inform(s.title, GetResStr(kMsgNoRight));
    s.cmdSave.caption = pressed.caption;
    SetMode(s, mode);
    s.asBegun = TypedWork(s);
    s.MoveFocus(mode == EditorMode::Delete ? static_cast<Control*>(&s.cmdSave) : &s.txtCkCode);
}

void LeaveMode(frmCk& s) {
    SetMode(s, EditorMode::Browse);
    s.cmdSave.caption = GetResStr(kOk) + "(&S)";
    s.MoveFocus(&s.TreeView1);
    if (session.OldName.empty())
        ClearWarehouse(s);
    else
        ShowWarehouse(s, session.OldName);
}

} // namespace jxc
