// What the document list shows and hands on beyond its texts: colours, the menu of a row, the picker over a
// document being entered, print-outs, the choice of columns.
#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "documents/document_list.h"
#include "documents/frmDj02.h"
#include "session/components.h"
#include "session/session.h"
#include "settings/frmBrief.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

class DocumentList : public OnOpenCompany {
  protected:
    // Opens the list as a host or a document does, and works on it.
    void Show(int mode, bool lines, const std::function<void(frmDj01&)>& work) {
        auto& s = static_cast<frmDj01&>(ScreenNamed("frmDj01"));
        s.SetProperty("invType", mode);
        s.chkDj.value = !lines;
        s.chkDjMx.value = lines;
        clerk->view.OnScreen("frmDj01", [&](Screen& screen) { work(static_cast<frmDj01&>(screen)); });
        ShowModal(s);
    }
    void Receive(const std::string& code, bool approved) {
        const int key = clerk->Save({.type = 1, .customer = "G001", .lines = {{code, 5, 400}}});
        if (approved) {
            EXPECT_TRUE(clerk->Approve(1, key));
        }
    }
};
ON_BOTH_ENGINES(DocumentList);

constexpr Color kApproved = 0xE0E0E0;
constexpr Color kGrey = 0x808080;
constexpr Color kRed = 255;

TEST_P(DocumentList, ColoursTellStateAndReturns) {
    Receive("CPU001", true);
    Receive("CPU002", false);
    Receive("CPU003", false);
    Receive("CPU004", false);
    Do("Update tJXC_CkDj01 Set fInvType=-1 Where fInvID=3 Or fInvID=4");
    Do("Update tJXC_CkDj01 Set fFlag=1 Where fInvID=4 Or fInvID=5");
    Show(1, false, [](frmDj01& s) {
        Grid& grid = s.Grid1;
        ASSERT_EQ(grid.RowCount(), 4);
        EXPECT_EQ(grid.BackColor(1, 1), kApproved);
        EXPECT_EQ(grid.BackColor(1, 11), kApproved);
        EXPECT_EQ(grid.BackColor(2, 1), kNormalColor);
        EXPECT_EQ(grid.TextColor(1), kNormalColor);
        EXPECT_EQ(grid.TextColor(2), kRed);
        EXPECT_EQ(grid.TextColor(3), kGrey); // a stopped return
        EXPECT_EQ(grid.TextColor(4), kGrey);
        ClickHeading(s, grid, 2);
        ClickHeading(s, grid, 2);
        EXPECT_EQ(grid.BackColor(4, 1), kApproved);
        EXPECT_EQ(grid.TextColor(3), kRed);
    });
    Show(1, true, [](frmDj01& s) {
        Click(s, s.cmdList);
        ASSERT_EQ(s.Grid2.RowCount(), 4);
        EXPECT_EQ(s.Grid2.BackColor(1, 1), kApproved);
        EXPECT_EQ(s.Grid2.BackColor(2, 1), kNormalColor);
        EXPECT_EQ(s.Grid2.TextColor(2), kNormalColor);
    });
}

TEST_P(DocumentList, PickerAnswersWithTheDocumentChosen) {
    Receive("CPU001", true);
    Receive("CPU002", false);
    auto& s = static_cast<frmDj01&>(ScreenNamed("frmDj01"));
    const auto pick = [&](const std::function<void()>& choose) {
        Show(201, false, [&](frmDj01&) {
            EXPECT_EQ(s.cboInvType.text, "1  入库单");
            EXPECT_TRUE(s.cmdSelect.visible);
            EXPECT_TRUE(s.CmdAction[0].visible); // on the filter tab, too
            Click(s, s.cmdList);
            EXPECT_EQ(s.Grid1.RowCount(), 2);
            choose();
        });
        return s.GetProperty("DjCode").AsText() + "|" + s.GetProperty("DjJz").AsText();
    };
    const auto asked = clerk->view.screens.size();
    EXPECT_EQ(pick([&] { DoubleClickRow(s, s.Grid1, 2); }), "20261105RK002|0");
    EXPECT_FALSE(s.IsOpen());
    EXPECT_EQ(pick([&] {
                  SelectRow(s, s.Grid1, 1);
                  SetToggle(s, s.chkJz, true);
                  Click(s, s.cmdSelect);
              }),
              "20261105RK001|1");
    EXPECT_EQ(pick([&] { Click(s, s.cmdSelect); }), "|0"); // no row, no choice
    EXPECT_EQ(clerk->view.screens.size(), asked + 3);      // nothing was opened beside the picker
}

