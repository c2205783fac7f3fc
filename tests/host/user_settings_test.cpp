// Who may do what, as a host reads it when a user signs in; companies of older versions gain the table.
#include "host/user_settings.h"

#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

class Users : public OnBothEngines {
  protected:
    void EnterModule(int serial, const std::string& name, int notInUse) {
        Do("Insert Into tSysFunc (SerialNo,model_Name,Model_Name_0,Model_Name_1,NoUse_) Values (" +
           std::to_string(serial) + ",'mnu','" + name + "','" + name + "1'," + std::to_string(notInUse) +
           ")");
    }
};
ON_BOTH_ENGINES(Users);

TEST_P(Users, OfACompanyWithoutAnyAreSupervisors) {
    EnterModule(6, "销售", 0);
    EnterModule(9, "不用的", 1);
    EnterModule(-1, "人人可用", 0);
    const UserRights rights = UserSettings("王芳");
    EXPECT_TRUE(rights.known);
    EXPECT_EQ(rights.myPower, "111111");
    EXPECT_EQ(rights.ZgName, "王芳");
    EXPECT_EQ(One("Select count(*) From tHostUser"), "0");
}

TEST_P(Users, HaveTheirRightsAndOneSupervisor) {
    Do("Insert Into tHostUser (fUserName,fPower,fSupervisor) Values ('王芳','11111',1)");
    Do("Insert Into tHostUser (fUserName,fPower,fSupervisor) Values ('o''neil','0100',0)");
    EXPECT_EQ(UserSettings("王芳").myPower, "11111");
    const UserRights clerk = UserSettings("O'Neil");
    EXPECT_TRUE(clerk.known);
    EXPECT_EQ(clerk.myPower, "0100");
    EXPECT_EQ(clerk.ZgName, "王芳");
    const UserRights stranger = UserSettings("陈生");
    EXPECT_FALSE(stranger.known);
    EXPECT_EQ(stranger.myPower, "0000");
    EXPECT_EQ(stranger.ZgName, "王芳");
}

} // namespace

} // namespace jxc::test
