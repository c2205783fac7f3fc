#include "master/frmCpTj.h"

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/grid_routines.h"
#include "forms/edit_filter.h"
#include "forms/suggest.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/period.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr double kQuantityBound = 1e8, kAmountBound = 1e10;
constexpr int kMemoBytes = 50;

// Older companies have no note of a part.
void AddMissingColumn() {
    if (DbCount("tJXC_CpTj02", "fCpPjMemo=''") == -1 && !Conn().HasColumn("tJXC_CpTj02", "fCpPjMemo"))
        Conn().Execute("ALTER TABLE tJXC_CpTj02 ADD fCpPjMemo " + TextType(kMemoBytes) + " Null");
}

void SetUpGrids(frmCpTj& s) {
    s.list.SetUp(KitColumns());
    s.parts.SetUp(PartColumns());
    s.Grid2.SetFormula(part::kAmount, "E#*G#");
    s.Grid2.Column(part::kQuantity).below = kQuantityBound;
    s.Grid2.Column(part::kAmount).below = kAmountBound;
    s.Grid2.enterColumns = {part::kCode, part::kQuantity};
}

void ShapeByMode(frmCpTj& s) {
    const bool browsing = s.mode == EditorMode::Browse;
    const bool typing = s.IsTyping();
    for (Control* control :
         std::initializer_list<Control*>{&s.txtTjCode, &s.txtTjName, &s.txtTjMemo, &s.txtCpCode, &s.txtCpName,
                                         &s.txtCpPrice, &s.cmdAddRow, &s.cmdDeleteRow})
        control->enabled = typing;
    for (Control* control :
         std::initializer_list<Control*>{&s.cmdAdd, &s.cmdChange, &s.cmdDelete, &s.cmdPrint, &s.cmdQuery,
                                         &s.cmdSelect, &s.cmdQuit, &s.Grid1})
        control->enabled = browsing;
    s.cmdSave.enabled = s.cmdCancel.enabled = !browsing;
    s.chkCk.enabled = s.cboCk.enabled = s.mode != EditorMode::Delete;
    s.Grid2.readOnly = !typing;
    s.SSTab1.disabledTabs =
        browsing ? std::set<int>{} : std::set<int>{frmCpTj::kListPage, frmCpTj::kQueryPage};
}

void SetMode(frmCpTj& s, EditorMode mode) {
    s.mode = mode;
    s.SSTab1.index = mode == EditorMode::Browse ? frmCpTj::kListPage : frmCpTj::kPartsPage;
    ShapeByMode(s);
}

void GoOn(frmCpTj& s) {
    if (s.cmdSelect.visible)
        return SelectKit(s);
    s.SSTab1.index = frmCpTj::kPartsPage;
    s.MoveFocus(&s.Grid2);
}

void WireList(frmCpTj& s) {
    s.Grid1.onSelect = [&s](int row) {
        ShowKit(s, "", static_cast<std::int32_t>(s.Grid1.Cell(row, s.Grid1.ColumnCount()).AsLong()));
    };
    s.Grid1.onDoubleClick = [&s](int) { GoOn(s); };
    s.Grid1.onKey = [&s](const std::string& pressed) {
        if (pressed == "Enter" && s.Grid1.selectedRow > 0)
            GoOn(s);
    };
    s.Grid1.onHeading = [&s](int column) { GridSort(s.Grid1, column); };
}

// What saving would store. The cost of the product is written at once, and the warehouse only shows its stock.
std::string TypedKit(const frmCpTj& s) {
    std::string typed;
    const auto add = [&](const std::string& text) { typed.append(text).push_back('\x1f'); };
    for (const TextBox* box : std::initializer_list<const TextBox*>{&s.txtTjCode, &s.txtTjName, &s.txtTjMemo,
                                                                    &s.txtCpCode, &s.txtCpName})
        add(box->text);
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        for (const int column : {part::kCode, part::kName, part::kQuantity, part::kMemo})
            add(s.Grid2.Text(row, column));
    return typed;
}

} // namespace

