// Warehouses: a tree from their codes, the fields of one of them, a query. Everything else in the system names a
// warehouse by its name, so that a rename rewrites documents, stock and products. The name shown last is left in
// session.OldName, for a caller that lets a warehouse be picked.
#pragma once

#include "controls/screen.h"
#include "controls/tree.h"
#include "forms/filters.h"
#include "forms/lookup_fields.h"
#include "forms/record_editor.h"

namespace jxc {

struct frmCk : Screen {
    frmCk();
    void Open() override;
    Arrangement Arrange() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    enum Page { kListPage, kDetailPage, kQueryPage };
    Tabs SSTab1{*this, "SSTab1", {"仓库列表", "仓库信息", "条件查询"}};

    // The list.
    Tree TreeView1{*this, "TreeView1"};
    CheckBox ChkNoCodeList{*this, "ChkNoCodeList", "不显示编号"};

    // The fields. Saving tells what is wrong with code and name, so nothing holds the cursor in them.
    TextBox txtCkCode{*this, "txtCkCode"};
    TextBox txtCkName{*this, "txtCkName"};
    TextBox txtCkMemo{*this, "txtCkMemo"};
    CheckBox chkCkType[4]{{*this, "chkCkType0", "总部仓库 (期初/入库/出库/调库)"},
                          {*this, "chkCkType1", "零售仓库 (零售单--直接入帐)"},
                          {*this, "chkCkType2", "代销仓库 (代销发货单/结算单)"},
                          {*this, "chkCkType3", "生产仓库 (生产组装单/拆分单)"}};
    AccountField cboZhID{*this, "cboZhID"}; // of a retail warehouse: where its takings go
    TextBox txtKhSeek{*this, "txtKhSeek"};
    CardField cboKhID{*this, "cboKhID"}; // of a consignment warehouse: its consignee
    CheckBox chkCkFlag{*this, "chkCkFlag", "停用(&X)"};

    // The query.
    CheckBox chkCode2{*this, "chkCode2"};
    PatternField txtCode2{*this, "txtCode2"};
    CheckBox chkName2{*this, "chkName2"};
    PatternField txtName2{*this, "txtName2"};
    OptionButton optSelect[5]{{*this, "optSelect(0)", "optSelect", "显示所有仓库", true},
                              {*this, "optSelect(1)", "optSelect", "仅显示[总部仓库]"},
                              {*this, "optSelect(2)", "optSelect", "仅显示[零售仓库]"},
                              {*this, "optSelect(3)", "optSelect", "仅显示[代销仓库]"},
                              {*this, "optSelect(4)", "optSelect", "仅显示[生产仓库]"}};
    CheckBox chkStopList{*this, "chkStopList", "显示[停用仓库]"};
    Button cmdQuery{*this, "cmdQuery", "查询(&Q)", "F5"};

    Button cmdAdd{*this, "cmdAdd", "", "F2"};
    Button cmdChange{*this, "cmdChange", "", "F4"};
    Button cmdDelete{*this, "cmdDelete", "", "F8"};
    Button cmdSave{*this, "cmdSave", "", "F9"}; // called after the command that began the mode
    Button cmdCancel{*this, "cmdCancel"};
    Button cmdQuit{*this, "cmdQuit"};

    EditorMode mode = EditorMode::Browse;
    // The code of the warehouse in hand as it is stored; its name as stored is session.OldName.
    std::string oldCode;
    std::string asShown; // the warehouse in hand as StoredWarehouse gave it
    std::string asBegun; // TypedWork when the mode began

    Filters filters;

    bool IsTyping() const { return mode == EditorMode::Add || mode == EditorMode::Change; }
};

// -- frmCk.cpp
// Asks the user's right and goes into the mode; the confirm button is called like the pressed one.
void BeginMode(frmCk& s, EditorMode mode, const Button& pressed);
// Back to browsing, with the warehouse in hand as it is stored.
void LeaveMode(frmCk& s);

// -- warehouse_tree.cpp
// The tree of the warehouses that the query wants, the one in hand selected.
void ListWarehouses(frmCk& s);
// The warehouse of a node; "" of the root.
std::string WarehouseOf(const frmCk& s, int node);

// -- show_warehouse.cpp
// The fields of the warehouse of that name, which is the one in hand then; none without a row.
void ShowWarehouse(frmCk& s, const std::string& name);
void ClearWarehouse(frmCk& s);
// The warehouse of that name as it is stored, as JSON for the trail and to be compared; "" when it is not there.
std::string StoredWarehouse(const std::string& name);
// The kinds that exclude each other.
void TickKind(frmCk& s, size_t kind);
void SeekConsignee(frmCk& s);
void ChooseConsignee(frmCk& s);

// -- save_warehouse.cpp
// Checks and does what the mode stands for, with its questions; each in one transaction of its own. A refusal is told
// and writes nothing.
void ConfirmMode(frmCk& s);

} // namespace jxc