TEST_P(DocumentList, PickerLeavesTheDocumentBeneathAlone) {
    Receive("CPU001", false);
    clerk->Enter({.type = 2, .customer = "X001", .lines = {{"CPU002", 3, 700}}}, [&](frmDj02& entry) {
        std::string opened;
        clerk->view.OnScreen("frmDj02", [&](Screen& screen) {
            EXPECT_NE(&screen, &entry);
            opened = static_cast<frmDj02&>(screen).Number();
        });
        Show(201, false, [&](frmDj01& s) {
            Click(s, s.cmdList);
            SelectRow(s, s.Grid1, 1);
            Click(s, s.CmdAction[0]);
        });
        EXPECT_EQ(opened, "20261105RK001");
        EXPECT_TRUE(entry.IsOpen());
        EXPECT_EQ(entry.invType, 2);
        EXPECT_EQ(entry.Grid2.Text(1, 1), "CPU002");
    });
}

TEST_P(DocumentList, PrintsUnderItsFilters) {
    class Recorder : public Printer {
      public:
        explicit Recorder(std::vector<std::string>& told) : told_(told) {}
        void Print(const GridPrintJob& job) override {
            told_ = {job.title, job.typeName, std::to_string(job.grid->RowCount())};
            told_.insert(told_.end(), job.header.begin(), job.header.end());
        }
        void Print(const TemplatePrintJob&) override {}

      private:
        std::vector<std::string>& told_;
    };
    std::vector<std::string> told;
    auto builtIn = std::exchange(ComponentsInUse().printer, std::make_unique<Recorder>(told));
    session.CompanyFieldList = {"<单位>", "远帆"};
    Receive("CPU001", false);
    Show(1, false, [&](frmDj01& s) {
        Click(s, s.cmdPrint);
        const auto headed = [](const std::string& from, const std::string& to, const std::string& memo) {
            return Lines{"单据查询", "lzJxc_Dj01", "1",        "<单位>", "远帆",     "查询内容", "查询",
                         "起始日期", from,         "截止日期", to,       "仓库备注", memo};
        };
        // The dates stand in their fields and a warehouse in its list, but nothing was asked by them.
        EXPECT_EQ(told, headed("", "", ""));
        for (CheckBox* box : {&s.chkDate, &s.chkCk[0]})
            box->value = true;
        Click(s, s.cmdPrint); // what is listed was asked for without them
        EXPECT_EQ(told, headed("", "", ""));
        Click(s, s.cmdList);
        Click(s, s.cmdPrint);
        EXPECT_EQ(told, headed("2026-11-01", "2026-11-30", "进货、批发出货"));
        s.dtpDate.first.date = Today();
        s.dtpDate.last.date.reset();
        s.chkCk[0].value = false;
        Click(s, s.cmdList);
        Click(s, s.cmdPrint);
        EXPECT_EQ(told, headed("2026-11-05", "", ""));
    });
    told.clear();
    Show(1, true, [&](frmDj01& s) {
        ChooseTab(s, s.SSTab1, kLineTab);
        Click(s, s.cmdPrint); // nothing listed, nothing printed
        EXPECT_TRUE(told.empty());
        Click(s, s.cmdList);
        Click(s, s.cmdPrint);
        EXPECT_EQ(told.at(0) + told.at(1), "单据明细查询lzJxc_Dj02");
    });
    EXPECT_EQ(session.CompanyFieldList, (Lines{"<单位>", "远帆"}));
    ComponentsInUse().printer = std::move(builtIn);
}

// The captions of the columns that can be seen.
std::string Heads(const Grid& grid) {
    std::string heads;
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        if (!grid.Column(column).hidden)
            heads += grid.Column(column).caption + " ";
    return heads;
}