frmCpTj::frmCpTj()
    : Screen("frmCpTj"), list(Grid1, KitColumns()), parts(Grid2, PartColumns()), filters(KitFilters(*this)) {
    title = "套件模板管理";
    AddNumberProperty("TjID", TjID);
    AddTextProperty("TjCode", TjCode);
    AddNumberProperty("CpTjSelect", CpTjSelect);
    txtCpCode.caption = "产品编码";
    txtCpName.caption = "品名规格";
    txtCpPrice.caption = "参考成本价";
    txtTjPrice.caption = "合计成本";
    txtTjPrice.locked = true;
    txtTjCode.onLeave = [this] {
        txtTjCode.text = UpperCase(txtTjCode.text);
        return CheckNoQuote(txtTjCode.text);
    };
    WireList(*this);
    for (const int product : {1, 2}) { // made by the template, and its parts
        SuggestProductsIn(txtCode[product], ProductPart::Code, false);
        SuggestProductsIn(txtName[product], ProductPart::Name, false);
    }
    WireKitProduct(*this);
    WireParts(*this);
    cmdQuery.onClick = [this] { QueryKits(*this); };
    cmdAdd.onClick = [this] { BeginMode(*this, EditorMode::Add); };
    cmdChange.onClick = [this] { BeginMode(*this, EditorMode::Change); };
    cmdDelete.onClick = [this] { BeginMode(*this, EditorMode::Delete); };
    cmdPrint.onClick = [this] { PrintKits(*this); };
    cmdSave.onClick = [this] { SaveKit(*this); };
    cmdCancel.onClick = [this] { LeaveMode(*this); };
    cmdCancel.dropsWork = true;
    cmdSelect.onClick = [this] { SelectKit(*this); };
    cmdQuit.onClick = [this] { Close(); };
}

// However the window is left, nothing is picked but by the select button.
void frmCpTj::Open() {
    cmdSelect.visible = std::exchange(CpTjSelect, false);
    LoadPeriodSettings();
    AddMissingColumn();
    SetUpGrids(*this);
    cboCk.Offer();
    chkCk.value = !cboCk.items.empty();
    cboCk.SetIndex(chkCk.value ? 0 : -1);
    ResetQuery(*this);
    SetMode(*this, EditorMode::Browse);
    MoveFocus(&Grid1);
    ListKits(*this, "");
}

Arrangement frmCpTj::Arrange() {
    const Arrangement detail{.above = {{&txtTjCode, &txtTjName, &txtTjMemo},
                                       {&txtCpCode, &txtCpName, &txtCpPrice},
                                       {&chkCk, &cboCk, &txtTjPrice}},
                             .grid = &Grid2,
                             .commands = {&lblPrices},
                             .closingCommands = {&cmdAddRow, &cmdDeleteRow}};
    Arrangement query;
    for (size_t i = 0; i < std::size(chkCode); ++i)
        query.fields.push_back({&chkCode[i], &txtCode[i], &chkName[i], &txtName[i]});
    query.fields.push_back({&chkPrice, &cboPrice, &txtPrice});
    query.fields.push_back({&cmdQuery});
    return {.tabs = &SSTab1,
            .pages = {{.grid = &Grid1}, detail, query},
            .commands = {&cmdAdd, &cmdChange, &cmdDelete, &cmdPrint},
            .closingCommands = {&cmdSave, &cmdCancel, &cmdSelect, &cmdQuit},
            .width = 1120,
            .height = 600};
}

std::string frmCpTj::UnsavedWork() const {
    return IsTyping() && TypedKit(*this) != asBegun ? "资料尚未保存，放弃所输入的内容？" : "";
}

void frmCpTj::SaveWork() {
    if (LeaveFocus(*this)) // what stands in the field in hand counts
        SaveKit(*this);
}

void BeginMode(frmCpTj& s, EditorMode mode) {
    SetMode(s, mode);
    if (mode == EditorMode::Add) {
        ClearKit(s);
        s.Grid2.InsertRow(1);
        s.Grid2.selectedRow = 1;
    }
    s.asBegun = TypedKit(s);
    s.MoveFocus(mode == EditorMode::Delete ? static_cast<Control*>(&s.cmdSave) : &s.txtTjCode);
}

void LeaveMode(frmCpTj& s) {
    SetMode(s, EditorMode::Browse);
    s.MoveFocus(&s.Grid1);
    QueryKits(s);
}

} // namespace jxc
