// Users and their rights. Only the supervisor opens it; in a company without users yet, the one who is signed
// in becomes the first user, supervisor with all rights.
#pragma once

#include "forms/list_editor.h"

namespace jxc {

struct frmHostUsers : ListEditor {
    frmHostUsers();
    void Open() override;

    TextBox txtUserName{*this, "txtUserName"};
    CheckBox chkSupervisor{*this, "chkSupervisor", "负责人"};
    Grid Grid2{*this, "Grid2"}; // a ticked row for each right

    std::string ListStatement() const override;
    std::span<const Use> Uses() const override;
    bool MayDeleteUsed() const override { return true; } // documents keep the name of who has left
    void ShapeByMode() override;
    void Clear() override;
    void ShowRest(const Recordset& row) override;
    void WriteRest(Recordset& row) override;

    std::string power; // the rights string in hand: it may hold digits of modules that are not shown
};

} // namespace jxc
