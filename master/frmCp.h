// The products: a list with the columns that the company chose, the fields of one, and a query. Also the picker of a
// product whose code or name fits several.
#pragma once

#include <map>

#include "controls/screen.h"
#include "forms/columns.h"
#include "forms/filters.h"
#include "forms/lookup_fields.h"
#include "forms/record_editor.h"

namespace jxc {

// What names a field of the product; the company's dictionary may call it otherwise.
struct FieldLabel : Label {
    FieldLabel(Place place, std::string name, std::string caption, const char* field)
        : Label(place, std::move(name), std::move(caption)) {
        tag = field;
    }
};

// A figure that is shown with the company's decimals when the cursor leaves it.
struct FigureField : TextField {
    FigureField(Place place, std::string name, int maxBytes)
        : TextField(place, std::move(name), "", maxBytes, true) {}
};

struct frmCp : Screen {
    frmCp();
    void Open() override;
    Arrangement Arrange() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    enum Page { kList, kDetail, kQuery };
    Tabs SSTab1{*this, "SSTab1", {"产品清单", "产品信息", "条件查询"}};

    Grid Grid1{*this, "Grid1"};

    Frame fraCp[3]{{*this, "fraCp(0)"}, {*this, "fraCp(1)"}, {*this, "fraCp(2)"}};
    FieldLabel lblCpCode{fraCp[0], "lblCpCode", "编码", "fCpCode"};
    TextField txtCpCode{fraCp[0], "txtCpCode", "", 20};
    FieldLabel lblCpName{fraCp[0], "lblCpName", "品名", "fCpName"};
    TextField txtCpName{fraCp[0], "txtCpName", "", 50};
    FieldLabel lblCpGG{fraCp[0], "lblCpGG", "规格", "fCpGG"};
    TextField txtCpGG{fraCp[0], "txtCpGG", "", 30};
    FieldLabel lblCpUnit{fraCp[0], "lblCpUnit", "单位", "fCpUnit"};
    ListField cboCpUnit{fraCp[0], "cboCpUnit", true};
    FieldLabel lblCpBarCode{fraCp[0], "lblCpBarCode", "参考码", "fCpBarCode"};
    TextField txtCpBarCode{fraCp[0], "txtCpBarCode", "", 20};
    CheckBox chkCpFlag{fraCp[0], "chkCpFlag", "停用（Ｘ）"};

    FieldLabel lblCpPrice[4]{{fraCp[1], "lblCpPrice(0)", "成本价", "fCpPrice0"},
                             {fraCp[1], "lblCpPrice(1)", "批发价", "fCpPrice1"},
                             {fraCp[1], "lblCpPrice(2)", "代销价", "fCpPrice2"},
                             {fraCp[1], "lblCpPrice(3)", "零售价", "fCpPrice3"}};
    FigureField txtCpPrice[4]{{fraCp[1], "txtCpPrice(0)", 12},
                              {fraCp[1], "txtCpPrice(1)", 12},
                              {fraCp[1], "txtCpPrice(2)", 12},
                              {fraCp[1], "txtCpPrice(3)", 12}};
    FieldLabel lblCpSlMin{fraCp[1], "lblCpSlMin", "库存下限", "fCpSlMin"};
    FigureField txtCpSlMin{fraCp[1], "txtCpSlMin", 10};
    FieldLabel lblCpSlMax{fraCp[1], "lblCpSlMax", "库存上限", "fCpSlMax"};
    FigureField txtCpSlMax{fraCp[1], "txtCpSlMax", 10};

    FieldLabel lblCkName{fraCp[2], "lblCkName", "限用仓库", "fCkName"};
    ListBox cboCkName{fraCp[2], "cboCkName"};
    FieldLabel lblCpCw{fraCp[2], "lblCpCw", "限用仓位", "fCpCw"};
    CodeListField cboCpCw{fraCp[2], "cboCpCw", "fCpCw"};
    FieldLabel lblCpZy{fraCp[2], "lblCpZy", "产品类别", "fCpZy"};
    CodeListField cboCpZy{fraCp[2], "cboCpZy", "fCpZy"};
    FieldLabel lblCpCd{fraCp[2], "lblCpCd", "产品产地", "fCpCd"};
    CodeListField cboCpCd{fraCp[2], "cboCpCd", "fCpCd"};
    TextField txtKhSeek{fraCp[2], "txtKhSeek", "查找供应商", 50};
    FieldLabel lblKhName{fraCp[2], "lblKhName", "供应商", "fKhName"};
    CardField cboKh{fraCp[2], "cboKh"};
    FieldLabel lblCpPicture{fraCp[2], "lblCpPicture", "产品图片", "fCpPicture"};
    TextField txtCpPicture{fraCp[2], "txtCpPicture", "", 120};
    Label lblNoPicture{*this, "lblNoPicture"}; // why none is shown
    Picture imgPicture{*this, "imgPicture"};

