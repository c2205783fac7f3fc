// The company's own data: what stands at the head of every printout, and the day its books began.
#pragma once

#include "forms/record_editor.h"

namespace jxc {

struct frmHostCompany : RecordEditor {
    frmHostCompany();

    TextBox txtFullName{*this, "txtFullName"};
    TextBox txtCompName{*this, "txtCompName"};
    TextBox txtProvince{*this, "txtProvince"};
    TextBox txtCityname{*this, "txtCityname"};
    TextBox txtCompadd{*this, "txtCompadd"};
    TextBox txtPostcode{*this, "txtPostcode"};
    TextBox txtTelphone{*this, "txtTelphone"};
    TextBox txtFax{*this, "txtFax"};
    TextBox txtHttp{*this, "txtHttp"};
    TextBox txtE_Mail{*this, "txtE_Mail"};
    TextBox txtCompTax{*this, "txtCompTax"};
    TextBox txtCompAcnt{*this, "txtCompAcnt"};
    DateBox dtpCompDate{*this, "dtpCompDate"};

    void Load() override;
    bool HasRecord() override { return true; } // saving adds the row that is missing
    MayRefuse Refuse() override;
    void Store() override;
    void ShapeByMode() override;
    Control& Home() override { return cmdChange; }
};

} // namespace jxc
