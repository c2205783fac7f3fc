// The month's close and its reversal as a whole: each undoes the other, each is done whole or not at all, and nobody's work
// is lost between two of its steps.
#include <gtest/gtest.h>

#include "base/text.h"
#include "close/frmJz_Step.h"
#include "close/month_close.h"
#include "close/rebuild_statistics.h"
#include "close/reverse_close.h"
#include "controls/gestures.h"
#include "host/check.h"
#include "session/period.h"
#include "session/session.h"
#include "tests/close/closing.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

class MonthClose : public OnClosing {};
ON_BOTH_ENGINES(MonthClose);

TEST_P(MonthClose, ReversalBringsTheDocumentsBackRowForRow) {
    OneOfEach();
    FixToday(MakeDate(2026, 12, 1));
    const Lines documents = OpenDocuments();
    ASSERT_TRUE(Close()) << clerk->LastBox();
    EXPECT_EQ(CheckCompany(), Lines{});
    EXPECT_NE(OpenDocuments(), documents);
    const Lines closed = AllBooks();
    ASSERT_TRUE(Reverse()) << clerk->LastBox();
    EXPECT_EQ(Changes(documents, OpenDocuments()), Lines{});
    EXPECT_EQ(CheckCompany(), Lines{});
    ASSERT_TRUE(Close()) << clerk->LastBox();
    EXPECT_EQ(Changes(closed, AllBooks()), Lines{}); // the same keys and numbers, each slice once
}

// A failure at each statement: told, and everything but the statistics as before.
class Faults {
  public:
    Faults(Clerk& clerk, std::string told) : clerk_(clerk), told_(std::move(told)) {}
    // `run` answers whether the month moved; `undo` takes that back.
    void At(const std::function<bool(const std::function<void()>&)>& run, const std::function<void()>& undo) {
        for (size_t statement = 1;; ++statement) {
            SCOPED_TRACE("statement " + std::to_string(statement));
            ASSERT_LT(statement, 500U);
            const Lines before = OpenDocuments(), books = WithoutStatistics();
            std::unique_ptr<Recorder> recorder;
            const bool moved = run([&] { recorder = std::make_unique<Recorder>(statement); });
            const size_t sent = recorder ? recorder->sent.size() : 0;
            recorder.reset();
            ASSERT_FALSE(Conn().InTransaction());
            if (moved) {
                undo();
                if (sent < statement)
                    break;
                continue; // what failed was told, as the refresh behind the last notice
            }
            ++refused_;
            bool told = false;
            for (const MessageBox& box : clerk_.view.boxes)
                told = told || box.text.find("fault") != std::string::npos || box.text.find(told_) == 0;
            ASSERT_TRUE(told) << clerk_.LastBox();
            ASSERT_EQ(Changes(before, OpenDocuments()), Lines{}) << clerk_.LastBox();
            ASSERT_EQ(Changes(books, WithoutStatistics()), Lines{}) << clerk_.LastBox();
        }
        EXPECT_GT(refused_, 15);
    }

  private:
    static Lines WithoutStatistics() {
        Lines books = AllBooks();
        std::erase_if(books, [](const std::string& row) { return row.starts_with("tJXC_CkTj"); });
        return books;
    }
    Clerk& clerk_;
    std::string told_;
    int refused_ = 0;
};

TEST_P(MonthClose, AFailureAtAnyStatementChangesNothing) {
    OneOfEach();
    FixToday(MakeDate(2026, 12, 1));
    Faults(*clerk, "月底结转错误")
        .At([&](const auto& arm) { return Close(arm); }, [&] { ASSERT_TRUE(Reverse()); });
    ASSERT_TRUE(Close()) << clerk->LastBox();
    Faults(*clerk, "反结转错误")
        .At([&](const auto& arm) { return Reverse(arm); }, [&] { ASSERT_TRUE(Close()); });
}

