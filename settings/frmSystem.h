// System parameters on the first page, the table of document types on the second, what the modules are on the third. Every
// other screen reads what is set here when it opens.
#pragma once

#include "controls/screen.h"
#include "forms/columns.h"
#include "forms/fields.h"
#include "settings/parameter_fields.h"

namespace jxc {

struct frmSystem : Screen {
    frmSystem();
    void Open() override;
    Arrangement Arrange() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    enum Page { kParameters, kTypes, kModules };
    Tabs SSTab1{*this, "SSTab1", {"系统参数", "系统单据", "系统功能"}};

    ListBox comYear{*this, "comYear"};
    ListBox comMonth{*this, "comMonth"};
    FixedList cboDayMonth{*this, "cboDayMonth", "本期开始日", {"上月", "本月"}};
    ListBox cboDay{*this, "cboDay"};
    TaxWayField cboTaxWay{*this, "cboTaxWay"};
    TaxRateField txtTaxRate{*this, "txtTaxRate"};
    Label lblTaxMemo{*this, "lblTaxMemo"};
    CostMethodField cboSysCost{*this, "cboSysCost"};
    DigitsField txtDeciLen[2]{{*this, "txtDeciLen(0)", "数量小数位", 1},
                              {*this, "txtDeciLen(1)", "单价小数位", 1}};
    DigitsField txtMaxRow{*this, "txtMaxRow", "单据最大行", 3}; // 0 for no limit
    CheckBox chkBz[3]{{*this, "chkBz(0)", "单据-产品规格", true},
                      {*this, "chkBz(1)", "单据-备注1"},
                      {*this, "chkBz(2)", "单据-备注2"}};
    TextField txtBz[3]{{*this, "txtBz(0)", "", 20}, {*this, "txtBz(1)", "", 20}, {*this, "txtBz(2)", "", 20}};
    FixedList cboInvType{
        *this, "cboInvType", "销售业绩统计方式", {"按 [仓库出库] 统计", "按 [销售订单] 统计"}};
    CheckBox chkAutoCheck{*this, "chkAutoCheck", "快捷登录：单据[新增]时，即执行[审核]操作？"};
    CheckBox chkAutoKcTj{*this, "chkAutoKcTj", "单据登录：单据新增完毕后，方可打印？"};
    CheckBox chkInputRapic{*this, "chkInputRapic", "单据登录：提供“实收、实付”快捷登录？"};
    CheckBox chkInputOther{*this, "chkInputOther", "单据登录：“其它应收、其它应付”快捷登录？"};
    CheckBox chkWarnKc{*this, "chkWarnKc", "单据登录：出库将使库存为负数时提醒？"};

    Label lblAutoNo{*this, "lblAutoNo", "“YYYYMMDD”表示 YYYY年MM月DD日 ，“XXX”表示3位[自动计数位]。"};
    Grid Grid1{*this, "Grid1"};
    Label lblTypes{*this, "lblTypes", "注意：单据设置一经确定，不可轻易变更，以免引起系统的统计错误！"};
    Button cmdDefault{*this, "cmdDefault", "缺省单号设置"};
    Button cmdTest{*this, "cmdTest", "模拟测试(&T)"};

    FixedList cboSysType{*this, "cboSysType", "系统类型", {"==普及版==", "==标准版=="}};
    Label Label4{*this, "Label4", "（*表示[普及版]功能）"};
    Frame fraMemo{*this, "fraMemo"}; // the presets tick its boxes, not the person
    CheckBox chkMemo[12]{
        {fraMemo, "chkMemo(0)", "询价报价管理：采购询价单、销售报价单*；"},
        {fraMemo, "chkMemo(1)", "合同订单管理：包括采购订单、销售订单*；"},
        {fraMemo, "chkMemo(2)", "仓库单据管理：期初单、入库单、出库单、调库单、盘点单*；"},
        {fraMemo, "chkMemo(3)", "生产装配管理：产品套件的设定，生产组装单、生产拆分单；"},
        {fraMemo, "chkMemo(4)", "计划采购管理：根据销售订单及库存等情况，制定采购计划，生成采购订单；"},
        {fraMemo, "chkMemo(5)", "经销商管理制度：正常情况下的发货出库，即时产生应收帐款--------出库单*；"},
        {fraMemo, "chkMemo(6)",
         "代销商管理制度：发货只计库存，实现销售后结算，产生应收帐款----代销发货单、代销结算单；"},
        {fraMemo, "chkMemo(7)", "门市销售管理：零售出货，即时产生实收帐款，自动入帐------------零售单*；"},
        {fraMemo, "chkMemo(8)", "往来帐款管理：业务往来客户的应收应付、实收实付管理*；"},
        {fraMemo, "chkMemo(9)", "资金帐户管理：用户单位内部的资金帐户的收支管理*；"},
        {fraMemo, "chkMemo(10)", "业绩管理制度：经办人专项管理，销售业绩以及提成统计；"},
        {fraMemo, "chkMemo(11)", "计划生产管理：根据销售订单及库存装配等情况，制定生产计划。"}};

    Button cmdConfirm{*this, "cmdConfirm", "存盘(&S)", "F9"};
    Button cmdClose{*this, "cmdClose", "退出(&C)"};

    std::string memoBefore[3]; // what a memo's box gets back when it is ticked again
    Columns types{Grid1};      // in the order of the table's columns from its second one on
    std::string typesAsLoaded; // what the types held when they were read or saved, to be compared
    std::string asLoaded;      // what the first page held when it was read or saved, to be compared
    std::string stored;        // the row of parameters then: another user or a close may change it

    Date Period() const;  // the first day of the month chosen
    int StartDay() const; // as fSysDay holds it
};

// -- frmSystem.cpp
// What belongs to the page in front: each has its commands, and the last one is only read.
void ShowPage(frmSystem& s);

// -- system_parameters.cpp
// From tJXC_InvSys; without its row the fields keep what the program begins with.
void LoadParameters(frmSystem& s);
std::string TypedParameters(const frmSystem& s);
// After a question, in one transaction. False when the person thought better of it or something is wrong, which is told.
[[nodiscard]] bool SaveParameters(frmSystem& s);
// What follows from choosing the system's kind, the way of tax, and from ticking a memo.
void TakeSystemType(frmSystem& s);
void TakeTaxWay(frmSystem& s);
void ShowTaxMemo(frmSystem& s);
void TurnMemo(frmSystem& s, size_t memo);

// -- type_grid.cpp
// From tJXC_InvSet; a company without types is offered the built-in ones, all marked as changed.
void LoadTypeGrid(frmSystem& s);
// Writes the rows changed since the screen was opened, after a question, in one transaction. False as above.
[[nodiscard]] bool SaveTypeGrid(frmSystem& s);
std::string TypedTypes(const frmSystem& s);
// Marks the row; a number rule that cannot be used gives way to the one the type was shipped with.
void OnCellChange(frmSystem& s, int column, int row);
// Each type's shipped rule becomes its rule; a type without one takes its rule as the shipped one.
void TakeDefaultRules(frmSystem& s);
// Shows the number that each rule would give today.
void TestRules(frmSystem& s);

} // namespace jxc
