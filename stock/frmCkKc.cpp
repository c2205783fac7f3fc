#include "stock/frmCkKc.h"

#include <algorithm>

#include "base/text.h"
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
void ResetOptions(frmCkKc& s) {
    for (CheckBox* box : {&s.chkCk, &s.chkCpCode, &s.chkCpName, &s.chkNeg, &s.chkDate})
        box->value = false;
    s.chkDetail.value = true;
    s.txtCpCode.text.clear();
    s.txtCpName.text.clear();
    s.optPrice[3].Choose();
    s.leftOut.clear();
    s.cboCk.Offer();
    s.DTPicker1.date = session.PeriodEnd ? std::min(Today(), *session.PeriodEnd) : Today();
}

void ShapeByQuestion(frmCkKc& s) {
    const char* const titles[] = {"库存统计", "库存报警", "成本核算统计"};
    const bool alarm = s.Question() == StockQuery::Alarm;
    const bool cost = s.Question() == StockQuery::Cost;
    s.title = titles[s.myState];
    s.chkPrice.value = cost;
    s.chkPrice.visible = false;
    s.lblPrice.visible = cost;
    for (OptionButton& option : s.optPrice)
        option.visible = cost;
    s.cmdRefresh.visible = !alarm;
    s.chkKcBj.visible = s.chkKcBj.value = alarm;
    s.chkDetail.visible = alarm;
}

// Without products there is nothing to ask.
void QueryIfThereAreProducts(frmCkKc& s) {
    const bool any = Val(DbScalar("Select Count(*) From tJXC_Cp Where not fCpFlag=1")) != 0;
    s.cmdQuery.enabled = s.cmdRefresh.enabled = s.cmdPrint.enabled = any;
    if (any)
        QueryStock(s);
    else
        Warn(s.title, "注意：系统尚未有任何产品，请先进行 [产品设置] ！");
}

void Print(const frmCkKc& s) {
    const std::string warehouse = TickedText(s.chkCk, s.cboCk);
    FieldList fields{s.chkCk.caption, warehouse.empty() ? "所有仓库" : warehouse};
    if (s.chkPrice.value)
        fields.insert(fields.end(), {"单价取值", s.optPrice[s.ChosenPrice()].caption});
    PrintGrid(s.Grid1, s.title, s.title, "", fields);
}

} // namespace

frmCkKc::frmCkKc() : Screen("frmCkKc"), list(Grid1, StockColumns(*this)), filters(StockFilters(*this)) {
    AddNumberProperty("myState", myState);
    SuggestProductsIn(txtCpCode, ProductPart::Code);
    SuggestProductsIn(txtCpName, ProductPart::Name);
    list.takes = [this](const Recordset& row) {
        if (const Value& month = row["fMonth"]; !month.IsNull())
            stampedMonth = ParseDate(month.AsText());
        return !row["fCpCode"].IsNull(); // the product may be gone
    };
    chkDetail.onChange = [this] { list.ShowWanted(); };
    Grid1.onHeading = [this](int column) {
        GridSort(Grid1, column);
        ColorRows(*this);
    };
    cmdQuery.onClick = [this] { QueryStock(*this); };
    cmdPrint.onClick = [this] { Print(*this); };
    cmdQuit.onClick = [this] { Close(); };
    cmdRefresh.onClick = [this] { RefreshStatistics(*this); };
}

void frmCkKc::Open() {
    if (myState < 0 || myState > 2)
        throw ScreenError("frmCkKc 的 myState 须为 0 至 2。");
    LoadPeriodSettings();
    ResetOptions(*this);
    ShapeByQuestion(*this);
    list.SetUp();
    MoveFocus(&cmdQuery);
    QueryIfThereAreProducts(*this);
}

Arrangement frmCkKc::Arrange() {
    return {
        .above = {{&chkCk, &cboCk, &chkCpCode, &txtCpCode, &chkCpName, &txtCpName, &chkKcBj, &chkNeg,
                   &chkDetail},
                  {&chkDate, &DTPicker1, &lblPrice, &optPrice[0], &optPrice[1], &optPrice[2], &optPrice[3]},
                  {&lblStatistics}},
        .grid = &Grid1,
        .commands = {&cmdQuery, &cmdRefresh, &cmdPrint},
        .closingCommands = {&cmdQuit},
        .width = 1100,
        .height = 640};
}

size_t frmCkKc::ChosenPrice() const {
    size_t place = 0;
    while (place + 1 < std::size(optPrice) && !optPrice[place].value)
        ++place;
    return place;
}

void RegisterStockScreens() {
    AddScreen({.name = "frmCkKc",
               .make = [] { return std::make_unique<frmCkKc>(); },
               .calls = {{4, FixedState<0>}, {5, FixedState<1>}, {6, FixedState<2>}},
               .menu = {{"查询(&Q)", "库存统计", "各仓库现有的库存数。", 4},
                        {"查询(&Q)", "库存报警", "低于下限或高于上限的产品。", 5},
                        {"查询(&Q)", "成本核算统计", "库存与本期进销的数量、单价与金额。", 6}}});
}

} // namespace jxc
