// Currencies and their rates; one of them is the home currency.
#pragma once

#include "forms/list_editor.h"

namespace jxc {

struct frmHostMoneys : ListEditor {
    frmHostMoneys();

    TextBox txtMoneyCode{*this, "txtMoneyCode"};
    TextBox txtMoneyRate{*this, "txtMoneyRate"}; // what one unit is worth in home currency
    CheckBox chkMoneyType{*this, "chkMoneyType", "本位币"};

    std::string ListStatement() const override;
    std::span<const Use> Uses() const override;
    MayRefuse RefuseContent() override;
};

} // namespace jxc
