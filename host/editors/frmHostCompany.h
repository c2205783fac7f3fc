// The company's own data: what stands at the head of every printout, and the day its books began.
#pragma once

#include "forms/record_editor.h"

namespace jxc {

struct frmHostCompany : RecordEditor {
    frmHostCompany();
    Arrangement Arrange() override;

    TextRecordField txtFullName{*this, "txtFullName", "FullName", "公司全称", 80};
    TextRecordField txtCompName{*this, "txtCompName", "CompName", "公司简称", 40, {.required = true}};
    TextRecordField txtProvince{*this, "txtProvince", "Province", "省", 20};
    TextRecordField txtCityname{*this, "txtCityname", "cityname", "市", 20};
    TextRecordField txtCompadd{*this, "txtCompadd", "compadd", "地址", 80};
    TextRecordField txtPostcode{*this, "txtPostcode", "postcode", "邮编", 10};
    TextRecordField txtTelphone{*this, "txtTelphone", "Telphone", "电话", 30};
    TextRecordField txtFax{*this, "txtFax", "fax", "传真", 30};
    TextRecordField txtHttp{*this, "txtHttp", "http", "网址", 80};
    TextRecordField txtE_Mail{*this, "txtE_Mail", "E_Mail", "电子邮件", 50};
    TextRecordField txtCompTax{*this, "txtCompTax", "CompTax", "税号", 40};
    TextRecordField txtCompAcnt{*this, "txtCompAcnt", "CompAcnt", "帐号", 60};
    DateBox dtpCompDate{*this, "dtpCompDate"};

    void Load() override;
    bool HasRecord() override { return true; } // saving adds the row that is missing
    void Store() override;
    void ShapeByMode() override;
};

} // namespace jxc
