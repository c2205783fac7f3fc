// What is being typed when something else is asked for: it is taken first, or the person is asked.
#include "documents/frmDj01.h"
#include "documents/frmDj02.h"
#include "host/company_address.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class Typing : public Windows {
  protected:
    // A receipt with one line, whose quantity is being typed.
    void BeginLine(const char* quantity) {
        person.ClickCell("Grid2", 1, line::kCode);
        person.Enter("CPU002");
        person.Type(quantity);
        ASSERT_TRUE(person.Find<QTableView>("Grid2").findChild<QLineEdit*>("cellEditor"));
    }
};

TEST_F(Typing, OpenCellIsTakenBeforeACommand) {
    Enter(1, [&] {
        person.Click("txtKhSeek");
        person.Enter("G001");
        BeginLine("7");
        person.Answer(Qt::Key_Return);
        person.Answer(Qt::Key_Escape);
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes().back(), "单据新增完毕。打印本张单据？");
    });
    EXPECT_EQ(Rows("select fCpID,fInvSL from tJXC_CkDj02 a Where fInvSL=7").size(), 1U);
}

TEST_F(Typing, OpenCellGoesWithItsOwnRow) {
    Enter(1, [&] {
        BeginLine("7");
        person.Press(Qt::Key_Return);
        person.Enter("10");
        person.Enter("MEM002");
        person.Type("5");
        person.Press(Qt::Key_F7); // delete row
        auto& grid = person.Shown<frmDj02>().Grid2;
        EXPECT_EQ(grid.Text(1, line::kCode), "CPU002");
        EXPECT_EQ(grid.Number(1, line::kQuantity), 7);
        for (int row = 2; row <= grid.RowCount(); ++row)
            EXPECT_TRUE(grid.Text(row, line::kQuantity).empty()) << row;
        person.Answer(Qt::Key_Return);
    });
}

TEST_F(Typing, HalfADateCountsWhenAFunctionKeyIsPressed) {
    Save(1);
    Open(11, 1, [&] {
        person.Press(Qt::Key_PageDown, Qt::ControlModifier); // to the filters: the lines are not offered
        EXPECT_EQ(person.Focus(), "cboInvType");
        person.Click("chkDate");
        for (const char* box : {"dtpDate(0)", "dtpDate(1)"}) {
            auto& date = person.Find<QDateEdit>(box);
            date.setFocus();
            date.setCurrentSection(QDateTimeEdit::DaySection);
            person.Press(Qt::Key_Up);
        }
        person.Find<QDateEdit>("dtpDate(0)").setFocus();
        person.Find<QDateEdit>("dtpDate(0)").setSelectedSection(QDateTimeEdit::DaySection);
        person.Type("6"); // the sixth, one day behind the document
        person.Press(Qt::Key_F5);
        EXPECT_EQ(person.Boxes(), Texts{"未有符合条件的单据记录！"});
    });
}

TEST_F(Typing, LettersChooseFromAClosedList) {
    Enter(1, [&] {
        person.Click("cboInvHb");
        QApplication::activePopupWidget() ? person.Press(Qt::Key_Escape) : void();
        person.Type("U");
        EXPECT_EQ(person.Shown<frmDj02>().cboInvHb.Chosen(), "USD");
        EXPECT_EQ(person.Find<QComboBox>("cboInvHb").currentText(), "USD");
    });
}

TEST_F(Typing, BoxOfOneLineTakesOneLineOfTheClipboard) {
    Enter(1, [&] {
        QApplication::clipboard()->setText("RK-7\nRK-8\n");
        person.Click("txtHtNo");
        person.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(person.Shown<frmDj02>().txtHtNo.text, "RK-7");
        person.Press(Qt::Key_K, Qt::ControlModifier); // would empty the widget alone
        person.Press(Qt::Key_U, Qt::ControlModifier);
        EXPECT_EQ(person.Text("txtHtNo"), "RK-7");
    });
}

TEST_F(Typing, MenuKeyMeansTheSelectedRow) {
    Save(1);
    Save(2);
    Open(11, 99, [&] {
        person.Press(Qt::Key_F5);
        person.ClickCell("Grid1", 2, 2);
        person.Next(
            [&] { EXPECT_EQ(person.MenuCaptions().front(), "生成：出库单"); }); // a receipt: behind the issue
        auto& table = person.Find<QTableView>("Grid1");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, table.viewport()->rect().center(),
                                table.viewport()->mapToGlobal(table.viewport()->rect().center()));
        QCoreApplication::sendEvent(table.viewport(), &event);
        EXPECT_EQ(person.Shown<frmDj01>().Grid1.selectedRow, 2);
    });
}

} // namespace

} // namespace jxc::test
