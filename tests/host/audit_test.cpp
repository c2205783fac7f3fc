// The trail: every action leaves one row in its own transaction or none at all, and a row that was tampered with shows.
#include "session/audit/audit.h"

#include <nlohmann/json.hpp>

#include "controls/gestures.h"
#include "host/check.h"
#include "host/editors/frmHostMoneys.h"
#include "host/passwords.h"
#include "master/frmCp.h"
#include "settings/frmAudit.h"
#include "tests/support/clerk.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

class Trail : public OnOpenCompany {
  protected:
    static Lines Actions() {
        return RowsOf("select fAction,fTable,fKey,fName,fUser from tJXC_Audit Order By fID");
    }
    static Lines Faults() { return AuditFaults(Conn()); }
};
ON_BOTH_ENGINES(Trail);

TEST_P(Trail, KeepsADocumentsLife) {
    const std::string number = "20261105RK001";
    const int key = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU002", 3, 600}}});
    const std::string id = std::to_string(key);
    ASSERT_TRUE(clerk->Approve(1, key));
    ASSERT_TRUE(clerk->Reverse(1, key));
    clerk->Open(DocAction::Change, 1, key, [&](frmDj02& s) {
        TypeCell(s, s.Grid2, 1, 6, "4");
        ClickSave(*clerk, s);
    });
    ASSERT_TRUE(clerk->Delete(1, key));
    Lines expected;
    for (const char* action : {"新增", "审核", "反审核", "修改", "删除"})
        expected.push_back(std::string(action) + "|tJXC_CkDj01|" + id + "|" + number + "|" +
                           session.UserName);
    EXPECT_EQ(Actions(), expected);
    EXPECT_EQ(One("select fBefore from tJXC_Audit where fID=1"), "");
    const std::string made = One("select fAfter from tJXC_Audit where fID=1");
    EXPECT_NE(made.find("\"fInvJE\":1800"), std::string::npos) << made;
    EXPECT_EQ(One("select fAfter from tJXC_Audit where fID=2"), "{\"fInvSHR\":\"" + session.UserName + "\"}");
    EXPECT_EQ(One("select fAfter from tJXC_Audit where fID=3"), "{\"fInvSHR\":\"\"}");
    const std::string before = One("select fBefore from tJXC_Audit where fID=4");
    const std::string after = One("select fAfter from tJXC_Audit where fID=4");
    EXPECT_NE(before.find("\"lines\":[[0,1,\"总部仓\""), std::string::npos) << before;
    EXPECT_NE(before.find("\"fInvJE\":1800"), std::string::npos) << before;
    EXPECT_NE(after.find("\"fInvJE\":2400"), std::string::npos) << after;
    EXPECT_EQ(One("select fAfter from tJXC_Audit where fID=5"), "");
    EXPECT_NE(One("select fBefore from tJXC_Audit where fID=5").find("2400"), std::string::npos);
    EXPECT_EQ(One("select count(*) from tJXC_Audit where fMachine='' Or fTime Not Like '2026-11-05 %'"), "0");
    if (GetParam() == EngineKind::Postgres) {
        EXPECT_EQ(One("select count(*) from tJXC_Audit where fServerUser=''"), "0");
    }
    EXPECT_EQ(Faults(), Lines{});
}

// A document changed into itself is alike before and after, whatever its shape: one side, two sides, parts and product, book
// quantities, balances.
TEST_P(Trail, LaysBeforeAndAfterSideBySide) {
    int rows = 0;
    for (const int type : AllTypes()) {
        const int key = clerk->Save(TypicalDocument(type));
        ASSERT_GT(key, 0) << type;
        ++rows;
        clerk->Open(DocAction::Change, type, key, [&](frmDj02& s) { ClickSave(*clerk, s); });
        ++rows;
        const std::string row = " from tJXC_Audit where fID=" + std::to_string(rows);
        ASSERT_EQ(One("select fAction" + row), "修改") << type;
        EXPECT_EQ(nlohmann::json::parse(One("select fBefore" + row)),
                  nlohmann::json::parse(One("select fAfter" + row)))
            << type;
    }
}

