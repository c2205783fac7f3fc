// A new user's way from nothing to the first approved document, by keys alone, and that the page which tells it counts
// them right.
#include <regex>

#include "host/window/first_company.h"
#include "host/window/main_window.h"
#include "session/session.h"
#include "tests/support/files.h"
#include "tests/support/on_sample_company.h"
#include "view/qt_text.h"

namespace jxc::test {

namespace {

// Clicks and turns of the wheel that any window gets.
class MouseWatch : public QObject {
  public:
    MouseWatch() { qApp->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        const auto type = event->type();
        used +=
            type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease || type == QEvent::Wheel;
        return false;
    }
    int used = 0;
};

class FirstCompanyWay : public testing::Test {
  protected:
    static void SetUpTestSuite() { setenv("JXC_TODAY", "2026-11-05", 1); }
    void SetUp() override {
        ResetScreens();
        window.LeaveNoTrace();
        window.OfferNewCompaniesIn(folder.path());
        window.show();
    }
    void TearDown() override { ResetScreens(); }
    std::string File() const { return S(folder.filePath("远山商行.db")); }
    Lines Rows(const std::string& sql) const { return LinesOf(QueryCompany(File(), sql)); }

    QTemporaryDir folder;
    MainWindow window;
};

// The rows of the page's table of keys: "| `stage` | keys |", and their sum.
std::map<std::string, int> KeysOfThePage(const std::string& page) {
    std::map<std::string, int> told;
    const std::regex row("\\| `([^`]+)` \\|[^|\n]*\\| ([0-9]+) \\|");
    for (std::sregex_iterator at(page.begin(), page.end(), row), end; at != end; ++at)
        told[(*at)[1]] = std::stoi((*at)[2]);
    return told;
}

TEST_F(FirstCompanyWay, EndsWithAnApprovedReceiptAndItsStock) {
    const MouseWatch mouse;
    int keys = 0;
    std::map<std::string, int> played;
    for (const FirstCompanyStage& stage : PlayFirstCompany(window, "")) {
        played[stage.name] = stage.keys;
        keys += stage.keys;
    }
    EXPECT_EQ(mouse.used, 0);

    EXPECT_EQ(Rows("select CompName from myCompany"), Lines{"远山商行"});
    EXPECT_EQ(Rows("select fUserName,fSupervisor from tHostUser"), Lines{"林远|1"});
    EXPECT_EQ(session.UserName + "/" + session.ZgName, "林远/林远");
    EXPECT_EQ(Rows("select fCkCode,fCkName from tJXC_Ck"), Lines{"01|总部仓"});
    EXPECT_EQ(Rows("select fCpCode,fCpName,fCpUnit from tJXC_Cp Order By fCpCode"),
              (Lines{"P001|茶杯|个", "P002|茶壶|个"}));
    EXPECT_EQ(Rows("select CompCode,CompName,fType0 from cards"), Lines{"G001|景山瓷厂|1"});
    // 10 x 12.50 + 20 x 3.20
    EXPECT_EQ(Rows("select fInvNo,fInvType,fInvJE,fInvDLR,fInvSHR from tJXC_CkDj01"),
              Lines{"20261105RK001|1|189|林远|林远"});
    EXPECT_EQ(Rows("select b.fCpCode,a.fCkName,a.fKcSL,a.fKcDj,a.fKcJE from tJXC_CkTj a Inner Join tJXC_Cp b"
                   " On a.fCpID=b.fCpID Order By b.fCpCode"),
              (Lines{"P001|总部仓|10|12.5|125", "P002|总部仓|20|3.2|64"}));
    EXPECT_FALSE(window.findChild<QWidget*>("firstSteps")->isVisible());

    const std::string page = FileText(JXC_ROOT "/docs/first-company.md");
    EXPECT_EQ(KeysOfThePage(page), played);
    EXPECT_NE(page.find("**" + std::to_string(keys) + " keys**"), std::string::npos) << keys;
}

// The page's minutes follow from its own figures: two keys a second, and the time of reading.
TEST(FirstCompanyPage, CountsItsMinutes) {
    const std::string page = FileText(JXC_ROOT "/docs/first-company.md");
    std::smatch told;
    ASSERT_TRUE(std::regex_search(
        page, told,
        std::regex("([0-9]+) windows at 10 seconds and ([0-9]+) boxes at 3 seconds[^=]*= ([0-9]+) seconds")));
    int keys = 0;
    for (const auto& [stage, count] : KeysOfThePage(page))
        keys += count;
    EXPECT_EQ(std::stoi(told[3]), keys / 2 + std::stoi(told[1]) * 10 + std::stoi(told[2]) * 3);
}

TEST_F(FirstCompanyWay, IsNotPlayedOverAnotherCompany) {
    PlayFirstCompany(window, "");
    EXPECT_THROW(PlayFirstCompany(window, ""), std::runtime_error);
}

} // namespace

} // namespace jxc::test
