// Kit templates: of which parts, in which quantities, a product is assembled. A list, the parts of one, and a query; also
// the picker of a template.
#pragma once

#include <cstdint>

#include "controls/screen.h"
#include "forms/columns.h"
#include "forms/filters.h"
#include "forms/lookup_fields.h"
#include "forms/record_editor.h"

namespace jxc {

namespace part {
// The columns of the parts grid.
enum Column { kCode = 1, kName, kUnit, kStock, kQuantity, kRetail, kCost, kAmount, kMemo, kProduct };
} // namespace part

struct frmCpTj : Screen {
    frmCpTj();
    void Open() override;
    Arrangement Arrange() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    enum Page { kListPage, kPartsPage, kQueryPage };
    Tabs SSTab1{*this, "SSTab1", {"产品组套模板", "模板配件清单", "条件查询"}};

    Grid Grid1{*this, "Grid1"};

    // The template: its kit product is session.SelectedProductID.
    TextField txtTjCode{*this, "txtTjCode", "模板编号", 12};
    TextField txtTjName{*this, "txtTjName", "模板名称", 20};
    TextField txtTjMemo{*this, "txtTjMemo", "说明", 50};
    TextBox txtCpCode{*this,
                      "txtCpCode"}; // these three keep in their tags what stood in them when the cursor came
    TextBox txtCpName{*this, "txtCpName"};
    TextBox txtCpPrice{*this, "txtCpPrice"};
    TextBox txtTjPrice{*this, "txtTjPrice"}; // what the parts cost together
    CheckBox chkCk{*this, "chkCk", "用于模板配件的库存查询", true};
    AllWarehousesField cboCk{*this, "cboCk"};
    Grid Grid2{*this, "Grid2"};
    Label lblPrices{*this, "lblPrices", "注意：[零售价]、[成本价]由[产品设置]中定义。"};

    CheckBox chkCode[3]{{*this, "chkCode(0)", "模板编号"},
                        {*this, "chkCode(1)", "产品编码"},
                        {*this, "chkCode(2)", "配件编码"}};
    PatternField txtCode[3]{{*this, "txtCode(0)"}, {*this, "txtCode(1)"}, {*this, "txtCode(2)"}};
    CheckBox chkName[3]{{*this, "chkName(0)", "模板名称"},
                        {*this, "chkName(1)", "品名规格"},
                        {*this, "chkName(2)", "品名规格"}};
    PatternField txtName[3]{{*this, "txtName(0)"}, {*this, "txtName(1)"}, {*this, "txtName(2)"}};
    CheckBox chkPrice{*this, "chkPrice", "合计成本"};
    ListBox cboPrice{*this, "cboPrice"};
    TextField txtPrice{*this, "txtPrice", "", 12, true};
    Button cmdQuery{*this, "cmdQuery", "查询(&Q)", "F5"};

    Button cmdAdd{*this, "cmdAdd", "增加(&A)", "F2"};
    Button cmdChange{*this, "cmdChange", "修改(&E)", "F4"};
    Button cmdDelete{*this, "cmdDelete", "删除(&D)", "F8"};
    Button cmdAddRow{*this, "cmdAddRow", "增行(&I)", "F6"};
    Button cmdDeleteRow{*this, "cmdDeleteRow", "删行(&L)", "F7"};
    Button cmdPrint{*this, "cmdPrint", "打印(&P)", "Ctrl+P"};
    Button cmdSave{*this, "cmdSave", "保存(&S)", "F9"};
    Button cmdCancel{*this, "cmdCancel", "取消(&U)"};
    Button cmdSelect{*this, "cmdSelect", "选择(&O)"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    // The template shown, 0 for none; a caller may set it before. CpTjSelect 1 opens a picker, and is 1 afterwards when
    // a template was picked: TjID and TjCode are its key and code then.
    std::int32_t TjID = 0;
    std::string TjCode;
    bool CpTjSelect = false;

    EditorMode mode = EditorMode::Browse;
    std::string oldCode, oldName; // of the template shown, as stored
    std::string asShown;          // the whole template shown, as StoredKit gave it
    std::string asBegun;          // what it would have stored when the mode began

    Columns list;
    Columns parts;
    Filters filters;

    bool IsTyping() const { return mode == EditorMode::Add || mode == EditorMode::Change; }
};

// -- frmCpTj.cpp
void BeginMode(frmCpTj& s, EditorMode mode);
// Back to browsing the list, which is read anew by the query page.
void LeaveMode(frmCpTj& s);

// -- kit_list.cpp
std::vector<Column> KitColumns();
std::vector<Filter> KitFilters(frmCpTj& s);
// Fills the list and shows the template that was shown, or the first one.
void ListKits(frmCpTj& s, const std::string& where);
// By the query page; says so when nothing fits.
void QueryKits(frmCpTj& s);
void ResetQuery(frmCpTj& s);
void PrintKits(const frmCpTj& s);
// Leaves the template shown to the opener.
void SelectKit(frmCpTj& s);

// -- show_kit.cpp
std::vector<Column> PartColumns();
// The template by its code, or by its key when that is empty; nothing without either. One that is gone is told; one that
// has no parts is told and deleted, in a transaction of its own.
void ShowKit(frmCpTj& s, const std::string& code, std::int32_t id);
void ClearKit(frmCpTj& s);
// Header and parts as they are stored, as JSON for the trail and to be compared; "" when the template is not there.
std::string StoredKit(std::int32_t id);
// The stock column by the warehouse chosen; without one all of them count.
void RefreshPartStock(frmCpTj& s);
void RefreshTotal(frmCpTj& s);

// -- kit_product.cpp
void WireKitProduct(frmCpTj& s);

// -- kit_parts.cpp
void WireParts(frmCpTj& s);

// -- save_kit.cpp
// Checks, asks and stores by the mode, in one transaction; a refusal is told and changes nothing.
void SaveKit(frmCpTj& s);

} // namespace jxc
