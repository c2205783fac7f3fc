// Why work failed: the message of the work in the box, the engine's own words on demand and in the log.
#include <atomic>
#include <filesystem>
#include <optional>
#include <thread>

#include <sys/stat.h>

#include "base/log.h"
#include "controls/gestures.h"
#include "database/postgres_engine.h"
#include "database/waiting.h"
#include "documents/frmDj01.h"
#include "host/editors/frmHostCards.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

class Causes : public OnOpenCompany {
  protected:
    void Begin() override {
        setenv("JXC_LOG", folder.File("a/jxc.log").c_str(), 1);
        OnOpenCompany::Begin();
    }
    void TearDown() override {
        OnOpenCompany::TearDown();
        setenv("JXC_LOG", before.c_str(), 1);
    }
    // Runs with an error at the first statement that holds the text.
    template <typename Error, typename Operation>
    void With(const std::string& statement, const Error& error, const Operation& operation) {
        Conn().SetObserver([&](std::string_view sql) {
            if (sql.find(statement) != std::string_view::npos)
                throw error;
        });
        operation();
        Conn().SetObserver(nullptr);
        ASSERT_FALSE(Conn().InTransaction());
    }

    const TemporaryFolder folder;
    const std::string before = LogFile();
};
ON_BOTH_ENGINES(Causes);

TEST_P(Causes, StandBehindTheMessageAndInTheLog) {
    const int key = clerk->Save(TypicalDocument(1));
    const Lines before = Books();
    With("fQcSl,", DatabaseError("disk\nI/O error"), [&] { EXPECT_FALSE(clerk->Approve(1, key)); });
    EXPECT_EQ(clerk->LastBox(), "更新仓库的产品“库存成本表”错误，审核操作未完成！");
    EXPECT_EQ(clerk->view.boxes.back().details, "disk\nI/O error");
    With("begin", DatabaseError("locked"), [&] { EXPECT_FALSE(clerk->Approve(1, key)); });
    EXPECT_EQ(clerk->LastBox(), "locked"); // its own reason, not a stage's
    With("commit", DatabaseError("disk full"), [&] { EXPECT_EQ(clerk->Save(TypicalDocument(2)), 0); });
    EXPECT_EQ(clerk->LastBox(), "系统存盘错误，操作已经取消！");
    EXPECT_EQ(clerk->view.boxes.back().details, "disk full");
    EXPECT_EQ(Changes(before, Books()), Lines{});

    const std::string log = FileText(LogFile());
    EXPECT_NE(log.find("[入库单：审核] 更新仓库的产品“库存成本表”错误，审核操作未完成！ disk I/O error\n"),
              std::string::npos)
        << log;
    EXPECT_NE(log.find("系统存盘错误，操作已经取消！ disk full"), std::string::npos) << log;
    struct stat file {};
    ASSERT_EQ(stat(LogFile().c_str(), &file), 0);
    EXPECT_EQ(file.st_mode & 0777, 0600U);
}

TEST_P(Causes, ThatAreFaultsOfTheProgramShowAsSuch) {
    const int key = clerk->Save(TypicalDocument(1));
    const Lines before = Books();
    With("fQcSl,", std::out_of_range("no such row"), [&] { EXPECT_FALSE(clerk->Approve(1, key)); });
    EXPECT_EQ(clerk->LastBox(), "程序出现内部错误，本次操作没有完成。请把日志交给技术支持：" + LogFile());
    EXPECT_NE(clerk->view.boxes.back().details.find("no such row"), std::string::npos);
    EXPECT_EQ(Changes(before, Books()), Lines{});
    EXPECT_TRUE(clerk->Approve(1, key));
}

TEST_P(Causes, OfAWaitThatWasGivenUp) {
    const int key = clerk->Save(TypicalDocument(1));
    Connection other;
    OpenCompanyAt(company->Address(), other);
    {
        Transaction writing(other);
        other.Execute("Update Moneys Set MoneyRate=7 Where MoneyCode='USD'");
        other.Flush();
        clerk->view.patient = false;
        Conn().SetWaitObserver([&](int seconds) { return clerk->view.KeepWaiting(seconds); });
        EXPECT_FALSE(clerk->Approve(1, key));
        EXPECT_EQ(clerk->LastBox(), "已取消等待，操作没有进行。");
        EXPECT_EQ(clerk->view.waits, kAskedOnceAndEnded);
    }
    EXPECT_TRUE(clerk->Approve(1, key)) << clerk->LastBox();
}

