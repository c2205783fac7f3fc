// Signing in: who has a pass word is asked for it, and a wrong one opens nothing.
#include <QTest>

#include "host/passwords.h"
#include "host/window/main_window.h"
#include "session/session.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class SigningIn : public Windows {
  protected:
    void SetUp() override {
        Add("阿丽", "1", HashOfPassword("yi er"));
        Add("小王", "0", "");
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    void Add(const std::string& user, const std::string& supervisor, const std::string& hash) {
        ExecuteOnCompany(company.Address(),
                         "Insert Into tHostUser (fUserName,fPower,fSupervisor,fPassword) Values ('" + user +
                             "','11111111'," + supervisor + ",'" + hash + "')");
    }
    std::string Trail() { return Rows("select count(*) from tJXC_Audit").front(); }
    MainWindow window;
};

TEST_F(SigningIn, AsksForThePasswordAndTellsAWrongOne) {
    person.Next([&] {
        EXPECT_EQ(S(person.Front().windowTitle()), "登录");
        EXPECT_EQ(S(person.Find<QComboBox>("cboUser").currentText()), "阿丽");
        EXPECT_EQ(person.Focus(), "txtPassword");
        person.Enter("yi");
        EXPECT_TRUE(person.Front().isVisible());
        EXPECT_EQ(person.Text("txtPassword"), "");
        EXPECT_EQ(person.Focus(), "txtPassword");
        person.Enter("yi er");
    });
    EXPECT_TRUE(window.OpenCompanyOf(company.Address(), ""));
    EXPECT_TRUE(window.HasCompany());
    EXPECT_EQ(session.UserName, "阿丽");
    EXPECT_EQ(session.ZgName, "阿丽");
    EXPECT_EQ(person.Boxes(), Texts{});
}

TEST_F(SigningIn, TenWrongPasswordsOpenNothing) {
    person.Next([&] {
        for (int attempt = 0; attempt < 10; ++attempt)
            person.Enter("no");
        EXPECT_NE(S(person.Front().windowTitle()), "登录");
    });
    window.OpenCompanyOf(company.Address(), "");
    EXPECT_FALSE(window.HasCompany());
    EXPECT_EQ(person.Boxes(), Texts{"密码连续 10 次不正确，没有登录。"});
    EXPECT_EQ(Trail(), "0");
}

// Whoever gives up works on in the company that was open; a name in other letters opens no door.
TEST_F(SigningIn, GivingUpStaysInTheCompanyBefore) {
    const SampleCompany other(EngineKind::Sqlite);
    ASSERT_TRUE(window.OpenCompanyOf(other.Address(), ""));
    const std::string user = session.UserName;
    person.Next([&] { person.Press(Qt::Key_Escape); });
    EXPECT_FALSE(window.OpenCompanyOf(company.Address(), ""));
    EXPECT_EQ(session.UserPath, other.Address());
    EXPECT_EQ(session.UserName, user);
    Add("Wang", "0", HashOfPassword("x"));
    person.Next([&] {
        EXPECT_EQ(S(person.Find<QComboBox>("cboUser").currentText()), "Wang");
        person.Enter("x");
    });
    EXPECT_TRUE(window.OpenCompanyOf(company.Address(), "WANG"));
    EXPECT_EQ(session.UserName, "Wang");
}

// The person who gives up stays who he was; a user without a pass word is not asked for one.
TEST_F(SigningIn, ChangesTheUser) {
    ASSERT_TRUE(window.OpenCompanyOf(company.Address(), "小王"));
    EXPECT_EQ(session.UserName, "小王");
    const auto change = [&] { person.Press(Qt::Key_F, Qt::AltModifier); };
    person.Next([&] {
        person.Next([&] {
            person.Find<QComboBox>("cboUser").setCurrentText("阿丽");
            person.Find("txtPassword").setFocus();
            person.Enter("no");
            person.Press(Qt::Key_Escape);
        });
        person.Press(Qt::Key_U);
    });
    change();
    EXPECT_EQ(session.UserName, "小王");
    person.Next([&] {
        person.Next([&] {
            person.Find<QComboBox>("cboUser").setCurrentText("阿丽");
            person.Find("txtPassword").setFocus();
            person.Enter("yi er");
        });
        person.Press(Qt::Key_U);
    });
    change();
    EXPECT_EQ(session.UserName, "阿丽");
}

TEST_F(SigningIn, OnesOwnPasswordIsChanged) {
    ASSERT_TRUE(window.OpenCompanyOf(company.Address(), "小王"));
    person.Next([&] {
        EXPECT_EQ(person.Focus(), "txtPassword"); // there is no old one
        EXPECT_EQ(person.Find<QLineEdit>("txtPassword").echoMode(), QLineEdit::Password);
        person.EnterEach({"neu", "nau"});
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(), Texts{"两次输入的密码不一致！"});
        person.Enter("neu");
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(), Texts{"密码修改完毕！"});
    });
    window.Start(*window.FindEntry("修改密码", "打开"));
    person.Next([&] {
        EXPECT_EQ(person.Focus(), "txtOld");
        person.EnterEach({"falsch", "x", "x"});
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(), Texts{"原密码不正确！"});
    });
    window.Start(*window.FindEntry("修改密码", "打开"));
    const std::string kept = Rows("select fPassword from tHostUser where fUserName='小王'").front();
    EXPECT_TRUE(IsPassword(kept, "neu"));
    EXPECT_EQ(Trail(), "1");
}

} // namespace

} // namespace jxc::test
