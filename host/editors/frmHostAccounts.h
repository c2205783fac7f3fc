// The company's own money accounts: cash and banks. A retail warehouse posts its takings to one.
#pragma once

#include "forms/list_editor.h"

namespace jxc {

struct frmHostAccounts : ListEditor {
    frmHostAccounts();

    TextBox txtCompCode{*this, "txtCompCode"}; // digits: warehouses and entries hold its number
    TextBox txtCompname{*this, "txtCompname"};

    std::string ListStatement() const override;
    std::span<const Use> Uses() const override;
    std::string UsedKey() const override;
    MayRefuse RefuseContent() override;
};

} // namespace jxc