TEST_P(MonthClose, AFailedRebuildLeavesTheStatistics) {
    OneOfEach();
    for (size_t statement = 1;; ++statement) {
        SCOPED_TRACE("statement " + std::to_string(statement));
        const Lines before = Books();
        clerk->view.boxes.clear();
        bool done = false, met = false;
        {
            const Recorder recorder(statement);
            done = RebuildStockStatistics(Today(), "库存统计");
            met = recorder.sent.size() >= statement;
        }
        ASSERT_FALSE(Conn().InTransaction());
        if (done) {
            ASSERT_FALSE(met);
            break;
        }
        EXPECT_EQ(clerk->LastBox(), "库存统计失败：fault ！");
        ASSERT_EQ(Changes(before, Books()), Lines{});
    }
    {
        const Recorder recorder(3);
        RebuildOverallCost("库存统计");
    }
    EXPECT_EQ(clerk->LastBox(), "整体成本刷新失败：fault ！");
}

TEST_P(MonthClose, WorkOfOthersBetweenTheStepsEndsIt) {
    OneOfEach();
    FixToday(MakeDate(2026, 12, 1));
    const int key = clerk->Save(TypicalDocument(1));
    ASSERT_TRUE(clerk->Approve(1, key));
    // When the statistics are made, somebody takes an approval back.
    const std::string address = company->Address();
    const Lines before = OpenDocuments();
    EXPECT_FALSE(Close([&] {
        Conn().SetObserver([&, openings = false, done = false](std::string_view sql) mutable {
            openings = openings || sql.starts_with("Delete From tJXC_CkDj_Tmp01");
            if (openings && !done && sql == "begin") {
                done = true;
                ExecuteOnCompany(address, "Insert Into tJXC_Audit (fID,fUser,fTable,fName) Select max(fID)+1,"
                                          "'李强','tJXC_CkDj01','20261105RK002' From tJXC_Audit");
            }
        });
    }));
    EXPECT_EQ(clerk->LastBox(),
              "月底结转错误：用户 李强 刚刚改动了 20261105RK002，统计已不是最新的，请重新进行！");
    EXPECT_EQ(Changes(before, OpenDocuments()), Lines{});
}

TEST_P(MonthClose, APeriodMovedByAnotherIsNotMovedTwice) {
    OneOfEach();
    FixToday(MakeDate(2027, 2, 1));
    const std::string address = company->Address();
    EXPECT_TRUE(Close([&] { ExecuteOnCompany(address, "Update tJXC_InvSys Set fSysDate='2026-12-01'"); }));
    EXPECT_EQ(clerk->LastBox(), "月底结转错误：本期年月已由其他用户改为 2026年12月，请重新打开窗口！");
    EXPECT_EQ(One("select count(*) from tJXC_CkDj_Bak01"), "0");
}

// Somebody else closes the month while a document is being typed: it is told, stays, and is saved with a later date.
TEST_P(MonthClose, ADocumentBegunBeforeMeetsTheNewPeriod) {
    const std::string address = company->Address();
    DocumentInput begun = TypicalDocument(DocType::Receipt);
    clerk->Enter(begun, [&](frmDj02& s) {
        ExecuteOnCompany(address, "Update tJXC_InvSys Set fSysDate='2026-12-01'");
        ClickSave(*clerk, s);
        EXPECT_EQ(clerk->LastBox(), "单据日期：不能小于本期起始日期 2026-12-01！");
        EXPECT_EQ(One("select count(*) from tJXC_CkDj01"), "0");
        ASSERT_EQ(s.Grid2.Text(1, line::kCode), "CPU002"); // what was typed stays
        ASSERT_EQ(s.Grid2.Number(2, line::kQuantity), 5);
        s.dtpInvDate.date = MakeDate(2026, 12, 1);
        ClickSave(*clerk, s);
    });
    EXPECT_EQ(LinesOf(Conn().Query("select fInvDate,fInvJE from tJXC_CkDj01")),
              (Lines{"2026-12-01|2687.5"})); // 3 x 610 + 5 x 171.5
}