// The stage that a reversal can do without is no reason to go on for who wants nothing of it any more.
TEST_P(Causes, OfAWaitThatWasGivenUpInAStageThatMayFail) {
    DocumentInput receipt = TypicalDocument(1);
    const int order = clerk->Save(TypicalDocument(23));
    ASSERT_TRUE(clerk->Approve(23, order)) << clerk->LastBox();
    receipt.order = RowsOf("Select fInvNo From tJXC_CkHt01 Where fInvID=" + std::to_string(order))[0];
    const int key = clerk->Save(receipt);
    ASSERT_TRUE(clerk->Approve(1, key)) << clerk->LastBox();
    const Lines before = Books();
    With("tJXC_CkHt02", DatabaseError(kGaveUpWaiting), [&] { EXPECT_FALSE(clerk->Reverse(1, key)); });
    EXPECT_EQ(Changes(before, Books()), Lines{});
    With("tJXC_CkHt02", DatabaseError("the order is out of reach"),
         [&] { EXPECT_TRUE(clerk->Reverse(1, key)) << clerk->LastBox(); });
}

TEST_P(Causes, OfAPasteThatBreaksOffLeaveTheLinesAsTheyWere) {
    clerk->Enter(TypicalDocument(1), [&](frmDj02& s) {
        const int rows = s.Grid2.RowCount();
        const std::string total = s.txtSum.text;
        With("fCpPrice0", DatabaseError("the products are out of reach"), [&] {
            PasteBlock(s, s.Grid2, {{"CAM001", "2", "5"}, {"HDD001", "1", "5"}});
        });
        EXPECT_FALSE(clerk->view.boxes.empty());
        EXPECT_EQ(s.Grid2.RowCount(), rows);
        EXPECT_EQ(s.txtSum.text, total);
        PasteBlock(s, s.Grid2, {{"CAM001", "2", "5"}, {"HDD001", "1", "5"}});
        EXPECT_EQ(s.Grid2.Text(rows + 2, line::kCode), "HDD001");
    });
}

// A host's view may fail in the middle of the engine's waiting; the work that waits is not its concern.
TEST_P(Causes, OfAViewThatFailsEndNoWait) {
    const int key = clerk->Save(TypicalDocument(1));
    Connection other;
    OpenCompanyAt(company->Address(), other);
    std::optional<Transaction> writing(std::in_place, other);
    other.Execute("Update Moneys Set MoneyRate=7 Where MoneyCode='USD'");
    other.Flush();
    std::atomic<int> told{0};
    std::thread writer([&] {
        told.wait(0);
        writing.reset();
    });
    Conn().SetWaitObserver([&](int) -> bool {
        ++told;
        told.notify_all();
        throw std::runtime_error("no window to tell it in");
    });
    EXPECT_TRUE(clerk->Approve(1, key)) << clerk->LastBox();
    EXPECT_GT(told.exchange(1), 0);
    told.notify_all();
    writer.join();
    EXPECT_NE(FileText(LogFile()).find("no window to tell it in"), std::string::npos);
}

class LostLineOfAClerk : public Causes {};
ON_POSTGRES(LostLineOfAClerk);

// A server that was away while a document was typed is found again by the save. One that goes in the middle of the save
// undoes it, and the next save finds it again.
TEST_P(LostLineOfAClerk, LeavesWhatWasTyped) {
    Connection other;
    OpenCompanyAt(company->Address(), other);
    clerk->Enter(TypicalDocument(1), [&](frmDj02& s) {
        CutLinesOfOthers(other);
        ClickSave(*clerk, s);
        EXPECT_EQ(clerk->LastBox(), "单据新增完毕。打印本张单据？");
    });
    clerk->Enter(TypicalDocument(1), [&](frmDj02& s) {
        Conn().SetObserver([&](std::string_view sql) {
            if (sql == "begin")
                CutLinesOfOthers(other);
        });
        ClickSave(*clerk, s);
        EXPECT_EQ(clerk->LastBox(), "系统存盘错误，操作已经取消！");
        EXPECT_EQ(s.Grid2.Text(1, line::kCode), TypicalDocument(1).lines[0].code);
        Conn().SetObserver(nullptr);
        ClickSave(*clerk, s);
        EXPECT_EQ(clerk->LastBox(), "单据新增完毕。打印本张单据？");
    });
    // Lost with the commit itself: nobody can say that it was cancelled, nor that it was done.
    const auto cutAtCommit = [&] {
        Conn().SetObserver([&](std::string_view sql) {
            if (sql == "commit")
                CutLinesOfOthers(other);
        });
    };
    clerk->Enter(TypicalDocument(2), [&](frmDj02& s) {
        cutAtCommit();
        ClickSave(*clerk, s);
        EXPECT_EQ(clerk->LastBox(), "与服务器的连接在存盘的最后一步中断，" + s.Number() +
                                        " 可能已经存盘，也可能没有。请查询确认后再继续。");
        Conn().SetObserver(nullptr);
        ClickSave(*clerk, s);
        EXPECT_EQ(clerk->LastBox(), "单据新增完毕。打印本张单据？");
    });
    const int key = std::stoi(RowsOf("Select fInvID From tJXC_CkDj01 Where fInvNo='20261105RK001'")[0]);
    clerk->Open(DocAction::Approve, 1, key, [&](frmDj02& s) {
        cutAtCommit();
        ClickSave(*clerk, s);
        EXPECT_EQ(clerk->LastBox(),
                  "与服务器的连接在审核的最后一步中断，20261105RK001 可能已经审核，也可能没有。请查"
                  "询确认后再继续。");
        Conn().SetObserver(nullptr);
    });
    EXPECT_TRUE(clerk->Approve(1, key)) << clerk->LastBox();
    EXPECT_EQ(RowsOf("Select fInvNo From tJXC_CkDj01 Where fInvType=1 Order By fInvNo"),
              (Lines{"20261105RK001", "20261105RK002"}));
}

