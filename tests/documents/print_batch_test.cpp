// The selected documents of the list on paper.
#include <set>

#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "documents/frmDj01.h"
#include "session/printing/html_pages.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

class BatchPrinter : public Printer {
  public:
    void Print(const GridPrintJob&) override {}
    void Print(const TemplatePrintJob& job) override { single = job; }
    std::vector<std::string> PrintAll(const std::vector<TemplatePrintJob>& asked) override {
        jobs = asked;
        return {};
    }
    std::optional<TemplatePrintJob> single;
    std::vector<TemplatePrintJob> jobs;
};

class PrintBatch : public OnOpenCompany {
  protected:
    void Begin() override {
        OnOpenCompany::Begin();
        auto printer = std::make_unique<BatchPrinter>();
        printed = printer.get();
        before = std::exchange(ComponentsInUse().printer, std::move(printer));
    }
    void TearDown() override {
        ComponentsInUse().printer = std::move(before);
        OnOpenCompany::TearDown();
    }
    // The list of all types and of their documents, after a query.
    void List(const std::function<void(frmDj01&)>& act, bool lines = false) {
        clerk->view.OnScreen("frmDj01", [&](Screen& screen) {
            auto& s = dynamic_cast<frmDj01&>(screen);
            SetToggle(s, s.chkDj, !lines);
            SetToggle(s, s.chkDjMx, lines);
            Click(s, s.cmdList);
            clerk->view.boxes.clear();
            act(s);
        });
        Screen& list = ScreenNamed("frmDj01");
        list.SetProperty("invType", 99);
        ShowModal(list);
    }
    std::vector<std::string> Numbers() const {
        std::vector<std::string> numbers;
        for (const TemplatePrintJob& job : printed->jobs)
            numbers.push_back(job.number);
        return numbers;
    }
    BatchPrinter* printed = nullptr;
    std::unique_ptr<Printer> before;
};
ON_BOTH_ENGINES(PrintBatch);

TEST_P(PrintBatch, PrintsEachAsItsScreenDoes) {
    const int first = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}}});
    clerk->Save({.type = 1, .customer = "G002", .lines = {{"MB001", 2, 300}, {"CPU001", 1, 400}}});
    clerk->Save({.type = 0, .warehouse = "总部仓", .lines = {{"CPU001", 5, 400}}});
    const auto books = Books();
    clerk->Open(DocAction::Query, 1, first, [](frmDj02& s) { Click(s, s.cmdPrint2); });
    List([&](frmDj01& s) {
        SelectRows(s, s.Grid1, {1, 2, 3});
        Click(s, s.cmdPrintAll);
        EXPECT_TRUE(clerk->view.boxes.empty()) << clerk->LastBox();
    });
    ASSERT_EQ(printed->jobs.size(), 3u);
    EXPECT_EQ(std::set<int>({printed->jobs[0].type, printed->jobs[1].type, printed->jobs[2].type}),
              (std::set<int>{0, 1}));
    const auto same = std::ranges::find(printed->jobs, printed->single->number, &TemplatePrintJob::number);
    ASSERT_NE(same, printed->jobs.end());
    EXPECT_EQ(same->fields, printed->single->fields);
    EXPECT_EQ(same->further, printed->single->further);
    EXPECT_EQ(same->lines, printed->single->lines);
    EXPECT_EQ(same->layout, printed->single->layout);
    EXPECT_EQ(Changes(books, Books()), Lines());
}

TEST_P(PrintBatch, OneRowAndTheLinesOfADocumentAreOneDocument) {
    clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}, {"MB001", 1, 300}}});
    List([&](frmDj01& s) { Click(s, s.cmdPrintAll); });
    EXPECT_EQ(Numbers(), Lines()); // nothing is selected
    EXPECT_EQ(clerk->LastBox(), "未有可供打印的数据记录！");
    List([&](frmDj01& s) {
        SelectRow(s, s.Grid1, 1);
        Click(s, s.cmdPrintAll);
    });
    EXPECT_EQ(Numbers(), (Lines{"20261105RK001"}));
    List(
        [&](frmDj01& s) {
            ASSERT_EQ(s.Grid2.RowCount(), 2);
            SelectRows(s, s.Grid2, {1, 2});
            Click(s, s.cmdPrintAll);
        },
        true);
    EXPECT_EQ(Numbers(), (Lines{"20261105RK001"}));
}

