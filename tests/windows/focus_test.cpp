// Where the focus may go: fields that do not let it leave, the grid that wants a warehouse first, the ways
// out of a window, and a routine that fails.
#include "controls/gestures.h"
#include "documents/document_list.h"
#include "documents/frmDj01.h"
#include "documents/frmDj02.h"
#include "session/company/open_connection.h"
#include "session/session.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class Focus : public Windows {
  protected:
    const Texts quote{"文本错误: 文本中不可含有<引号>或<单引号> !"};
    const Texts noWarehouse{"请选择“仓库”！"};
};

TEST_F(Focus, StaysInAFieldWithAQuote) {
    Enter(1, [&] {
        person.Click("txtHtNo");
        person.Type("A'B");
        const auto kept = [&](const char* way) {
            EXPECT_EQ(person.Boxes(), quote) << way;
            EXPECT_EQ(person.Focus(), "txtHtNo") << way;
            EXPECT_EQ(person.Shown<frmDj02>().Focus()->name, "txtHtNo") << way;
        };
        for (const char* field : {"txtNo", "dtpInvDate", "cboKhAdd", "chkTh", "txtMemo"}) {
            person.Click(field);
            kept(field);
        }
        EXPECT_FALSE(person.Find<QCheckBox>("chkTh").isChecked());
        person.ClickCell("Grid2", 1, line::kCode);
        kept("grid");
        for (const int key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down}) {
            person.Press(key);
            kept("key");
        }
        const int rows = person.Shown<frmDj02>().Grid2.RowCount();
        person.Click("cmdAddRow"); // does not act
        kept("button");
        person.Press(Qt::Key_F6);
        kept("function key");
        EXPECT_EQ(person.Shown<frmDj02>().Grid2.RowCount(), rows);
        person.Press(Qt::Key_Backspace);
        person.Press(Qt::Key_Backspace);
        person.Click("cmdAddRow");
        EXPECT_EQ(person.Boxes(), Texts{});
        EXPECT_EQ(person.Shown<frmDj02>().Grid2.RowCount(), rows + 1);
    });
}

TEST_F(Focus, ListsAreLeftAloneByARefusedClick) {
    Enter(1, [&] {
        person.Click("txtHtNo");
        person.Type("'");
        person.Click("cboCkName");
        EXPECT_EQ(person.Boxes(), quote);
        EXPECT_EQ(person.Focus(), "txtHtNo");
        EXPECT_FALSE(QApplication::activePopupWidget());
    });
}

TEST_F(Focus, GridWantsAWarehouseFirst) {
    Enter(4, [&] { // a stocktake has several to choose from
        person.ClickCell("Grid2", 1, line::kCode);
        EXPECT_EQ(person.Boxes(), noWarehouse);
        EXPECT_EQ(person.Focus(), "cboCkName");
        person.Click("cboInvJbr");
        person.Press(Qt::Key_Return); // to the grid: a stocktake has no return mark
        EXPECT_EQ(person.Boxes(), noWarehouse);
        EXPECT_EQ(person.Focus(), "cboCkName");
        person.Press(Qt::Key_Down);
        person.ClickCell("Grid2", 1, line::kCode);
        EXPECT_EQ(person.Boxes(), Texts{});
        EXPECT_EQ(person.Focus(), "Grid2");
    });
}

