// Cards of customers and suppliers.
#pragma once

#include "forms/list_editor.h"

namespace jxc {

struct frmHostCards : ListEditor {
    frmHostCards();
    void Open() override;
    Arrangement Arrange() override;

    // Limits the list to codes, names and contacts that hold the text.
    TextField txtSeek{*this, "txtSeek", "查找", 50};
    Button cmdSeek{*this, "cmdSeek", "查找(&F)"};

    TextRecordField txtCompCode{
        *this, "txtCompCode", "CompCode", "编号", 20, {.required = true, .unique = true}};
    // Lists of customers show 80 characters.
    TextRecordField txtCompName{*this, "txtCompName", "CompName", "名称", 80, {.required = true}};
    ChoiceRecordField cboType0{
        *this, "cboType0", "fType0", "客户类型", {"不限", "供应商", "销售商", "代销商"}};
    TextRecordField txtName{*this, "txtName", "name", "联系人", 20};
    TextRecordField txtTelphone{*this, "txtTelphone", "telphone", "电话", 30};
    TextRecordField txtHomephone{*this, "txtHomephone", "homephone", "住宅电话", 30};
    TextRecordField txtHandphone{*this, "txtHandphone", "handphone", "手机", 30};
    TextRecordField txtFax{*this, "txtFax", "fax", "传真", 30};
    TextRecordField txtE_mail{*this, "txtE_mail", "E_mail", "电子邮件", 50};
    TextRecordField txtHttp{*this, "txtHttp", "http", "网址", 80};
    TextRecordField txtPostcode{*this, "txtPostcode", "postcode", "邮编", 10};
    TextRecordField txtCompAdd{*this, "txtCompAdd", "CompAdd", "地址", 50}; // as long as a document's address

    std::string ListCondition() const override;
    std::string RecordName() const override { return txtCompName.text; }
    Value KeyToStore() const override;
    void ShapeByMode() override;
    void StoreElsewhere() override;
};

} // namespace jxc