TEST_P(DocumentList, OrdersAndNamesItsColumnsAsTheCompanyDoes) {
    clerk->view.OnScreen("frmBrief", [](Screen& screen) {
        auto& columns = static_cast<frmBrief&>(screen);
        SelectRow(columns, columns.Grid1, 2);
        Click(columns, columns.cmdUp);
        Click(columns, columns.cmdOk);
    });
    const int receipt = clerk->Save(TypicalDocument(1));
    ASSERT_GT(receipt, 0);
    Show(201, false, [](frmDj01& s) {
        Click(s, s.cmdList);
        ClickHeading(s, s.Grid1, 2);
        Click(s, s.cmdColSet);
        EXPECT_EQ(Heads(s.Grid1).rfind("单号↑ 日期 客户 ", 0), 0U) << Heads(s.Grid1);
        EXPECT_EQ(s.Grid1.Text(1, 1), "20261105RK001");
        SelectRow(s, s.Grid1, 1);
        Click(s, s.cmdSelect);
        EXPECT_EQ(s.DjCode, "20261105RK001"); // wherever its column stands
    });
    Conn().Execute("Update rptListDetail Set FieldName='FINVDATE',FieldName_0='单据日',FieldName_1='單據日'"
                   " Where FieldName='fInvDate'");
    Conn().Execute(
        "Insert Into rptListDetail (ftable,fieldID,FieldName,FieldName_0,FieldName_1,FieldSelected)"
        " Values ('lzJxc_Dj02',1,'fInvOther1','另名','另名',1)");
    ResetScreens();
    Show(99, false, [](frmDj01& s) {
        EXPECT_EQ(Heads(s.Grid1).rfind("单号 单据日 客户 ", 0), 0U) << Heads(s.Grid1);
        EXPECT_EQ(Heads(s.Grid2).rfind("备注 日期 单据类 ", 0), 0U)
            << Heads(s.Grid2); // named in the parameters
    });
    session.Language = 1;
    Show(99, false,
         [](frmDj01& s) { EXPECT_EQ(Heads(s.Grid1).rfind("单号 單據日 ", 0), 0U) << Heads(s.Grid1); });
    session.Language = 0;
}

TEST_P(DocumentList, OfAllTypesLooksInEveryWarehouse) {
    Conn().Execute("Update tJXC_InvSet Set fSetNoUse_=1 Where fSetNo=-1");
    Show(99, false, [](frmDj01& s) {
        EXPECT_EQ(s.cboCk[0].items, (Lines{"总部仓", "零售门市", "代销仓", "生产仓"}));
        EXPECT_FALSE(s.cboCk[1].visible);
        SetToggle(s, s.chkInvType, true);
        ChooseItem(s, s.cboInvType, ItemWithText(s.cboInvType, "5  零售单"));
        EXPECT_EQ(s.cboCk[0].items, Lines{"零售门市"});
    });
}

TEST_P(DocumentList, HidesTheColumnsThatTheCompanyDoesNotWant) {
    clerk->view.OnScreen("frmBrief", [](Screen& screen) {
        auto& columns = static_cast<frmBrief&>(screen);
        EXPECT_EQ(columns.title, "栏目设置");
        ASSERT_EQ(columns.Grid1.RowCount(), 11); // those that can be seen
        EXPECT_EQ(columns.Grid1.Text(6, 2), "订单号");
        TypeCell(columns, columns.Grid1, 6, 1, "0");
        Click(columns, columns.cmdOk);
    });
    Show(1, false, [](frmDj01& s) {
        EXPECT_FALSE(s.Grid1.Column(6).hidden);
        Click(s, s.cmdColSet);
        EXPECT_TRUE(s.Grid1.Column(6).hidden);
        EXPECT_FALSE(s.Grid1.Column(7).hidden);
        EXPECT_TRUE(s.Grid1.Column(13).hidden);
    });
    ResetScreens();
    Show(99, false, [](frmDj01& s) {
        EXPECT_TRUE(s.Grid1.Column(6).hidden);
        EXPECT_FALSE(s.Grid2.Column(6).hidden);
        EXPECT_FALSE(s.Grid2.Column(13).hidden); // "备注"
        EXPECT_TRUE(s.Grid2.Column(14).hidden);  // without a name
    });
}

} // namespace

} // namespace jxc::test