// A list or an editor that stood open while the server was away goes on as if nothing had been.
TEST_P(LostLineOfAClerk, IsNotNoticedByWhoOnlyReads) {
    Connection other;
    OpenCompanyAt(company->Address(), other);
    ASSERT_GT(clerk->Save(TypicalDocument(1)), 0);
    const auto cut = [&](Screen& screen, Button& button) {
        CutLinesOfOthers(other);
        const size_t boxes = clerk->view.boxes.size();
        Click(screen, button);
        EXPECT_EQ(clerk->view.boxes.size(), boxes) << button.name << ": " << clerk->LastBox();
    };
    auto& list = static_cast<frmDj01&>(ScreenNamed("frmDj01"));
    list.SetProperty("invType", 1);
    clerk->view.OnScreen("frmDj01", [&](Screen&) {
        cut(list, list.cmdList);
        EXPECT_EQ(list.Grid1.RowCount(), 1);
    });
    ShowModal(list);
    frmHostCards cards;
    clerk->view.OnScreen("frmHostCards", [&](Screen&) {
        cut(cards, cards.cmdSeek);
        cut(cards, cards.cmdChange);
        EXPECT_EQ(cards.mode, EditorMode::Change);
    });
    ShowModal(cards);
}

// A server that stays away is told in the language of the program; what the engine says of it stands behind.
TEST_P(LostLineOfAClerk, IsToldWithItsCauseBehind) {
    Connection other;
    OpenCompanyAt(company->Address(), other);
    auto engine = std::make_unique<PostgresEngine>(ServerAddress{company->Address(), "", "", ""});
    Conn().Open(std::move(engine),
                []() -> std::unique_ptr<Engine> { throw DatabaseError("connection refused"); });
    CutLinesOfOthers(other);
    EXPECT_FALSE(Attempt("入库单", [] { Conn().Query("Select count(*) From tJXC_Ck"); }));
    EXPECT_EQ(clerk->LastBox(), "与服务器的连接已中断。");
    EXPECT_EQ(clerk->view.boxes.back().details, "connection refused");
    const std::string log = FileText(LogFile());
    EXPECT_NE(log.find("[入库单] 与服务器的连接已中断。 connection refused"), std::string::npos) << log;
    EXPECT_NE(log.find("[database] "), std::string::npos) << log; // what the engine said of the first loss
}

// Nearly all goods go back for next to nothing: what stays, 0.01 pieces worth 9,999,998,990.0001, would cost
// 999,999,899,000 each. All of them may go back.
TEST_P(Causes, OfAnApprovalThatWouldLeaveAnAbsurdCost) {
    DocumentInput receipt = TypicalDocument(1), back = TypicalDocument(-1);
    receipt.lines = {{"CAM001", 1000, 9'999'999}};
    const int received = Approved(receipt);
    back.lines = {{"CAM001", 999.99, 0.01}};
    const int nearlyAll = clerk->Save(back);
    ASSERT_GT(nearlyAll, 0) << clerk->LastBox();
    const Lines before = Books();
    EXPECT_FALSE(clerk->Approve(-1, nearlyAll));
    EXPECT_EQ(clerk->LastBox(), "更新仓库的产品“库存成本表”错误，审核操作未完成！");
    EXPECT_NE(clerk->view.boxes.back().details.find("的成本价或库存金额超出范围"), std::string::npos)
        << clerk->view.boxes.back().details;
    EXPECT_EQ(Changes(before, Books()), Lines{});

    back.lines = {{"CAM001", 1000, 0.01}};
    const int all = clerk->Save(back);
    ASSERT_GT(all, 0) << clerk->LastBox();
    EXPECT_TRUE(clerk->Approve(-1, all)) << clerk->view.boxes.back().details;
    EXPECT_TRUE(clerk->Reverse(1, received)) << clerk->LastBox();
}

TEST_P(Causes, FillALogThatDoesNotGrowForever) {
    const std::string line(100'000, 'x');
    for (int i = 0; i < 60; ++i)
        Log("test", line);
    const std::string file = LogFile();
    for (const char* generation : {"", ".1", ".2", ".3"})
        EXPECT_LT(std::filesystem::file_size(file + generation), 1'200'000U) << generation;
    EXPECT_FALSE(std::filesystem::exists(file + ".4"));
}

} // namespace

} // namespace jxc::test
