// Users and their rights. Only the supervisor opens it; in a company without users yet, the one who is signed
// in becomes the first user, supervisor with all rights.
#pragma once

#include "forms/list_editor.h"

namespace jxc {

struct frmHostUsers : ListEditor {
    frmHostUsers();
    void Open() override;
    Arrangement Arrange() override;

    TextRecordField txtUserName{
        *this, "txtUserName", "fUserName", "用户", 20, {.required = true, .unique = true}};
    TickRecordField chkSupervisor{*this, "chkSupervisor", "fSupervisor", "负责人"};
    Grid Grid2{*this, "Grid2"}; // a ticked row for each right

    void ShapeByMode() override;
    void Clear() override;
    void ShowRest(const Recordset& row) override;
    void WriteRest(Recordset& row) override;

    std::string power; // the rights string in hand: it may hold digits of modules that are not shown
};

} // namespace jxc