// A save whose any statement fails leaves neither document nor row, and what cannot be recorded is not done.
TEST_P(Trail, StandsWithItsActionOrNotAtAll) {
    for (size_t failing = 1; One("select count(*) from tJXC_CkDj01") == "0"; ++failing) {
        ASSERT_LT(failing, 200U);
        {
            const Recorder recorder(failing);
            clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU002", 3, 600}}});
        }
        EXPECT_EQ(One("select count(*) from tJXC_CkDj01"), One("select count(*) from tJXC_Audit")) << failing;
    }
    EXPECT_EQ(Faults(), Lines{});
}

TEST_P(Trail, ShowsWhatWasTamperedWith) {
    for (int document = 0; document < 5; ++document)
        clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU002", 3, 600}}});
    const std::string of = " Where fID=3";
    const std::string user = One("select fUser from tJXC_Audit" + of);
    for (const char* change : {"fUser='别人'", "fAfter=''", "fTime='2026-11-04 08:00:00'", "fKey='9'",
                               "fName='X',fKey=''", "fHash='0'"}) {
        Conn().BeginTrans();
        Do(std::string("Update tJXC_Audit Set ") + change + of);
        EXPECT_FALSE(Faults().empty()) << change;
        EXPECT_NE(Faults().front().find("第 3 行"), std::string::npos) << Faults().front();
        Conn().RollbackTrans();
    }
    EXPECT_EQ(Faults(), Lines{});
    Conn().BeginTrans();
    Do("Delete From tJXC_Audit" + of);
    EXPECT_EQ(Faults(), Lines{"操作日志：第 3 行至第 3 行缺失。"});
    const Lines found = CheckCompany();
    EXPECT_FALSE(found.empty());
    Conn().RollbackTrans();
    EXPECT_EQ(CheckCompany(), Lines{});
}

TEST_P(Trail, KeepsMasterRowsAndNoPassword) {
    clerk->view.OnScreen("frmHostMoneys", [&](Screen& screen) {
        auto& s = dynamic_cast<frmHostMoneys&>(screen);
        Click(s, s.cmdAdd);
        EnterText(s, s.txtMoneyCode, "EUR");
        EnterText(s, *dynamic_cast<TextBox*>(s.Find("txtMoneyRate")), "7.75");
        Click(s, s.cmdSave);
    });
    ShowModal(ScreenNamed("frmHostMoneys"));
    clerk->view.OnScreen("frmCp", [&](Screen& screen) {
        auto& s = dynamic_cast<frmCp&>(screen);
        Click(s, s.cmdChange);
        EnterText(s, s.txtCpName, "机箱");
        Click(s, s.cmdSave);
    });
    ShowModal(ScreenNamed("frmCp"));
    ExecuteOnCompany(company->Address(),
                     "Insert Into tHostUser (fUserName,fPower,fSupervisor) Values ('小王','0000',0)");
    KeepPassword("小王", HashOfPassword("秘密"));
    const Lines actions = Actions();
    ASSERT_EQ(actions.size(), 3U);
    EXPECT_EQ(actions[0].substr(0, actions[0].rfind('|')), "新增|Moneys|EUR|EUR");
    EXPECT_NE(actions[1].find("修改|tJXC_Cp|"), std::string::npos);
    EXPECT_NE(One("select fBefore from tJXC_Audit where fID=2").find("机箱 办公型"), std::string::npos);
    EXPECT_NE(One("select fAfter from tJXC_Audit where fID=2").find("\"fCpName\":\"机箱\""),
              std::string::npos);
    EXPECT_NE(One("select fAfter from tJXC_Audit where fID=3").find("\"fPassword\":\"***"),
              std::string::npos);
    EXPECT_EQ(One("select count(*) from tJXC_Audit where fAfter Like '%argon2%' Or fAfter Like '%秘密%'"),
              "0");
    EXPECT_TRUE(IsPassword(KeptPassword("小王"), "秘密"));
    EXPECT_FALSE(IsPassword(KeptPassword("小王"), "秘密 "));
    EXPECT_EQ(KeptPassword(session.UserName), "");
    EXPECT_EQ(HashOfPassword(""), "");
}

