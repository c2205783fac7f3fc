// Cards of customers and suppliers.
#pragma once

#include "forms/list_editor.h"

namespace jxc {

struct frmHostCards : ListEditor {
    frmHostCards();
    void Open() override;

    TextBox txtSeek{*this, "txtSeek"}; // limits the list to codes, names and contacts that hold the text
    Button cmdSeek{*this, "cmdSeek", "查找(&F)"};

    TextBox txtCompCode{*this, "txtCompCode"};
    TextBox txtCompName{*this, "txtCompName"};
    TextBox txtName{*this, "txtName"};
    ListBox cboType0{*this, "cboType0"};
    TextBox txtTelphone{*this, "txtTelphone"};
    TextBox txtHomephone{*this, "txtHomephone"};
    TextBox txtHandphone{*this, "txtHandphone"};
    TextBox txtFax{*this, "txtFax"};
    TextBox txtE_mail{*this, "txtE_mail"};
    TextBox txtHttp{*this, "txtHttp"};
    TextBox txtPostcode{*this, "txtPostcode"};
    TextBox txtCompAdd{*this, "txtCompAdd"};

    std::string ListStatement() const override;
    Value ShownCell(int column, const Value& cell) const override;
    std::string RecordName() const override { return txtCompName.text; }
    Value KeyToStore() const override;
    std::span<const Use> Uses() const override;
    void ShapeByMode() override;
    void Clear() override;
    void ShowRest(const Recordset& row) override;
    void WriteRest(Recordset& row) override;
    void StoreElsewhere() override;
};

} // namespace jxc
