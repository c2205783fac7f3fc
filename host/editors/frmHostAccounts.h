// The company's own money accounts: cash and banks. A retail warehouse posts its takings to one.
#pragma once

#include "forms/list_editor.h"

namespace jxc {

struct frmHostAccounts : ListEditor {
    frmHostAccounts();

    // Digits: warehouses and entries hold its number.
    TextRecordField txtCompCode{
        *this, "txtCompCode", "compCode", "编号", 9, {.required = true, .unique = true}};
    TextRecordField txtCompname{*this, "txtCompname", "compname", "名称", 40, {.required = true}};

    std::string UsedKey() const override;
};

} // namespace jxc