    CheckBox chkCpCode2{*this, "chkCpCode2"};
    PatternField txtCpCode2{*this, "txtCpCode2"};
    CheckBox chkCpName2{*this, "chkCpName2"};
    PatternField txtCpName2{*this, "txtCpName2"};
    CheckBox chkCpBarCode2{*this, "chkCpBarCode2"};
    PatternField txtCpBarCode2{*this, "txtCpBarCode2"};
    CheckBox chkCpCk2{*this, "chkCpCk2"};
    PatternField txtCpck2{*this, "txtCpck2"};
    CheckBox chkCpCw2{*this, "chkCpCw2"};
    PatternField txtCpCw2{*this, "txtCpCw2"};
    CheckBox chkCpZy2{*this, "chkCpZy2"};
    PatternField txtCpZy2{*this, "txtCpZy2"};
    CheckBox chkCpCd2{*this, "chkCpCd2"};
    PatternField txtCpCd2{*this, "txtCpCd2"};
    CheckBox chkCpGys2{*this, "chkCpGys2"};
    PatternField txtCpGYS2{*this, "txtCpGYS2"};
    CheckBox chkPrice2[4]{
        {*this, "chkPrice2(0)"}, {*this, "chkPrice2(1)"}, {*this, "chkPrice2(2)"}, {*this, "chkPrice2(3)"}};
    ListBox cboPrice2[4]{
        {*this, "cboPrice2(0)"}, {*this, "cboPrice2(1)"}, {*this, "cboPrice2(2)"}, {*this, "cboPrice2(3)"}};
    FigureField txtPrice2[4]{{*this, "txtPrice2(0)", 12},
                             {*this, "txtPrice2(1)", 12},
                             {*this, "txtPrice2(2)", 12},
                             {*this, "txtPrice2(3)", 12}};
    Button cmdQuery{*this, "cmdQuery", "查询(&Q)", "F5"};

    Button cmdAdd{*this, "cmdAdd", "增加(&A)", "F2"};
    Button cmdChange{*this, "cmdChange", "修改(&E)", "F4"};
    Button cmdDelete{*this, "cmdDelete", "删除(&D)", "F8"};
    Button cmdSupplier{*this, "cmdSupplier", "供应商刷新(&G)"};
    Button cmdStock{*this, "cmdStock", "库存查询(&K)"};
    Button cmdPrint{*this, "cmdPrint", "打印(&P)", "Ctrl+P"};
    Button cmdColumns{*this, "cmdColumns", "栏目设置(&L)"};
    Button cmdColumnSave{*this, "cmdColumnSave", "栏目样式保存(&W)"};
    Button cmdSave{*this, "cmdSave", "保存(&S)", "F9"};
    Button cmdCancel{*this, "cmdCancel", "取消(&U)"};
    Button cmdSelect{*this, "cmdSelect", "选择(&O)"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    // Set by the opener and good for one opening: what the list is limited to at first, which makes it a picker; and 1
    // to take away what changes products. The product shown, and picked, is session.SelectedProductID.
    // CpIDs "1,2,3" lists these products at first.
    std::string CpCode, CpName, CpBarCode, CpIDs;
    std::uint8_t CpNoEdit = 0;

    EditorMode mode = EditorMode::Browse;
    bool picking = false;
    bool noEdit = false;
    std::vector<std::int64_t> listedFirst;              // products, of CpIDs
    std::string columns;                                // the fields of the list's columns, "a,b,c"
    std::string oldCode, oldName;                       // of the product shown
    std::vector<std::pair<std::string, Value>> asShown; // what its fields held then
    std::string asBegun;                                // what stood in the fields when the mode began
    Filters filters;

    bool IsTyping() const { return mode == EditorMode::Add || mode == EditorMode::Change; }
};

// -- product_list.cpp
void SetUpProductColumns(frmCp& s);
// Fills the list; the product shown is found again, or else the first one is shown.
void ListProducts(frmCp& s, const std::string& where);
// By the query page; says so when nothing fits. The list is in front then.
void QueryProducts(frmCp& s);
void ResetQuery(frmCp& s);
void ChooseProductColumns(frmCp& s);
std::vector<Filter> ProductFilters(frmCp& s);

// -- product_fields.cpp
// The captions that the company's dictionary has, one waiting for a server in all.
void TakeCaptions(frmCp& s);
void OfferProductLists(frmCp& s);
// Without such a product the fields are empty, and none is in hand.
void ShowProduct(frmCp& s, std::int32_t id);
// What the fields hold, by the product's fields in the order in which they are written.
std::vector<std::pair<std::string, Value>> ProductValues(const frmCp& s);
void ClearProduct(frmCp& s);
void ShowPicture(frmCp& s);
// What happens when fields are left: figures take their form, limits follow each other, a new unit joins its list.
void WireProductFields(frmCp& s);

// -- save_product.cpp
void BeginProductMode(frmCp& s, EditorMode mode);
// Back to the list, which is read anew by the query page.
void LeaveProductMode(frmCp& s);
void EndProductMode(frmCp& s); // without reading it
// Checks, asks and stores by the mode; a refusal is told and changes nothing.
void SaveProduct(frmCp& s);

} // namespace jxc
