#include "stock/frmCkKc.h"

#include <algorithm>

#include "base/text.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "forms/edit_filter.h"
#include "session/lookups/database_routines.h"
#include "session/lookups/lists.h"
#include "session/period.h"
#include "session/printing/print_grid.h"
#include "session/screen_entries.h"
#include "session/session.h"
#include "stock/stock_query.h"

namespace jxc {

namespace {

constexpr int kTextBytes = 50;

const char* TitleOf(StockQuery question) {
    switch (question) {
    case StockQuery::Alarm:
        return "库存报警";
    case StockQuery::Cost:
        return "成本核算统计";
    case StockQuery::Stock:
        break;
    }
    return "库存统计";
}

// Every opening starts with the options as they are described, whatever the last one left.
void ResetOptions(frmCkKc& s) {
    for (CheckBox* box : {&s.chkCk, &s.chkCpCode, &s.chkCpName, &s.chkNeg, &s.chkDate})
        box->value = false;
    s.chkDetail.value = true;
    s.txtCpCode.text.clear();
    s.txtCpName.text.clear();
    for (OptionButton* option : {&s.optPrice0, &s.optPrice1, &s.optPrice2})
        option->value = false;
    s.optPrice3.value = true;
}

void ShapeByQuestion(frmCkKc& s) {
    const bool alarm = s.Question() == StockQuery::Alarm;
    const bool cost = s.Question() == StockQuery::Cost;
    s.title = TitleOf(s.Question());
    s.chkPrice.value = cost;
    s.chkPrice.visible = false;
    for (Control* control :
         std::initializer_list<Control*>{&s.lblPrice, &s.optPrice0, &s.optPrice1, &s.optPrice2, &s.optPrice3})
        control->visible = cost;
    s.cmdRefresh.visible = !alarm;
    s.chkKcBj.visible = s.chkKcBj.value = alarm;
    s.chkDetail.visible = alarm;
}

void OfferDate(frmCkKc& s) {
    s.DTPicker1.date = session.PeriodEnd ? std::min(Today(), *session.PeriodEnd) : Today();
}

void OfferWarehouses(frmCkKc& s) {
    FillCombo("Select fCkName,0 as aaa from tJXC_Ck Order By fCkCode", s.cboCk);
    s.cboCk.SetIndex(s.cboCk.items.size() == 1 ? 0 : -1);
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

void Print(frmCkKc& s) {
    auto& fields = session.CompanyFieldList;
    const std::vector<std::string> company = fields;
    const bool all = !s.chkCk.value || s.cboCk.text.empty();
    fields.push_back(s.chkCk.caption);
    fields.push_back(all ? "所有仓库" : s.cboCk.text);
    if (s.chkPrice.value) {
        const OptionButton* const options[] = {&s.optPrice0, &s.optPrice1, &s.optPrice2, &s.optPrice3};
        fields.push_back("单价取值");
        fields.push_back(options[s.ChosenPrice()]->caption);
    }
    try {
        PrintGrid(s.Grid1, s.title, s.title, "");
    } catch (...) {
        fields = company;
        throw;
    }
    fields = company;
}

} // namespace

frmCkKc::frmCkKc() : Screen("frmCkKc") {
    AddNumberProperty("myState", myState);
    FilterKeys(txtCpCode, kTextBytes);
    FilterKeys(txtCpName, kTextBytes);
    for (TextBox* box : {&txtCpCode, &txtCpName})
        box->onLeave = [box] { return CheckNoQuote(box->text); };
    chkDetail.onChange = [this] { HideStockColumns(*this); };
    Grid1.onHeading = [this](int column) {
        GridSort(Grid1, column);
        ColorRows(*this);
    };
    cmdQuery.onClick = [this] { QueryStock(*this); };
    cmdPrint.onClick = [this] { Print(*this); };
    cmdQuit.onClick = [this] { Close(); };
    // Rebuilding the statistics from all documents belongs to the month-end close, which this version does
    // not have yet.
    cmdRefresh.onClick = [this] { Inform(title, "本版本尚未提供该功能（库存成本刷新）。"); };
}

void frmCkKc::Open() {
    if (myState < 0 || myState > 2)
        throw ScreenError("frmCkKc 的 myState 须为 0 至 2。");
    LoadPeriodSettings();
    ResetOptions(*this);
    ShapeByQuestion(*this);
    OfferDate(*this);
    OfferWarehouses(*this);
    SetUpStockGrid(*this);
    HideStockColumns(*this);
    MoveFocus(&cmdQuery);
    QueryIfThereAreProducts(*this);
}

int frmCkKc::ChosenPrice() const {
    return optPrice0.value ? 0 : optPrice1.value ? 1 : optPrice2.value ? 2 : 3;
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
