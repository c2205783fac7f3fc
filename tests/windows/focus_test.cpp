// Where the focus may go: fields that do not let it leave, the grid that wants a warehouse first, the ways
// out of a window, and a routine that fails.
#include "documents/frmDj02.h"
#include "session/database/open_connection.h"
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
        for (int i = 0; i < 2; ++i) // over the return mark to the grid
            person.Press(Qt::Key_Return);
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

} // namespace

} // namespace jxc::test
