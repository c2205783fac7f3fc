// Products and cards as they are suggested: what another user changes is there at the next question, on both engines.
#include <gtest/gtest.h>

#include "base/text.h"
#include "database/engine.h"
#include "session/company/company_version.h"
#include "session/lookups/card_index.h"
#include "session/lookups/product_index.h"
#include "tests/support/recorder.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

// As the host's properties name the company: the index is kept by them.
class Suggested : public OnBothEngines {
  protected:
    void SetUp() override {
        OnBothEngines::SetUp();
        if (IsSkipped())
            return;
        session.UserPath = company->Path();
        session.Default = company->Database();
        company->Open(other);
        Add(2, "LS06", "螺丝", "M6", "6901");
        Add(3, "GB01", "钢板", "3mm", "6902");
        Add(4, "CQ01", "重庆啤酒", "500ml", "6903");
    }
    void TearDown() override { session.UserPath = session.Default = ""; }

    void Add(int id, const std::string& code, const std::string& name, const std::string& spec,
             const std::string& barCode) {
        other.Execute(
            "Insert Into tJXC_Cp (fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpBarCode,fCpPrice3,fCpFlag) "
            "Values (" +
            std::to_string(id) + ",'" + code + "','" + name + "','" + spec + "','个','" + barCode +
            "',9.5,0)");
    }
    static std::string Codes(const std::string& typed, size_t most = 12) {
        std::vector<std::string> codes;
        const ProductSuggestions found = SuggestProducts(typed, "", "fCpPrice3", most);
        for (const SuggestedProduct& product : found.rows)
            codes.push_back(product.code);
        return JoinedByCommas(codes) + (found.more ? ",..." : "");
    }
    static std::string Cards(const std::string& typed) {
        std::vector<std::string> names;
        for (const SuggestedCard& card : SuggestCards(typed).rows)
            names.push_back(card.code + "=" + card.name);
        return JoinedByCommas(names);
    }

    Connection other; // another user's
};
ON_BOTH_ENGINES(Suggested);

TEST_P(Suggested, ByAnyPartOfWhatIsKnown) {
    EXPECT_EQ(Codes("ls"), "LS06");
    EXPECT_EQ(Codes("丝"), "LS06");
    EXPECT_EQ(Codes("ｍ６"), "LS06");
    EXPECT_EQ(Codes("902"), "GB01");
    EXPECT_EQ(Codes("cqpj"), "CQ01");
    EXPECT_EQ(Codes("zqpj"), "CQ01");
    EXPECT_EQ(Codes("gb"), "GB01");
    EXPECT_EQ(Codes("690"), "CQ01,GB01,LS06");
    EXPECT_EQ(Codes("690", 2), "CQ01,GB01,...");
    EXPECT_EQ(Codes("没有"), "");
    EXPECT_EQ(Codes("' or 1=1"), "");
    other.Execute("Insert Into tJXC_Ck (fCkName,fCkType2) Values ('A',0)");
    other.Execute("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Values (2,'A',7)");
    other.Execute("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Values (2,'B',5)");
    const SuggestedProduct screw = SuggestProducts("LS06", "", "fCpPrice3").rows.at(0);
    EXPECT_EQ(screw.name + screw.spec + screw.unit, "螺丝M6个");
    EXPECT_EQ(screw.stock, 7); // of B nobody knows that its stock is the company's
    EXPECT_EQ(screw.price, 9.5);
    EXPECT_EQ(SuggestProducts("LS06", "B", "").rows.at(0).stock, 5);
    EXPECT_EQ(SuggestProducts("LS06", "B", "").rows.at(0).price, 0);
}

TEST_P(Suggested, FollowWhatOthersChange) {
    EXPECT_EQ(Codes("新"), "");
    Add(5, "N1", "新货", "", "");
    EXPECT_EQ(Codes("新"), "N1");
    EXPECT_EQ(Codes("xh"), "N1");
    other.Execute("Update tJXC_Cp Set fCpName='旧货' Where fCpID=5");
    EXPECT_EQ(Codes("新"), "");
    EXPECT_EQ(Codes("jh"), "N1");
    other.Execute("Update tJXC_Cp Set fCpFlag=1 Where fCpID=5");
    EXPECT_EQ(Codes("jh"), "");
    other.Execute("Update tJXC_Cp Set fCpFlag=0 Where fCpID=5");
    EXPECT_EQ(Codes("jh"), "N1");
    other.Execute("Update tJXC_Cp Set fCpID=6 Where fCpID=5");
    EXPECT_EQ(Codes("jh"), "N1");
    other.Execute("Delete From tJXC_Cp Where fCpID=6");
    EXPECT_EQ(Codes("jh"), "");
    other.Execute("Delete From tJXC_Cp");
    EXPECT_EQ(Codes("690"), "");
}

