#include "host/editors/frmHostPassword.h"

#include "controls/view.h"
#include "database/recordset.h"
#include "host/user_settings.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

void Refuse(frmHostPassword& s, TextBox& box, const std::string& text) {
    box.text.clear();
    Warn(s.title, text);
    s.MoveFocus(&box);
}

void Save(frmHostPassword& s) {
    if (const std::string kept = KeptPassword(session.UserName);
        !kept.empty() && !IsPassword(kept, s.txtOld.text))
        return Refuse(s, s.txtOld, "原密码不正确！");
    if (s.txtPassword.text.empty())
        return Refuse(s, s.txtPassword, "请输入新密码！");
    if (s.txtPassword.text != s.txtPassword2.text)
        return Refuse(s, s.txtPassword2, "两次输入的密码不一致！");
    KeepPassword(session.UserName, HashOfPassword(s.txtPassword.text));
    Inform(s.title, "密码修改完毕！");
    s.Close();
}

} // namespace

frmHostPassword::frmHostPassword() : Screen("frmHostPassword") {
    title = "修改密码";
    for (TextBox* box : {&txtOld, &txtPassword, &txtPassword2})
        box->secret = true;
    cmdSave.onClick = [this] { Save(*this); };
    cmdQuit.onClick = [this] { Close(); };
}

void frmHostPassword::Open() {
    EnterFirstUser();
    if (Recordset(Conn(), "select fUserName from tHostUser where fUserName=" + InQuotes(session.UserName))
            .AtEnd())
        throw ScreenError("请先由系统[负责人]在 [用户与权限] 中登记用户“" + session.UserName + "”！");
    for (TextBox* box : {&txtOld, &txtPassword, &txtPassword2})
        box->text.clear();
    txtOld.enabled = !KeptPassword(session.UserName).empty();
    MoveFocus(txtOld.enabled ? &txtOld : &txtPassword);
}

Arrangement frmHostPassword::Arrange() {
    return {.fields = {{&txtOld}, {&txtPassword}, {&txtPassword2}},
            .closingCommands = {&cmdSave, &cmdQuit},
            .width = 360,
            .height = 190};
}

} // namespace jxc