TEST_F(Focus, DateIsSetRightWhenItIsLeft) {
    Enter(1, [&] {
        EXPECT_EQ(person.Focus(), "dtpInvDate");
        person.Enter("20261031");
        EXPECT_EQ(person.Boxes(), Texts{"本期起始日期为：2026-11-01"});
        EXPECT_EQ(person.Text("txtNo"), "20261101RK001");
        EXPECT_EQ(person.Focus(), "txtNo");
        auto& edit = person.Find<QDateEdit>("dtpInvDate");
        EXPECT_EQ(edit.date(), QDate(2026, 11, 1));
        person.Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(person.Focus(), "dtpInvDate");
        person.Press(Qt::Key_Delete);
        EXPECT_FALSE(person.Shown<frmDj02>().dtpInvDate.date);
        EXPECT_EQ(S(edit.text().trimmed()), "");
        person.Enter("20261107");
        EXPECT_EQ(edit.date(), QDate(2026, 11, 7));
        EXPECT_EQ(person.Text("txtNo"), "20261107RK001");
        person.Click("dtpInvDate");
        person.Press(Qt::Key_Delete);
        person.Click("txtMemo"); // an empty date becomes today
        EXPECT_EQ(edit.date(), QDate(2026, 11, 5));
        EXPECT_EQ(person.Text("txtNo"), "20261105RK001");
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

TEST_F(Focus, WaysOut) {
    const std::vector<std::function<void()>> ways{
        [&] { person.Press(Qt::Key_Escape); }, [&] { person.Press(Qt::Key_Return); },
        [&] { person.Click("cmdQuit"); }, [&] { person.Front().close(); }};
    for (const auto& way : ways)
        Enter(1, [&] {
            Screen& screen = person.Shown<frmDj02>();
            person.Press(Qt::Key_Escape);
            EXPECT_EQ(person.Focus(), "cmdQuit");
            EXPECT_TRUE(screen.IsOpen());
            way();
            EXPECT_FALSE(screen.IsOpen());
            EXPECT_FALSE(QApplication::activeModalWidget());
        });
}

TEST_F(Focus, FailedRoutineIsToldAndTheWindowGoesOn) {
    Save(1, true);
    Open(4, -1, [&] {
        EXPECT_EQ(person.Cell("Grid1", 1, 1), "CPU002");
        session.Conn->Close();
        person.Click("cmdQuery");
        const Texts told = person.Boxes();
        ASSERT_EQ(told.size(), 1U);
        EXPECT_NE(told[0], "");
        OpenConnection(session.SQLData, *session.Conn, session.UserPath, "", "", "");
        person.Click("cmdQuery");
        EXPECT_EQ(person.Boxes(), Texts{});
        EXPECT_EQ(person.Cell("Grid1", 2, 1), "MEM002");
    });
}

TEST_F(Focus, FunctionKeyTakesWhatIsTypedAndGoesWhereTheScreenSaysTo) {
    Enter(1, [&] {
        auto& s = person.Shown<frmDj02>();
        const auto typedIntoNewRow = [&](int row, const char* code) {
            ASSERT_EQ(s.Grid2.RowCount(), row);
            EXPECT_EQ(person.Focus(), "Grid2");
            person.Enter(code);
            EXPECT_EQ(s.Grid2.Text(row, line::kCode), code);
        };
        person.ClickCell("Grid2", 1, line::kCode);
        person.EnterEach({"CPU001", "3"});
        person.Type("400"); // the price is still being typed
        person.Press(Qt::Key_F6);
        EXPECT_EQ(person.Cell("Grid2", 1, line::kPrice), "400.00");
        typedIntoNewRow(2, "CPU002");
        person.ClickCell("Grid2", 2, line::kMemo1); // behind the cells that Enter walks through
        person.Press(Qt::Key_F6);
        typedIntoNewRow(3, "CPU003");
        for (const auto& [field, code] : {std::pair("txtHtNo", "CPF001"),
                                          {"txtMemo", "MEM001"},
                                          {"cboInvMemo", "SSD001"},
                                          {"dtpInvDate", "HDD001"},
                                          {"chkTh", "CAB001"},
                                          {"cmdSave", "MB001"}}) {
            const int rows = s.Grid2.RowCount();
            person.Find(field).setFocus(Qt::TabFocusReason);
            person.Press(Qt::Key_F6);
            typedIntoNewRow(rows + 1, code);
        }
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

// Of two windows the one in front is meant, and of two pages the one that is shown.
TEST_F(Focus, FunctionKeysActOnWhatIsSeen) {
    Open(11, 1, [&] {
        auto& list = person.Shown<frmDj01>();
        int asked = 0;
        list.cmdList.onClick = [&] { ++asked; };
        person.Press(Qt::Key_F5); // the list is shown, the button stands on the page of filters
        EXPECT_EQ(asked, 0);
        ChooseTab(list, list.SSTab1, kFilterTab);
        dynamic_cast<ScreenWindow&>(person.Front()).Refresh();
        person.Click("txtDh");
        person.Type("RK");
        person.Press(Qt::Key_F5);
        EXPECT_EQ(asked, 1);
        EXPECT_EQ(list.txtDh.text, "RK");
        Screen& beneath = list;
        person.Next([&] {
            person.Press(Qt::Key_F5); // no such key in this window
            EXPECT_EQ(asked, 1);
            EXPECT_TRUE(beneath.IsOpen());
        });
        ChooseTab(list, list.SSTab1, 0);
        dynamic_cast<ScreenWindow&>(person.Front()).Refresh();
        person.Press(Qt::Key_F6); // a new document over the list
    });
}

} // namespace

} // namespace jxc::test