struct PeriodOfDay {
    const char* month;
    int day;
    const char* start;
    const char* end;
    const char* next;
};

TEST_P(MonthClose, PeriodsBeginOnAnyDay) {
    const PeriodOfDay periods[] = {{"2026-11-01", 1, "2026-11-01", "2026-11-30", "2026-12-01"},
                                   {"2026-11-01", 26, "2026-11-26", "2026-12-25", "2026-12-01"},
                                   {"2027-03-01", -26, "2027-02-26", "2027-03-25", "2027-04-01"},
                                   {"2027-01-31", 1, "2027-01-01", "2027-01-31", "2027-02-01"},
                                   {"2028-02-29", 1, "2028-02-01", "2028-02-29", "2028-03-01"},
                                   {"2027-02-10", -26, "2027-01-26", "2027-02-25", "2027-03-01"},
                                   {"2026-12-31", 26, "2026-12-26", "2027-01-25", "2027-01-01"}};
    for (const PeriodOfDay& period : periods) {
        SCOPED_TRACE(std::string(period.month) + " from " + std::to_string(period.day));
        for (const char* table :
             {"tJXC_CkDj01", "tJXC_CkDj02", "tJXC_CkDj_Bak01", "tJXC_CkDj_Bak02", "tJXC_CkTj_Bak"})
            Do(std::string("Delete From ") + table + " Where 1=1");
        Do("Update tJXC_InvSys Set fSysDay=" + std::to_string(period.day) + ",fSysDate='" + period.month +
           "'");
        LoadPeriodSettings();
        EXPECT_EQ(IsoText(*session.PeriodStart), period.start);
        FixToday(ParseDate(period.end));
        Approved({.type = 1, .date = period.end, .customer = "G001", .lines = {{"CPU002", 3, 600}}});
        const int later = clerk->Save({.type = 1,
                                       .date = IsoText(AddDays(*session.PeriodEnd, 1)),
                                       .customer = "G001",
                                       .lines = {{"CPU002", 5, 600}}});
        FixToday(AddDays(*session.PeriodEnd, -1));
        EXPECT_FALSE(Close());
        EXPECT_EQ(clerk->LastBox(), "本期月结日期未到，不可结转！");
        FixToday(ParseDate(period.end));
        ASSERT_TRUE(Close()) << clerk->LastBox();
        EXPECT_EQ(One("select fSysDate from tJXC_InvSys"), period.next);
        EXPECT_EQ(RowsOf("select fInvDate,fInvSL from tJXC_CkDj02 Order By fInvSL"),
                  (Lines{IsoText(AddDays(*ParseDate(period.end), 1)) + "|3",
                         IsoText(AddDays(*ParseDate(period.end), 1)) + "|5"}));
        EXPECT_EQ(One("select fMonth from tJXC_CkDj_Bak01"), period.month);
        ASSERT_TRUE(clerk->Approve(1, later)) << clerk->LastBox();
        ASSERT_TRUE(Reverse()) << clerk->LastBox();
        EXPECT_EQ(One("select count(*) from tJXC_CkDj01"), "2");
    }
}

// The number that the first opening document gets, of each rule; the second one's behind it.
TEST_P(MonthClose, OpeningDocumentsCountUpBehindTheirRule) {
    Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", 9, 600}}});
    Approved({.type = 3, .warehouse = "总部仓", .warehouse2 = "零售门市", .lines = {{"CPU002", 1, 0}}});
    ASSERT_TRUE(RebuildStockStatistics(Today(), ""));
    const Date end = MakeDate(2026, 11, 30);
    const auto numbers = [&](const std::string& rule) {
        Do("Update tJXC_InvSet Set fSetAutoNo='" + rule + "' Where fSetNo=0");
        BuildOpeningDocuments(end);
        return RowsOf("select fInvNo from tJXC_CkDj_Tmp01 Order By fInvID");
    };
    EXPECT_EQ(numbers("YYYYMMDDQCXXX"), (Lines{"20261201QC001", "20261201QC002"}));
    EXPECT_EQ(numbers("QCXXX"), (Lines{"QC001", "QC002"}));
    EXPECT_EQ(numbers(""), (Lines{"AutoQc001", "AutoQc002"}));
    EXPECT_EQ(numbers("期初"), (Lines{"AutoQc001", "AutoQc002"}));
    // A counter that is used up begins at nothing.
    Do("Insert Into tJXC_CkDj02 (fInvID,fInv1,fInvNo) Values (3,9,'QC998')");
    EXPECT_EQ(numbers("QCXXX"), (Lines{"QC999", "QC000"}));
}