// Transactions end in another order than they begin in; what is rolled back never was.
TEST_P(Suggested, FollowTransactions) {
    EXPECT_EQ(Codes("690"), "CQ01,GB01,LS06");
    other.BeginTrans();
    other.Execute("Update tJXC_Cp Set fCpName='甲' Where fCpID=2");
    EXPECT_EQ(Codes("甲"), "");
    if (IsPostgres()) { // a writer that does not wait for the others
        Do("Update tJXC_Cp Set fCpName='乙' Where fCpID=3");
        EXPECT_EQ(Codes("乙"), "GB01");
        EXPECT_EQ(Codes("乙"), "GB01");
    }
    other.CommitTrans();
    EXPECT_EQ(Codes("甲"), "LS06");
    EXPECT_EQ(Codes("甲"), "LS06");
    other.BeginTrans();
    other.Execute("Update tJXC_Cp Set fCpName='丙' Where fCpID=2");
    other.RollbackTrans();
    EXPECT_EQ(Codes("丙"), "");
    EXPECT_EQ(Codes("甲"), "LS06");
}

// A key costs one small question; what is not searched for is not read again, and prices are nobody's business.
TEST_P(Suggested, ReadOnlyWhatChanged) {
    EXPECT_EQ(Codes("ls"), "LS06");
    const auto loads = [](const Recorder& recorder) {
        return std::ranges::count_if(recorder.sent, [](const std::string& sql) {
            return sql.find("fCpFlag<>1") != std::string::npos;
        });
    };
    {
        const Recorder recorder;
        EXPECT_EQ(Codes("nothing"), "");
        EXPECT_EQ(recorder.sent.size(), 1U);
        other.Execute("Update tJXC_Cp Set fCpPrice0=1,fCpPrice3=2");
        EXPECT_EQ(Codes("ls"), "LS06");
        EXPECT_EQ(loads(recorder), 0);
    }
    EXPECT_EQ(RowsOf("Select fID From tJXC_Change Where fKind=1 Order By fID"), (Lines{"2", "3", "4"}));
    for (int i = 0; i < 3; ++i)
        other.Execute("Update tJXC_Cp Set fCpGG='M8' Where fCpID=2");
    EXPECT_EQ(One("Select Count(*) From tJXC_Change Where fKind=1"), "3");
    const Recorder recorder;
    EXPECT_EQ(Codes("m8"), "LS06");
    EXPECT_EQ(loads(recorder), 1);
    EXPECT_NE(recorder.sent.at(1).find("fCpID"), std::string::npos);
}

// The connection of one call is closed behind it; the index is not, and another company's is another.
TEST_P(Suggested, OutliveTheConnection) {
    EXPECT_EQ(Codes("ls"), "LS06");
    company->Open(Conn());
    {
        const Recorder recorder;
        EXPECT_EQ(Codes("none"), "");
        EXPECT_EQ(recorder.sent.size(), 1U);
    }
    Add(7, "LS07", "螺母", "", "");
    company->Open(Conn());
    EXPECT_EQ(Codes("ls0"), "LS06,LS07");
    const TestCompany second(GetParam());
    EXPECT_EQ(session.Conn->Query("Select fCpID From tJXC_Cp").Count(), 0U);
    session.UserPath = second.Path();
    session.Default = second.Database();
    EXPECT_EQ(Codes("ls0"), "");
}

TEST_P(Suggested, CardsByNameCodeAndContact) {
    other.Execute("Insert Into cards (fID,CompCode,CompName,name) Values (2,'G001','深圳市芯源电子','王芳')");
    EXPECT_EQ(Cards("芯源"), "G001=深圳市芯源电子");
    EXPECT_EQ(Cards("szs"), "G001=深圳市芯源电子");
    EXPECT_EQ(Cards("王"), "G001=深圳市芯源电子");
    other.Execute("Update cards Set CompName='' Where fID=2");
    EXPECT_EQ(Cards("王"), "");
    other.Execute("Insert Into cards (fID,CompCode,CompName,name) Values (3,'X001','长城','')");
    EXPECT_EQ(Cards("cc"), "X001=长城");
    EXPECT_EQ(Cards("zc"), "X001=长城");
    EXPECT_EQ(Cards("G001"), "");
}

// A company of a program without the log is raised; whoever may not read the log still finds what is there.
TEST_P(Suggested, OlderCompaniesAreRaised) {
    Engine& engine = other.EngineInUse();
    if (IsPostgres())
        engine.ExecuteScript(
            "drop trigger tJXC_Cp_noted on tJXC_Cp; drop trigger cards_noted on cards;"
            "drop function tJXC_Cp_noted; drop function cards_noted; drop table tJXC_Change");
    else
        engine.ExecuteScript(
            "drop trigger tJXC_Cp_inserted; drop trigger tJXC_Cp_updated;"
            "drop trigger tJXC_Cp_deleted; drop trigger cards_inserted;"
            "drop trigger cards_updated; drop trigger cards_deleted; drop table tJXC_Change");
    Conn().ForgetCatalogue();
    EXPECT_EQ(Codes("ls"), "LS06"); // without a log
    Add(8, "LS08", "螺母", "", "");
    EXPECT_EQ(Codes("ls0"), "LS06,LS08");
    engine.SetVersion(1);
    company->Open(Conn());
    EXPECT_EQ(Conn().EngineInUse().Version(), kCompanyVersion);
    Add(9, "LS09", "螺帽", "", "");
    EXPECT_EQ(Codes("ls0"), "LS06,LS08,LS09");
    other.Execute("Update tJXC_Cp Set fCpCode='L9' Where fCpID=9");
    EXPECT_EQ(Codes("ls0"), "LS06,LS08");
}

} // namespace

} // namespace jxc::test
