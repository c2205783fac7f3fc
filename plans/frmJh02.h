// The plan of purchases or of production: how much of each product is needed beyond stock, by its limits and the open
// orders. A spreadsheet: nothing of it is stored until a purchase plan is turned into orders, one for each supplier; a
// production plan is printed.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "controls/screen.h"
#include "forms/columns.h"
#include "forms/filters.h"
#include "forms/lookup_fields.h"

namespace jxc {

namespace plan {
// The columns of the grid, A to Q.
enum Column {
    kCode = 1,
    kName,
    kUnit,
    kWarehouse,
    kStock,
    kLower,
    kUpper,
    kSales,
    kPurchases,
    kAssembly,
    kDismantling,
    kNeeded,
    kPrice,
    kAmount,
    kSupplier,
    kSupplierId,
    kProduct
};
// How a plan is worked out, by the place in cboType.
enum Method { kByLimit, kByOrders, kByOrdersAndAssembly };
// The stock aimed at, by the place in cboKcType.
enum Limit { kNoLimit, kLowerLimit, kMiddle, kUpperLimit };
} // namespace plan

// By product: what is on order from suppliers, and what is being assembled.
struct PlanSums {
    std::map<std::int64_t, double> purchases, assemblies;
};

struct frmJh02 : Screen {
    frmJh02();
    void Open() override;
    Arrangement Arrange() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    FixedList cboType{*this,
                      "cboType",
                      "计算方式",
                      {"库存限额-库存数", "销售订单(在途)-采购订单(在途)+库存限额-库存数",
                       "销售订单(在途)-采购订单(在途)+库存限额-库存数-在组装数"}};
    FixedList cboKcType{*this,
                        "cboKcType",
                        "库存限额",
                        {"不限（= 0）", "库存下限（最小值）", "库存中限（中间值）", "库存上限（最大值）"}};
    CheckBox chkCk{*this, "chkCk", "限定仓库"};
    AllWarehousesField cboCk{*this, "cboCk"};
    CheckBox chkCpCode{*this, "chkCpCode", "产品编码"};
    PatternField txtCpCode{*this, "txtCpCode"};
    CheckBox chkCpName{*this, "chkCpName", "品名规格"};
    PatternField txtCpName{*this, "txtCpName"};
    CheckBox chkCpZy2{*this, "chkCpZy2"};
    CodeListField cboCpZy2{*this, "cboCpZy2", "fCpZy"};
    CheckBox chkCpCd2{*this, "chkCpCd2"};
    CodeListField cboCpCd2{*this, "cboCpCd2", "fCpCd"};
    CheckBox chkPrice{*this, "chkPrice", "显示单价金额"};
    CheckBox chkDetail{*this, "chkDetail", "显示库存详情", true};

    // The supplier of the selected row, or of all rows.
    TextField txtKhSeek{*this, "txtKhSeek", "供应商", 50};
    CardField cboKhList{*this, "cboKhList"};
    CheckBox chkKhAll{*this, "chkKhAll", "同一供应商？"};

    Grid Grid1{*this, "Grid1"};

    Button cmdQuery{*this, "cmdQuery", "统计(&O)", "F5"};
    Button cmdSupplier{*this, "cmdSupplier", "自动计算供应商(&A)", "F6"};
    Button cmdExecute{*this, "cmdExecute", "执行(&E)", "F9"};
    Button cmdPrint{*this, "cmdPrint", "打印(&P)", "Ctrl+P"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    int myState = 0; // set by the opener: 0 purchases, 1 production

    const std::vector<std::string> methods = cboType.items;

    Columns list;
    Filters filters;
    PlanSums sums;     // of the plan that is being filled
    double needed = 0; // of the row that is being filled
    // Somebody overtyped a figure or chose a supplier since the plan was worked out, and has not used it since.
    bool touched = false;

    bool IsProduction() const { return myState == 1; }
    bool CountsOrders() const { return cboType.Index() > plan::kByLimit; }
};

// -- plan_columns.cpp
std::vector<Column> PlanColumns(frmJh02& s);
// The grid with its columns, formula and bounds, without rows.
void SetUpPlan(frmJh02& s);
// The figure of a row of the plan's statement in one of the columns E to K.
double PlanFigure(const frmJh02& s, const Recordset& row, int column);

// -- compute_plan.cpp
std::vector<Filter> PlanFilters(frmJh02& s);
// The formula of the needed quantity, in the grid's letters.
std::string NeedFormula(int limit, int method);
// The statements of a plan: its products with stock and what customers have on order, what is on order from suppliers,
// what is being assembled.
std::string PlanStatement(const frmJh02& s);
std::string OpenPurchasesStatement();
std::string AssembliesStatement();
// Works the plan out and fills the grid with what is needed; says so when nothing is.
void ComputePlan(frmJh02& s);

// -- plan_suppliers.cpp
void WireSuppliers(frmJh02& s);
// Shows the selected row's supplier in the list; no row changes.
void ShowSupplier(frmJh02& s);
// Gives rows without a supplier their product's current one, and tells how many have none even so.
void TakeCurrentSuppliers(frmJh02& s);

// -- plan_to_orders.cpp
// Turns a purchase plan into orders in one transaction, with its checks and its question before; of a production plan it
// tells what to do.
void ExecutePlan(frmJh02& s);

void RegisterPlanScreens();

} // namespace jxc
