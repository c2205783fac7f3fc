// A purchase plan becomes orders whole or not at all: with a failure at any statement, with what another user deleted
// meanwhile, with several users at once; and the plan's columns as its options say.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include "controls/gestures.h"
#include "host/check.h"
#include "plans/frmJh02.h"
#include "session/audit/audit.h"
#include "session/components.h"
#include "session/session.h"
#include "tests/support/clerk.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

constexpr int kMost = 200; // statements of a conversion

// Sees whether the person is kept waiting while a box is shown.
class WatchedView : public ScriptedView {
  public:
    bool waiting = false, waitedAtBox = false;
    void ShowProgress(const std::string& step, int done, int total) override {
        waiting = total > 0;
        ScriptedView::ShowProgress(step, done, total);
    }
    BoxButton ShowBox(const MessageBox& box) override {
        waitedAtBox = waitedAtBox || waiting;
        return ScriptedView::ShowBox(box);
    }
};

// Orders of customers for goods of three suppliers.
void OrderGoods(Clerk& clerk) {
    const DocumentInput order{
        .type = 24,
        .customer = "X003",
        .lines = {{"CPU002", 10, 700}, {"MEM002", 60, 200}, {"SSD003", 5, 400}, {"MB001", 4, 400}}};
    ASSERT_GT(clerk.Save(order), 0) << clerk.LastBox();
}

// What was printed last.
struct Printed {
    FieldList header;
    std::string title;
    int rows = -1;
};
struct KeptPrinter : Printer {
    explicit KeptPrinter(Printed& printed) : printed(printed) {}
    void Print(const GridPrintJob& job) override { printed = {job.header, job.title, job.grid->RowCount()}; }
    void Print(const TemplatePrintJob&) override {}
    Printed& printed;
};

class PlanToOrders : public OnOpenCompany {
  protected:
    void Begin() override {
        OnOpenCompany::Begin();
        OrderGoods(*clerk);
        inUse.emplace(view);
    }
    void TearDown() override {
        inUse.reset();
        OnOpenCompany::TearDown();
    }
    // The screen is opened on the plan of that day.
    void OnPlan(const std::function<void(frmJh02&)>& act, int state = 0) {
        view.OnScreen("frmJh02", [&](Screen& screen) { act(dynamic_cast<frmJh02&>(screen)); });
        Screen& screen = ScreenNamed("frmJh02");
        screen.SetProperty("myState", state);
        ShowModal(screen);
    }
    // What the person is told in the end.
    std::string Told() const { return view.boxes.empty() ? "" : view.boxes.back().text; }

    WatchedView view;
    std::optional<ViewInUse> inUse; // in place of the clerk's
};
ON_BOTH_ENGINES(PlanToOrders);

TEST_P(PlanToOrders, AFailureAtAnyStatementLeavesEverythingAsItWas) {
    const Lines before = Books();
    const std::int64_t trail = ReadAuditHead(Conn()).rows;
    size_t failing = 1;
    for (bool done = false; !done; ++failing) {
        ASSERT_LT(failing, size_t{kMost});
        OnPlan([&](frmJh02& s) {
            view.boxes.clear();
            const Recorder recorder(failing);
            Click(s, s.cmdExecute);
            done = recorder.sent.size() < failing;
            EXPECT_TRUE(s.cmdExecute.enabled);
        });
        SCOPED_TRACE("statement " + std::to_string(failing) + ": " + Told());
        EXPECT_FALSE(view.waiting || view.waitedAtBox);
        ASSERT_FALSE(Conn().InTransaction());
        if (done) {
            EXPECT_EQ(Told(), "采购订单转化完毕，共生成 3张单据。");
            continue;
        }
        EXPECT_TRUE(Told().starts_with("存盘错误：") && Told().ends_with("\n操作已经取消！"));
        EXPECT_EQ(view.boxes.back().details, "fault");
        ASSERT_EQ(Changes(before, Books()), Lines{});
        ASSERT_EQ(ReadAuditHead(Conn()).rows, trail);
    }
    EXPECT_GT(failing, 15u);
    EXPECT_EQ(ReadAuditHead(Conn()).rows, trail + 3); // each order has its row
    EXPECT_EQ(AuditFaults(Conn()), Lines{});
    EXPECT_EQ(CheckCompany(), Lines{});
}

