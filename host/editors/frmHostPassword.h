// The signed-in user's own pass word.
#pragma once

#include "controls/screen.h"
#include "forms/fields.h"
#include "host/passwords.h"

namespace jxc {

struct frmHostPassword : Screen {
    frmHostPassword();
    void Open() override;
    Arrangement Arrange() override;

    TextField txtOld{*this, "txtOld", "原密码", kPasswordBytes};
    TextField txtPassword{*this, "txtPassword", "新密码", kPasswordBytes};
    TextField txtPassword2{*this, "txtPassword2", "再次输入", kPasswordBytes};
    Button cmdSave{*this, "cmdSave", "保存(&S)", "F9"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};
};

} // namespace jxc
