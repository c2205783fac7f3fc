// A company tells its version: newer ones are refused, older ones raised, all or nothing.
#include <gtest/gtest.h>

#include "database/engine.h"
#include "session/company/company_version.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

class CompanyVersion : public OnBothEngines {
  protected:
    static void Script(const std::string& sql) {
        Conn().EngineInUse().ExecuteScript(sql);
        Conn().ForgetCatalogue();
    }
};
ON_BOTH_ENGINES(CompanyVersion);

TEST_P(CompanyVersion, IsToldAndANewerOneRefused) {
    EXPECT_EQ(Conn().EngineInUse().Version(), kCompanyVersion);
    Conn().EngineInUse().SetVersion(kCompanyVersion + 1);
    const std::string reason = RefusalOf([&] { company->Open(Conn()); });
    EXPECT_NE(reason.find("较新版本"), std::string::npos) << reason;
    EXPECT_FALSE(session.Conn->IsOpen());
}

TEST_P(CompanyVersion, AnOlderOneIsRaisedAllOrNothing) {
    Do("Insert Into tJXC_Ck (fCkName) Values ('A')");
    Script("alter table tJXC_Ck drop column fKhID");
    Script("alter table tJXC_CpTj02 drop column fCpPjMemo");
    Script("alter table tJXC_InvSys drop column fSysWarnKc");
    Script("drop index tJXC_CkDj02_4");
    Script("drop table tHostUser");
    Script("create index tHostUser_1 on tJXC_Cp (fCpName)"); // in the way of the table's own
    Conn().EngineInUse().SetVersion(0);
    const auto open = std::make_unique<Connection>();
    EXPECT_THROW(company->Open(*open), DatabaseError);
    Conn().ForgetCatalogue();
    EXPECT_FALSE(Conn().HasColumn("tHostUser", "fUserName"));
    EXPECT_EQ(Conn().EngineInUse().Version(), 0);

    Script("drop index tHostUser_1");
    company->Open(*open);
    EXPECT_EQ(open->EngineInUse().Version(), kCompanyVersion);
    EXPECT_TRUE(open->Query("Select fKhID From tJXC_Ck").At(0, 0).IsNull());
    open->Execute("Update tJXC_InvSys Set fSysWarnKc=1");
    EXPECT_NO_THROW(open->EngineInUse().ExecuteScript("drop index tJXC_CkDj02_4")) << "not made again";
    open->Execute("Insert Into tJXC_CpTj02 (fTjID,fCpPjMemo) Values (1,'Left')");
    EXPECT_EQ(open->Query("Select fTjID From tJXC_CpTj02 Where fCpPjMemo='lEFT'").Count(), 1u);
    open->Execute("Insert Into tHostUser (fUserName) Values ('Wang')");
    EXPECT_THROW(open->Execute("Insert Into tHostUser (fUserName) Values ('wang')"), DatabaseError);
}

// Kit templates that people entered said nothing; plans count those that say 0.
TEST_P(CompanyVersion, KitsOfAnOlderOneAreCountedByPlans) {
    Do("Insert Into tJXC_CpTj01 (fTjID,fCpID) Values (2,7)");
    Do("Insert Into tJXC_CpTj01 (fTjID,fCpID,fTjFlag) Values (3,8,1)");
    Conn().EngineInUse().SetVersion(2);
    const auto open = std::make_unique<Connection>();
    company->Open(*open);
    EXPECT_EQ(open->EngineInUse().Version(), kCompanyVersion);
    EXPECT_EQ(LinesOf(open->Query("Select fTjID,fTjFlag From tJXC_CpTj01 Order By fTjID")),
              (Lines{"2|0", "3|1"}));
}

} // namespace

} // namespace jxc::test
