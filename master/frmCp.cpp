#include "master/frmCp.h"

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "forms/column_dictionary.h"
#include "forms/record_editor.h"
#include "forms/suggest.h"
#include "master/supplier_history.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/period.h"
#include "session/printing/print_grid.h"
#include "session/session.h"

namespace jxc {

namespace {

// What the caller wanted, taken once: the next caller who says nothing wants the whole screen.
void TakeProperties(frmCp& s) {
    s.listedFirst.clear();
    for (const std::string& key : Split(s.CpIDs, ','))
        if (const auto id = static_cast<std::int64_t>(Val(key)); id > 0)
            s.listedFirst.push_back(id);
    s.picking = !s.CpCode.empty() || !s.CpName.empty() || !s.CpBarCode.empty() || !s.listedFirst.empty();
    s.noEdit = s.CpNoEdit == 1;
    s.chkCpCode2.value = !s.CpCode.empty();
    s.txtCpCode2.text = s.CpCode;
    s.chkCpName2.value = s.CpCode.empty() && !s.CpName.empty();
    s.txtCpName2.text = s.CpCode.empty() ? s.CpName : "";
    s.chkCpBarCode2.value = !s.CpBarCode.empty();
    s.txtCpBarCode2.text = s.CpBarCode;
    s.CpCode.clear();
    s.CpName.clear();
    s.CpBarCode.clear();
    s.CpIDs.clear();
    s.CpNoEdit = 0;
}

void ShapeByCaller(frmCp& s) {
    s.cmdSelect.visible = s.picking;
    for (Button* command : {&s.cmdStock, &s.cmdColumns, &s.cmdSupplier})
        command->visible = !s.picking && !s.noEdit;
    for (Button* command : {&s.cmdAdd, &s.cmdChange, &s.cmdDelete})
        command->visible = !s.noEdit;
}

void TakeRow(frmCp& s) {
    if (s.picking)
        return s.Close();
    s.SSTab1.index = frmCp::kDetail;
}

void ShowRow(frmCp& s, int row) {
    const Value key = s.Grid1.Cell(row, s.Grid1.ColumnCount());
    ShowProduct(s, static_cast<std::int32_t>(key.AsLong()));
}

void RefreshSuppliers(frmCp& s) {
    LoadPeriodSettings(); // another user may have closed the month
    if (!session.PeriodStart)
        return Warn(s.title, "系统参数尚未设置，请先进行 [系统参数设置] ！");
    if (!RefreshSupplierAll(*session.PeriodStart))
        return;
    ShowProduct(s, session.SelectedProductID); // it may have another supplier now
    Inform(s.title, "供应商刷新完毕！");
}

void Quit(frmCp& s) {
    session.SelectedProductID = 0;
    s.Close();
}

} // namespace

frmCp::frmCp() : Screen("frmCp"), filters(ProductFilters(*this)) {
    title = "产品管理";
    AddTextProperty("CpCode", CpCode);
    AddTextProperty("CpName", CpName);
    AddTextProperty("CpBarCode", CpBarCode);
    AddTextProperty("CpIDs", CpIDs);
    AddNumberProperty("CpNoEdit", CpNoEdit);
    WireProductFields(*this);
    SuggestProductsIn(txtCpCode2, ProductPart::Code, false);
    SuggestProductsIn(txtCpName2, ProductPart::Name, false);
    SuggestProductsIn(txtCpBarCode2, ProductPart::BarCode, false);
    SuggestWarehousesIn(txtCpck2, WarehousePart::Name);
    SuggestCardsIn(txtCpGYS2);
    SuggestCardsFor(txtKhSeek, cboKh, [] {});
    SSTab1.onChange = [this] {
        if (SSTab1.index != kDetail)
            MoveFocus(SSTab1.index == kList ? static_cast<Control*>(&Grid1) : &txtCpCode2);
    };
    Grid1.onSelect = [this](int row) { ShowRow(*this, row); };
    Grid1.onDoubleClick = [this](int) { TakeRow(*this); };
    Grid1.onKey = [this](const std::string& key) {
        if (key == "Enter" && Grid1.selectedRow > 0)
            TakeRow(*this);
    };
    Grid1.onHeading = [this](int column) { GridSort(Grid1, column); };
    cmdQuery.onClick = [this] { QueryProducts(*this); };
    cmdAdd.onClick = [this] { BeginProductMode(*this, EditorMode::Add); };
    cmdChange.onClick = [this] { BeginProductMode(*this, EditorMode::Change); };
    cmdDelete.onClick = [this] { BeginProductMode(*this, EditorMode::Delete); };
    cmdSave.onClick = [this] { SaveProduct(*this); };
    cmdCancel.onClick = [this] { LeaveProductMode(*this); };
    cmdCancel.dropsWork = true;
    cmdSelect.onClick = [this] { Close(); };
    cmdQuit.onClick = [this] { Quit(*this); };
    cmdSupplier.onClick = [this] { RefreshSuppliers(*this); };
    cmdStock.onClick = [] {
        Screen& stock = ScreenNamed("frmCkKc");
        stock.SetProperty("myState", 0);
        ShowModal(stock);
    };
    cmdPrint.onClick = [this] { PrintGrid(Grid1, "", "", ""); };
    cmdColumns.onClick = [this] { ChooseProductColumns(*this); };
    cmdColumnSave.onClick = [this] { SaveGridColumnWidths("tJXC_Cp", Grid1, 1, columns); };
}

void frmCp::Open() {
    ResetQuery(*this);
    TakeProperties(*this);
    LoadPeriodSettings();
    SSTab1.index = kList;
    TakeCaptions(*this);
    OfferProductLists(*this);
    SetUpProductColumns(*this);
    EndProductMode(*this);
    ShapeByCaller(*this);
    if (!listedFirst.empty())
        ListProducts(*this, "fCpID" + InKeys(listedFirst));
    else if (picking)
        QueryProducts(*this);
    else
        ListProducts(*this, "");
}

Arrangement frmCp::Arrange() {
    const Arrangement detail{
        .fields = {
            {&lblCpCode, &txtCpCode, &lblCpName, &txtCpName, &lblCpGG, &txtCpGG},
            {&lblCpUnit, &cboCpUnit, &lblCpBarCode, &txtCpBarCode, &lblCpPrice[0], &txtCpPrice[0]},
            {&lblCpPrice[1], &txtCpPrice[1], &lblCpPrice[2], &txtCpPrice[2], &lblCpPrice[3], &txtCpPrice[3]},
            {&lblCpSlMin, &txtCpSlMin, &lblCpSlMax, &txtCpSlMax, &lblCkName, &cboCkName},
            {&lblCpCw, &cboCpCw, &lblCpZy, &cboCpZy, &lblCpCd, &cboCpCd},
            {&txtKhSeek, &lblKhName, &cboKh, &chkCpFlag},
            {&lblCpPicture, &txtCpPicture, &lblNoPicture},
            {&imgPicture}}};
    Arrangement query{.fields = {{&chkCpCode2, &txtCpCode2, &chkCpName2, &txtCpName2},
                                 {&chkCpBarCode2, &txtCpBarCode2, &chkCpCk2, &txtCpck2},
                                 {&chkCpCw2, &txtCpCw2, &chkCpZy2, &txtCpZy2},
                                 {&chkCpCd2, &txtCpCd2, &chkCpGys2, &txtCpGYS2}},
                      .commands = {&cmdQuery}};
    for (size_t price = 0; price < std::size(chkPrice2); ++price)
        query.fields.push_back({&chkPrice2[price], &cboPrice2[price], &txtPrice2[price]});
    return {.tabs = &SSTab1,
            .pages = {{.grid = &Grid1}, detail, query},
            .commands = {&cmdAdd, &cmdChange, &cmdDelete, &cmdSupplier, &cmdStock, &cmdPrint, &cmdColumns,
                         &cmdColumnSave},
            .closingCommands = {&cmdSave, &cmdCancel, &cmdSelect, &cmdQuit},
            .width = 1160,
            .height = 620};
}

std::string frmCp::UnsavedWork() const {
    return IsTyping() && TypedWork(*this) != asBegun ? "产品资料尚未保存，放弃所输入的内容？" : "";
}

void frmCp::SaveWork() {
    if (LeaveFocus(*this)) // what stands in the field in hand counts
        SaveProduct(*this);
}

} // namespace jxc