// The mark that one row takes from another is recorded for both, as they were before.
TEST_P(Trail, KeepsWhoLostTheMark) {
    clerk->view.OnScreen("frmHostMoneys", [&](Screen& screen) {
        auto& s = dynamic_cast<frmHostMoneys&>(screen);
        SelectRow(s, s.Grid1, 2);
        Click(s, s.cmdChange);
        SetToggle(s, *dynamic_cast<CheckBox*>(s.Find("chkMoneyType")), true);
        EnterText(s, *dynamic_cast<TextBox*>(s.Find("txtMoneyRate")), "1");
        Click(s, s.cmdSave);
    });
    ShowModal(ScreenNamed("frmHostMoneys"));
    const Lines rows = RowsOf("select fName,fBefore,fAfter from tJXC_Audit Order By fID");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], "人民币|{\"MoneyCode\":\"人民币\",\"MoneyType\":1,\"MoneyRate\":1.0}|"
                       "{\"MoneyCode\":\"人民币\",\"MoneyType\":0,\"MoneyRate\":1.0}");
    EXPECT_NE(rows[1].find("\"MoneyType\":0"), std::string::npos);
    EXPECT_NE(rows[1].find("\"MoneyType\":1"), std::string::npos);
}

// The query shows each action with its fields before and after; only the supervisor sees it, and nobody changes it.
TEST_P(Trail, IsShownToTheSupervisor) {
    clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU002", 3, 600}}});
    clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU003", 1, 800}}});
    clerk->view.OnScreen("frmAudit", [&](Screen& screen) {
        auto& s = dynamic_cast<frmAudit&>(screen);
        ASSERT_EQ(s.Grid1.RowCount(), 2);
        EXPECT_EQ(s.Grid1.ShownText(1, s.list.Place("fName")), "20261105RK002");
        EXPECT_EQ(s.Grid1.ShownText(1, s.list.Place("fTable")), "仓库单据");
        EnterText(s, s.txtName, "RK001");
        Click(s, s.cmdQuery);
        ASSERT_EQ(s.Grid1.RowCount(), 1);
        std::string shown;
        for (int row = 1; row <= s.Grid2.RowCount(); ++row)
            shown += s.Grid2.Text(row, 1) + "=" + s.Grid2.Text(row, 3) + ";";
        EXPECT_NE(shown.find("单号=20261105RK001;"), std::string::npos) << shown;
        EXPECT_NE(shown.find("第 1 行="), std::string::npos) << shown;
        EnterText(s, s.txtUser, "没有");
        Click(s, s.cmdQuery);
        EXPECT_EQ(s.Grid1.RowCount(), 0);
        EXPECT_TRUE(s.Grid1.readOnly);
        EXPECT_TRUE(s.Grid2.readOnly);
        Click(s, s.cmdVerify);
    });
    clerk->view.boxes.clear();
    ShowModal(ScreenNamed("frmAudit"));
    ASSERT_EQ(clerk->view.boxes.size(), 1U);
    EXPECT_EQ(clerk->view.boxes[0].text.find("操作日志完整：共 2 条"), 0U) << clerk->view.boxes[0].text;
    control.UserName("别人");
    ShowModal(ScreenNamed("frmAudit"));
    EXPECT_EQ(clerk->LastBox(), "必须系统[负责人]才能够查看操作日志！");
}

} // namespace

} // namespace jxc::test
