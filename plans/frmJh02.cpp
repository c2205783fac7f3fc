#include "plans/frmJh02.h"

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "forms/suggest.h"
#include "session/lookups/database_routines.h"
#include "session/period.h"
#include "session/printing/print_grid.h"
#include "session/screen_entries.h"
#include "session/session.h"

namespace jxc {

namespace {

// Every opening starts with the options as they are described, whatever the last one left.
void ResetOptions(frmJh02& s) {
    for (CheckBox* box :
         {&s.chkCk, &s.chkCpCode, &s.chkCpName, &s.chkCpZy2, &s.chkCpCd2, &s.chkPrice, &s.chkKhAll})
        box->value = false;
    s.chkDetail.value = true;
    for (EditBox* box :
         std::initializer_list<EditBox*>{&s.txtCpCode, &s.txtCpName, &s.cboCpZy2, &s.cboCpCd2, &s.txtKhSeek})
        box->text.clear();
    s.cboKhList.Clear();
    s.touched = false;
}

std::string TitleOf(const std::string& codeList, const std::string& otherwise) {
    const std::string title = DbScalar("Select BriefTypeName From Brief Where BriefType='" + codeList + "'");
    return title.empty() ? otherwise : title;
}

void OfferLists(frmJh02& s) {
    s.cboCk.Offer();
    s.chkCpZy2.caption = TitleOf(s.cboCpZy2.codeList, "产品类别");
    s.chkCpCd2.caption = TitleOf(s.cboCpCd2.codeList, "产品产地");
    s.cboCpZy2.Offer();
    s.cboCpCd2.Offer();
}

void ShapeByPlan(frmJh02& s) {
    s.title = s.IsProduction() ? "生产计划" : "采购计划";
    s.cboType.items = s.methods;
    if (!s.IsProduction())
        s.cboType.items.pop_back(); // what is bought is not assembled
    s.cboType.SetIndex(static_cast<int>(s.cboType.items.size()) - 1);
    s.cboKcType.SetIndex(plan::kMiddle);
    for (Control* control :
         std::initializer_list<Control*>{&s.txtKhSeek, &s.cboKhList, &s.chkKhAll, &s.cmdSupplier})
        control->visible = !s.IsProduction();
}

// Without products there is nothing to plan.
void ComputeIfThereAreProducts(frmJh02& s) {
    const bool any = Val(DbScalar("Select Count(*) From tJXC_Cp Where not fCpFlag=1")) != 0;
    s.cmdQuery.enabled = s.cmdPrint.enabled = any;
    s.cmdExecute.enabled = s.cmdSupplier.enabled = false;
    if (any)
        ComputePlan(s);
    else
        Warn(s.title, "注意：系统尚未有任何产品，请先进行 [产品设置] ！");
}

// Neither limits nor orders would plan nothing at all.
void WireMethod(frmJh02& s) {
    const auto changed = [&s] {
        if (s.cboType.Index() == plan::kByLimit && s.cboKcType.Index() == plan::kNoLimit)
            s.cboKcType.SetIndex(plan::kMiddle);
        s.list.ShowWanted();
    };
    s.cboType.onChoose = s.cboKcType.onChoose = changed;
    s.chkDetail.onChange = s.chkPrice.onChange = [&s] { s.list.ShowWanted(); };
    s.chkCk.onChange = [&s] {
        if (s.chkCk.value && s.cboCk.Index() < 0 && !s.cboCk.items.empty())
            s.cboCk.SetIndex(0);
        s.list.ShowWanted();
    };
}

void Print(frmJh02& s) {
    const std::string warehouse = TickedText(s.chkCk, s.cboCk);
    PrintGrid(s.Grid1, s.title, s.title, "", {s.chkCk.caption, warehouse.empty() ? "所有仓库" : warehouse});
    if (s.IsProduction())
        s.touched = false; // paper is what a production plan is for
}

} // namespace

frmJh02::frmJh02() : Screen("frmJh02"), list(Grid1, PlanColumns(*this)), filters(PlanFilters(*this)) {
    AddNumberProperty("myState", myState);
    SuggestProductsIn(txtCpCode, ProductPart::Code);
    SuggestProductsIn(txtCpName, ProductPart::Name);
    WireMethod(*this);
    WireSuppliers(*this);
    Grid1.onCellChange = [this](int, int column) { touched = touched || column == plan::kNeeded; };
    Grid1.onHeading = [this](int column) { GridSort(Grid1, column); };
    cmdQuery.onClick = [this] { ComputePlan(*this); };
    cmdQuery.dropsWork = true;
    cmdSupplier.onClick = [this] { TakeCurrentSuppliers(*this); };
    cmdExecute.onClick = [this] { ExecutePlan(*this); };
    cmdPrint.onClick = [this] { Print(*this); };
    cmdQuit.onClick = [this] { Close(); };
}

void frmJh02::Open() {
    if (myState < 0 || myState > 1)
        throw ScreenError("frmJh02 的 myState 须为 0 或 1。");
    LoadPeriodSettings();
    ResetOptions(*this);
    ShapeByPlan(*this);
    OfferLists(*this);
    SetUpPlan(*this);
    MoveFocus(&cmdQuery);
    ComputeIfThereAreProducts(*this);
}

Arrangement frmJh02::Arrange() {
    return {.above = {{&cboType, &cboKcType, &chkPrice, &chkDetail},
                      {&chkCk, &cboCk, &chkCpCode, &txtCpCode},
                      {&chkCpName, &txtCpName, &chkCpZy2, &cboCpZy2},
                      {&chkCpCd2, &cboCpCd2},
                      {&txtKhSeek, &cboKhList, &chkKhAll}},
            .grid = &Grid1,
            .commands = {&cmdQuery, &cmdSupplier, &cmdExecute, &cmdPrint},
            .closingCommands = {&cmdQuit},
            .width = 1120,
            .height = 640};
}

std::string frmJh02::UnsavedWork() const {
    return touched && Grid1.RowCount() > 0 ? "计划单尚未使用，放弃所输入的内容？" : "";
}

// A plan has no store of its own: a purchase plan is turned into orders, a production plan is printed.
void frmJh02::SaveWork() {
    if (!LeaveFocus(*this)) // what stands in the cell in hand counts
        return;
    if (IsProduction())
        Print(*this);
    else
        ExecutePlan(*this);
}

void RegisterPlanScreens() {
    AddScreen({.name = "frmJh02",
               .make = [] { return std::make_unique<frmJh02>(); },
               .calls = {{14, StateOfType}},
               .menu = {{"查询(&Q)", "采购计划", "按库存限额与订单算出要采购的数量，转为采购订单。", 14, 0},
                        {"查询(&Q)", "生产计划", "按库存限额与订单算出要组装的数量。", 14, 1}}});
}

} // namespace jxc