TEST_P(PrintBatch, NamesWhatCannotBePrintedAndPrintsTheRest) {
    const int gone = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}}});
    const int empty = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 6, 400}}});
    clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 7, 400}}});
    List([&](frmDj01& s) {
        Do("Delete From tJXC_CkDj01 Where fInvID=" + std::to_string(gone));
        Do("Delete From tJXC_CkDj02 Where fInvID=" + std::to_string(empty));
        SelectRows(s, s.Grid1, {1, 2, 3});
        Click(s, s.cmdPrintAll);
    });
    EXPECT_EQ(Numbers(), (Lines{"20261105RK003"}));
    EXPECT_EQ(clerk->LastBox(), "有 2 张单据没有打印：\n\n20261105RK001：该[单号]已不存在!\n"
                                "20261105RK002：未有可供打印的数据记录！");
}

// The closed book holds a document under a key that an open one has too.
TEST_P(PrintBatch, DocumentsOfTheClosedBookAreReadThere) {
    const int open = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}}});
    const std::string key = std::to_string(open);
    Do("Insert Into tJXC_CkDj_Bak01 "
       "(fInvID,fInvType,fInvNo,fInvDate,fKhID,fCkName,fInvHb,fInvHbDl,fInvJE,fInvSHR,"
       "fMonth) Select fInvID,1,'20261020RK007'," +
       Day("10/20/2026") + ",fKhID,fCkName,fInvHb,1,900,''," + Day("10/01/2026") +
       " From tJXC_CkDj01 Where fInvID=" + key);
    Do("Insert Into tJXC_CkDj_Bak02 "
       "(fInvID,fInv1,fRowID,fInvInOut,fInvNo,fInvDate,fKhID,fCkName,fCpID,fInvSL,fInvDJ,"
       "fInvJE,fInvHb,fInvHbDl,fMonth) Select fInvID,0,1,1,'20261020RK007'," +
       Day("10/20/2026") + ",fKhID,fCkName,fCpID,2,450,900,fInvHb,1," + Day("10/01/2026") +
       " From tJXC_CkDj02 Where fInvID=" + key);
    List([&](frmDj01& s) {
        SetToggle(s, s.chkJz, true);
        Click(s, s.cmdList);
        SelectRow(s, s.Grid1, 1);
        Click(s, s.cmdPrintAll);
        EXPECT_TRUE(clerk->view.boxes.empty()) << clerk->LastBox();
    });
    ASSERT_EQ(Numbers(), (Lines{"20261020RK007"}));
    ASSERT_EQ(printed->jobs[0].lines.size(), 1u);
    EXPECT_EQ(printed->jobs[0].lines[0][3], "2.00");
}

// Somebody who thinks better of it at the second document.
class StoppingView : public ScriptedView {
  public:
    bool StopAsked() override { return ++asked == 2; }
    int asked = 0;
};

TEST_P(PrintBatch, CanBeStopped) {
    for (int i = 0; i < 3; ++i)
        clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 1.0 + i, 400}}});
    List([&](frmDj01& s) {
        SelectRows(s, s.Grid1, {1, 2, 3});
        StoppingView view;
        const ViewInUse inUse(view);
        Click(s, s.cmdPrintAll);
        ASSERT_EQ(view.boxes.size(), 1u);
        EXPECT_EQ(view.boxes[0].text, "打印已停止，没有单据打印。");
    });
    EXPECT_EQ(Numbers(), Lines());
}

TEST_P(PrintBatch, MarkedRowsStayWithTheirRows) {
    for (int i = 0; i < 3; ++i)
        clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 1.0 + i, 400}}});
    List([&](frmDj01& s) {
        SelectRows(s, s.Grid1, {1, 2});
        s.Grid1.Sort(2, false);
        EXPECT_EQ(s.Grid1.SelectedRows(), (std::vector{2, 3}));
        SelectRow(s, s.Grid1, 1);
        EXPECT_EQ(s.Grid1.SelectedRows(), (std::vector{1}));
        EXPECT_THROW(SelectRows(s, s.Grid1, {1, 9}), GestureRefused);
    });
}

} // namespace

} // namespace jxc::test
