// Currencies and their rates; one of them is the home currency.
#pragma once

#include "forms/list_editor.h"

namespace jxc {

struct frmHostMoneys : ListEditor {
    frmHostMoneys();

    TextRecordField txtMoneyCode{
        *this, "txtMoneyCode", "MoneyCode", "货币", 10, {.required = true, .unique = true}};
    // What one unit is worth in home currency.
    TextRecordField txtMoneyRate{
        *this, "txtMoneyRate", "MoneyRate", "汇率", 12, {.required = true, .numeric = true}};
    TickRecordField chkMoneyType{*this, "chkMoneyType", "MoneyType", "本位币"};
};

} // namespace jxc
