// What a new company still lacks, on both engines: each step is seen once it is taken, and none is asked for after the
// first approval.
#include "host/first_steps.h"

#include "host/company_address.h"
#include "session/company/open_connection.h"
#include "session/session.h"
#include "tests/support/clerk.h"
#include "tests/support/on_sample_company.h"

namespace jxc::test {

namespace {

class FirstStepsOfCompany : public OnSampleCompany {
  protected:
    FirstSteps Read() const {
        Connection connection;
        OpenCompanyAt(company->Address(), connection);
        connection.SetObserver([this](std::string_view) { ++asked; });
        return ReadFirstSteps(connection);
    }
    // "w" for a warehouse, "p", "c" and "o" for the next, and the step to be taken.
    std::string Told() const {
        const FirstSteps steps = Read();
        std::string told = steps.done ? "done" : "";
        for (const auto& [step, letter] : {std::pair(FirstStep::Warehouse, 'w'),
                                           {FirstStep::Product, 'p'},
                                           {FirstStep::Card, 'c'},
                                           {FirstStep::Opening, 'o'}})
            if (IsTaken(steps, step))
                told.push_back(letter);
        return told + " " + std::to_string(static_cast<int>(NextStep(steps)));
    }
    void Do(const std::string& sql) const { ExecuteOnCompany(company->Address(), sql); }
    int Save(int type, bool approve) {
        const OpenCompany open(company->Address());
        Clerk clerk;
        const DocumentInput input = TypicalDocument(type);
        const int key = clerk.Save(input);
        EXPECT_TRUE(!approve || clerk.Approve(type, key)) << clerk.LastBox();
        ResetScreens();
        return key;
    }

    mutable int asked = 0; // statements
};
ON_BOTH_ENGINES(FirstStepsOfCompany);

TEST_P(FirstStepsOfCompany, AreSeenOneByOne) {
    Do("Delete From tJXC_Ck");
    Do("Delete From tJXC_Cp");
    Do("Delete From cards");
    EXPECT_EQ(Told(), " 0");
    Do("Insert Into tJXC_Ck (fCkCode,fCkName,fCkType0) Values ('01','A',1)");
    EXPECT_EQ(Told(), "w 1");
    Do("Insert Into tJXC_Cp (fCpID,fCpCode) Values (2,'P1')");
    EXPECT_EQ(Told(), "wp 2");
    Do("Insert Into cards (fID,CompCode) Values (2,'K1')");
    EXPECT_EQ(Told(), "wpc 3");
}

// What waits for its approval comes before everything else; the youngest of them.
TEST_P(FirstStepsOfCompany, LeadToTheApproval) {
    EXPECT_EQ(Told(), "wpc 3");
    Save(0, false);
    EXPECT_EQ(Told(), "wpco 4");
    const int receipt = Save(1, false);
    const FirstSteps steps = Read();
    EXPECT_EQ(steps.waiting, receipt);
    EXPECT_EQ(steps.waitingType, 1);
    EXPECT_EQ(steps.waitingNumber, "20261105RK001");
    EXPECT_FALSE(steps.done);
}

TEST_P(FirstStepsOfCompany, AreDoneWithTheFirstApproval) {
    Save(1, true);
    EXPECT_EQ(Told(), "done 0");
    asked = 0;
    EXPECT_TRUE(Read().done);
    EXPECT_EQ(asked, 1); // and nothing else is read
    EXPECT_EQ(Read().waiting, 0);
}

TEST_P(FirstStepsOfCompany, AreDoneWithAnApprovedOrderOrAClosedPeriod) {
    Save(23, true);
    EXPECT_TRUE(Read().done);
    Do("Delete From tJXC_CkHt01");
    EXPECT_FALSE(Read().done);
    Do("Insert Into tJXC_CkDj_Bak01 (fInvID,fInvType,fInvNo) Values (2,1,'X')");
    EXPECT_TRUE(Read().done);
}

} // namespace

} // namespace jxc::test
