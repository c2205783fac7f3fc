// What a person is asked for a company of his own. It needs no open company and writes nothing: it leaves what was wished
// to its opener, who makes the company (host/company/create_company.h). Opened again it shows what was typed before.
#pragma once

#include <optional>

#include "controls/screen.h"
#include "forms/fields.h"
#include "host/company/new_company.h"
#include "host/passwords.h"
#include "settings/parameter_fields.h"

namespace jxc {

struct frmHostNewCompany : Screen {
    frmHostNewCompany();
    void Open() override;
    Arrangement Arrange() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    TextField txtCompName{*this, "txtCompName", "公司名称", 40};
    ListBox cboPeriod{*this, "cboPeriod"}; // months, the last one is this month
    DigitsField txtDeciLen[2]{{*this, "txtDeciLen(0)", "数量小数位", 1},
                              {*this, "txtDeciLen(1)", "单价小数位", 1}};
    TextField txtMoneyCode{*this, "txtMoneyCode", "本位币", 10};
    TaxWayField cboTaxWay{*this, "cboTaxWay"};
    TaxRateField txtTaxRate{*this, "txtTaxRate"};
    CostMethodField cboSysCost{*this, "cboSysCost"};
    TextField txtCkCode{*this, "txtCkCode", "仓库编号", 12};
    TextField txtCkName{*this, "txtCkName", "首个仓库", 20};
    TextField txtUserName{*this, "txtUserName", "用户", 20};
    TextField txtPassword{*this, "txtPassword", "密码", kPasswordBytes};
    TextField txtPassword2{*this, "txtPassword2", "再次输入", kPasswordBytes};
    Label lblUser{*this, "lblUser", "您是系统[负责人]，有全部权限。不设密码也可以。"};
    Button cmdCreate{*this, "cmdCreate", "建立帐套(&S)", "F9"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    // What was wished; nothing until the person has it made.
    std::optional<NewCompany> wishes;
    std::string asBegun; // TypedWork of the presets
};

} // namespace jxc