TEST_P(PlanToOrders, IsRefusedWhenAProductOrASupplierIsGone) {
    const Lines before = Books();
    const auto refused = [&](const std::string& change, const std::string& back, const std::string& text) {
        OnPlan([&](frmJh02& s) {
            Do(change);
            Click(s, s.cmdExecute);
        });
        EXPECT_EQ(Told(), text);
        EXPECT_EQ(Changes(before, Books()), Lines{});
        EXPECT_FALSE(view.waiting || view.waitedAtBox);
        Do(back);
    };
    refused("Update tJXC_Cp Set fCpID=999 Where fCpCode='MB001'",
            "Update tJXC_Cp Set fCpID=11 Where fCpCode='MB001'", "产品 [MB001] 已不存在，操作已经取消！");
    refused("Update cards Set fID=999 Where CompCode='G003'", "Update cards Set fID=4 Where CompCode='G003'",
            "供应商 [上海恒储数据设备有限公司] 已不存在，操作已经取消！");
    refused("Update tJXC_InvSet Set fSetAutoNo='' Where fSetNo=23",
            "Update tJXC_InvSet Set fSetAutoNo='YYYYMMDDCGXXX' Where fSetNo=23",
            "[采购订单]的[自动单号]设定有误，操作已经取消！");
    refused("Update tJXC_InvSys Set fSysDate=" + Day("12/01/2026"),
            "Update tJXC_InvSys Set fSysDate=" + Day("11/01/2026"),
            "单据日期：不能小于本期起始日期 2026-12-01！");
    EXPECT_EQ(One("select count(*) from tJXC_CkHt01 where fInvType=23"), "0");
}

// A name without a card is a supplier too; keys under which lines without a header stand are not given.
TEST_P(PlanToOrders, TakesFreeKeysAndSuppliersWithoutACard) {
    Do("Insert Into tJXC_CkHt02 (fInvID,fInv1,fRowID,fCpID,fInvSL,fInvSL2) Values (4,0,1,3,0,0)");
    Do("Update tJXC_Cp Set fKhID=0 Where fCpCode='SSD003'");
    OnPlan([](frmJh02& s) { Click(s, s.cmdExecute); });
    EXPECT_EQ(Told(), "采购订单转化完毕，共生成 3张单据。");
    EXPECT_EQ(RowsOf("select fInvID,fKhID from tJXC_CkHt01 where fInvType=23 order by fInvID"),
              (Lines{"3|0", "5|3", "6|2"}));
}

// Two suppliers may have one name: each gets one order.
TEST_P(PlanToOrders, KeepsSuppliersOfOneNameApart) {
    Do("Update tJXC_Cp Set fKhID=9 Where fCpCode='CPU002'"); // the name stays that of the card 2
    Do("Update tJXC_Cp Set fKhName='深圳市芯源电子有限公司',fKhID=9 Where fCpCode='SSD003'");
    OnPlan([](frmJh02& s) { Click(s, s.cmdExecute); });
    EXPECT_EQ(RowsOf("select a.fKhID,b.fCpID from tJXC_CkHt01 a Inner Join tJXC_CkHt02 b On "
                     "b.fInvID=a.fInvID where a.fInvType=23 order by b.fRowID"),
              (Lines{"3|11", "2|17", "9|3", "9|23"}));
    EXPECT_EQ(Told(), "采购订单转化完毕，共生成 3张单据。");
}

TEST_P(PlanToOrders, OvertypedFiguresAreWorkUntilTheyAreUsed) {
    OnPlan([&](frmJh02& s) {
        EXPECT_EQ(s.UnsavedWork(), "");
        TypeCell(s, s.Grid1, 1, plan::kNeeded, "7");
        EXPECT_NE(s.UnsavedWork(), "");
        s.SaveWork();
        EXPECT_EQ(Told(), "采购订单转化完毕，共生成 3张单据。");
        EXPECT_EQ(s.UnsavedWork(), "");
        EXPECT_THROW(TypeCell(s, s.Grid1, 1, plan::kNeeded, "abc"), GestureRefused);
    });
    EXPECT_EQ(One("select fInvSL from tJXC_CkHt02 where fCpID=3 and fInvID>2"), "7");
}

// The letters of the columns that are shown.
std::string LettersOf(const Grid& grid) {
    std::string letters;
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        if (!grid.Column(column).hidden)
            letters += static_cast<char>('A' + column - 1);
    return letters;
}

TEST_P(PlanToOrders, ShowsTheColumnsThatItsOptionsName) {
    OnPlan([](const frmJh02& s) {
        EXPECT_EQ(LettersOf(s.Grid1), "ABCEFGHILO");
        EXPECT_EQ(s.Grid1.BackColor(1, plan::kLower), Rgb(192, 255, 255));
        EXPECT_EQ(s.Grid1.BackColor(1, plan::kSales), kNormalColor);
    });
    OnPlan(
        [&](frmJh02& s) {
            EXPECT_EQ(LettersOf(s.Grid1), "ABCEFGHIJL");
            SetToggle(s, s.chkPrice, true);
            ChooseItem(s, s.cboType, plan::kByOrders);
            EXPECT_EQ(LettersOf(s.Grid1), "ABCEFGHILMN");
            ChooseItem(s, s.cboKcType, plan::kNoLimit);
            EXPECT_EQ(LettersOf(s.Grid1), "ABCEHILMN");
            ChooseItem(s, s.cboType, plan::kByLimit); // without limit and orders there is nothing
            EXPECT_EQ(s.cboKcType.Index(), plan::kMiddle);
            EXPECT_EQ(LettersOf(s.Grid1), "ABCEFGLMN");
            SetToggle(s, s.chkDetail, false);
            SetToggle(s, s.chkCk, true);
            EXPECT_EQ(LettersOf(s.Grid1), "ABCDLMN");
            EXPECT_EQ(s.cboCk.text, "总部仓");
            s.cboType.SetIndex(-1);
            Click(s, s.cmdQuery);
            EXPECT_EQ(Told(), "请选择计算方式！");
            EXPECT_EQ(s.Focus(), &s.cboType);
        },
        1);
    EXPECT_EQ(NeedFormula(plan::kMiddle, plan::kByOrders), "(F#+G#)/2- E# - I# + H#");
    EXPECT_EQ(NeedFormula(plan::kNoLimit, plan::kByOrdersAndAssembly), "0- E# - I# + H# -J#-K#");
}

