// Users and their rights. Only the supervisor opens it; in a company without users yet, the one who is signed
// in becomes the first user, supervisor with all rights.
#pragma once

#include "forms/list_editor.h"
#include "host/passwords.h"

namespace jxc {

struct frmHostUsers : ListEditor {
    frmHostUsers();
    void Open() override;
    Arrangement Arrange() override;

    TextRecordField txtUserName{
        *this, "txtUserName", "fUserName", "用户", 20, {.required = true, .unique = true}};
    TickRecordField chkSupervisor{*this, "chkSupervisor", "fSupervisor", "负责人"};
    // What is typed becomes the user's pass word; without anything it stays as it is.
    TextField txtPassword{*this, "txtPassword", "新密码", kPasswordBytes};
    TextField txtPassword2{*this, "txtPassword2", "再次输入", kPasswordBytes};
    CheckBox chkNoPassword{*this, "chkNoPassword", "取消密码"};
    Label lblPassword{*this, "lblPassword"}; // whether he has one
    Grid Grid2{*this, "Grid2"};              // a ticked row for each right

    bool Confirmed() override;
    void ShapeByMode() override;
    void Clear() override;
    void ShowRest(const Recordset& row) override;
    void WriteRest(Recordset& row) override;

    std::string hash;  // of the pass word typed, made before the save begins: it takes its time
    std::string power; // the rights string in hand: it may hold digits of modules that are not shown
};

} // namespace jxc