TEST_P(MonthClose, KeysOfTheClosedBookAreNotGivenAgain) {
    const int key = Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", 9, 600}}});
    Approved({.type = -1, .customer = "G001", .lines = {{"CPU002", 9, 600}}});
    FixToday(MakeDate(2026, 12, 1));
    ASSERT_TRUE(Close()) << clerk->LastBox();
    // An opening document that is deleted leaves the largest key to the closed book.
    Do("Delete From tJXC_CkDj01 Where 1=1");
    Do("Delete From tJXC_CkDj02 Where 1=1");
    EXPECT_EQ(clerk->Save(TypicalDocument(1)), key + 2);
    ASSERT_TRUE(Reverse()) << clerk->LastBox();
    EXPECT_EQ(One("select count(distinct fInvID) from tJXC_CkDj01"), "3");
}

TEST_P(MonthClose, OpeningsMadeByHandAreNamedBeforeTheyGo) {
    Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", 9, 600}, {"MEM002", 9, 170}}});
    FixToday(MakeDate(2026, 12, 1));
    ASSERT_TRUE(Close()) << clerk->LastBox();
    EXPECT_EQ(OpeningDocumentsByHand(*session.SysDate), Lines{});
    Approved({.type = 0, .warehouse = "总部仓", .lines = {{"MEM003", 2, 600}}});
    EXPECT_EQ(OpeningDocumentsByHand(*session.SysDate), (Lines{"20261201QC002"}));
    Do("Update tJXC_CkDj02 Set fInvSL=8 Where fInvNo='20261201QC001' And fInvSL=9 And fInvDJ=170");
    EXPECT_EQ(OpeningDocumentsByHand(*session.SysDate), (Lines{"20261201QC001", "20261201QC002"}));
    clerk->view.boxes.clear();
    ASSERT_TRUE(Reverse());
    EXPECT_EQ(clerk->view.boxes.front().text,
              "注意：请确认已经进行了“套帐备份”，确保数据的安全！\n\n"
              "本期有手工录入或修改过的期初单据，将一并清除：20261201QC001、20261201QC002");
}

class Keeper : public BackupKeeper {
  public:
    explicit Keeper(std::string fault) : fault_(std::move(fault)) {}
    std::string BackUp() override {
        if (!fault_.empty())
            throw DatabaseError(fault_);
        return "/backups/a.jxc";
    }

  private:
    std::string fault_;
};

TEST_P(MonthClose, BacksUpFirstAndDoesNotBeginWithoutACopy) {
    Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", 9, 600}}});
    FixToday(MakeDate(2026, 12, 1));
    const Lines before = AllBooks();
    ComponentsInUse().backups = std::make_unique<Keeper>("磁盘已满");
    EXPECT_FALSE(Close());
    EXPECT_EQ(clerk->LastBox(), "备份没有完成，没有开始月底结转：磁盘已满");
    EXPECT_EQ(Changes(before, AllBooks()), Lines{});
    ComponentsInUse().backups = std::make_unique<Keeper>("");
    EXPECT_TRUE(Close()) << clerk->LastBox();
    EXPECT_EQ(dynamic_cast<ClosingScreen&>(ScreenNamed("frmJz_Step")).lblBackup.caption,
              "已备份：/backups/a.jxc");
    ComponentsInUse().backups.reset();
}

} // namespace

} // namespace jxc::test
