// Stock, alarm and cost query: what lies in stock, where it leaves its limits, what it and the period's sales
// cost. It reads the running counters, never the documents.
#pragma once

#include <optional>
#include <string>

#include "base/date.h"
#include "controls/screen.h"
#include "forms/columns.h"
#include "forms/filters.h"
#include "forms/lookup_fields.h"

namespace jxc {

// The questions, by myState.
enum class StockQuery { Stock = 0, Alarm = 1, Cost = 2 };

struct frmCkKc : Screen {
    frmCkKc();
    void Open() override;
    Arrangement Arrange() override;

    CheckBox chkCk{*this, "chkCk", "限定仓库"};
    AllWarehousesField cboCk{*this, "cboCk"};
    CheckBox chkCpCode{*this, "chkCpCode", "产品编码"};
    PatternField txtCpCode{*this, "txtCpCode"};
    CheckBox chkCpName{*this, "chkCpName", "品名/规格"};
    PatternField txtCpName{*this, "txtCpName"};
    CheckBox chkKcBj{*this, "chkKcBj", "超限查询"};
    CheckBox chkNeg{*this, "chkNeg", "负库存查询"};
    CheckBox chkDetail{*this, "chkDetail", "详情列示", true};
    CheckBox chkPrice{*this, "chkPrice", "[单价与金额]", true}; // follows the question, never shown
    Label lblPrice{*this, "lblPrice", "调库单/盘点单的单价取值："};
    // The price that values transfers and stocktakes.
    OptionButton optPrice[4]{{*this, "optPrice(0)", "optPrice", "成本价"},
                             {*this, "optPrice(1)", "optPrice", "批发价"},
                             {*this, "optPrice(2)", "optPrice", "代销价"},
                             {*this, "optPrice(3)", "optPrice", "零售价", true}};
    CheckBox chkDate{*this, "chkDate", "截止日期"};
    DateBox DTPicker1{*this, "DTPicker1"};

    Label lblStatistics{*this, "lblStatistics"}; // what the figures are not: of this month, or whole

    Grid Grid1{*this, "Grid1"};

    Button cmdQuery{*this, "cmdQuery", "查询(&Q)", "F5"};
    Button cmdRefresh{*this, "cmdRefresh", "库存成本刷新(&R)"};
    Button cmdPrint{*this, "cmdPrint", "打印(&P)", "Ctrl+P"};
    Button cmdQuit{*this, "cmdQuit", "退出(&C)"};

    int myState = 0; // set by the opener

    Columns list;
    Filters filters;
    std::optional<Date> stampedMonth; // that a row listed carries since its close
    std::string leftOut;              // by the last refresh

    StockQuery Question() const { return static_cast<StockQuery>(myState); }
    size_t ChosenPrice() const; // the place of its option
};

// -- stock_query.cpp
std::vector<Column> StockColumns(const frmCkKc& s);
std::vector<Filter> StockFilters(frmCkKc& s);
// Runs the query and fills the grid; says so when nothing matched.
void QueryStock(frmCkKc& s);
// The alarm's row colours from stock and limits.
void ColorRows(frmCkKc& s);

// -- refresh_statistics.cpp
// Asks, rebuilds the statistics up to the chosen date and queries again; what documents they are without is told beside
// the rows.
void RefreshStatistics(frmCkKc& s);
// Says below the filters when the rows listed are of another month, or without documents.
void TellOfStatistics(frmCkKc& s);

void RegisterStockScreens();

} // namespace jxc