// Two of the kit are being assembled: 11 by its limits and 8 ordered, less 2.
TEST_P(PlanToOrders, CountsWhatIsBeingAssembled) {
    inUse.reset(); // the clerk works at his own
    ASSERT_GT(clerk->Save({.type = 24, .customer = "X003", .lines = {{"PC001", 8, 2000}}}), 0);
    DocumentInput assembly = TypicalDocument(31);
    assembly.product = "PC001";
    ASSERT_GT(clerk->Save(assembly), 0);
    inUse.emplace(view);
    OnPlan(
        [](const frmJh02& s) {
            ASSERT_EQ(s.Grid1.RowCount(), 1);
            EXPECT_EQ(s.Grid1.Number(1, plan::kAssembly), 2);
            EXPECT_EQ(s.Grid1.Number(1, plan::kNeeded), 17);
        },
        1);
}

TEST_P(PlanToOrders, IsPrintedWithItsWarehouse) {
    Printed printed;
    auto before = std::exchange(ComponentsInUse().printer, std::make_unique<KeptPrinter>(printed));
    OnPlan([&](frmJh02& s) {
        Click(s, s.cmdPrint);
        EXPECT_EQ(printed.title, "采购计划");
        EXPECT_EQ(printed.rows, 4);
        ASSERT_GE(printed.header.size(), 2u);
        EXPECT_EQ(printed.header.at(printed.header.size() - 2), "限定仓库");
        EXPECT_EQ(printed.header.back(), "所有仓库");
        SetToggle(s, s.chkCk, true);
        Click(s, s.cmdPrint);
        EXPECT_EQ(printed.header.back(), "总部仓");
    });
    ComponentsInUse().printer = std::move(before);
}

constexpr int kUsers = 2, kRuns = 8;

// What the limits ask for, of eight suppliers, is ordered again and again.
bool ConvertMany(const SampleCompany& company) {
    company.SignedIn();
    const OpenCompany open(company.Address());
    ScriptedView view;
    const ViewInUse inUse(view);
    int converted = 0;
    view.OnScreen("frmJh02", [&](Screen& screen) {
        auto& plan = dynamic_cast<frmJh02&>(screen);
        ChooseItem(plan, plan.cboType, plan::kByLimit);
        Click(plan, plan.cmdQuery);
        Click(plan, plan.cmdSupplier);
        for (int run = 0; run < kRuns; ++run) {
            Click(plan, plan.cmdExecute);
            converted += view.boxes.back().text == "采购订单转化完毕，共生成 8张单据。";
        }
    });
    ShowModal(ScreenNamed("frmJh02"));
    if (converted < kRuns)
        std::fprintf(stderr, "%s\n", view.boxes.back().text.c_str());
    return converted == kRuns;
}

// A process of its own; it never comes back into the test.
pid_t Start(const SampleCompany& company) {
    const pid_t child = fork();
    if (child == 0) {
        bool done = false;
        try {
            done = ConvertMany(company);
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
        }
        _exit(done ? 0 : 1);
    }
    return child;
}

using PlansOfManyUsers = OnSampleCompany;
ON_BOTH_ENGINES(PlansOfManyUsers);

TEST_P(PlansOfManyUsers, AtOnceTakeKeysAndNumbersOfTheirOwn) {
    std::vector<pid_t> children;
    for (int user = 0; user < kUsers; ++user)
        children.push_back(Start(*company));
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    const OpenCompany open(company->Address());
    constexpr int runs = kUsers * kRuns;
    EXPECT_EQ(One("select count(*) from tJXC_CkHt01 where fInvType=23"), std::to_string(8 * runs));
    EXPECT_EQ(RowsOf("select fInvID from tJXC_CkHt01 Group By fInvID Having count(*)>1"), Lines{});
    EXPECT_EQ(RowsOf("select fInvNo from tJXC_CkHt01 where fInvType=23 Group By fInvNo").size(),
              static_cast<size_t>(runs));
    EXPECT_EQ(One("select count(*) from tJXC_CkHt02 where fInvID in (select fInvID from tJXC_CkHt01 where "
                  "fInvType=23)"),
              std::to_string(60 * runs));
    EXPECT_EQ(CheckCompany(), Lines{});
}

} // namespace

} // namespace jxc::test
