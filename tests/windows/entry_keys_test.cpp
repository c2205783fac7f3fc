// Document entry by keys alone: how many a receipt takes, and what the fields do not take.
#include <QTest>

#include "documents/frmDj02.h"
#include "host/window/main_window.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class EntryKeys : public Windows {
  protected:
    void TypeReceipt() {
        ASSERT_EQ(person.Focus(), "dtpInvDate");
        person.keys = 0;
        person.Press(Qt::Key_Return); // date
        person.Press(Qt::Key_Return); // number
        person.Press(Qt::Key_Return); // order
        person.Enter("G001");
        EXPECT_EQ(person.Focus(), "cboKhList");
        person.Press(Qt::Key_Return);
        person.Press(Qt::Key_Return); // address
        EXPECT_EQ(person.Boxes(),
                  Texts{"深圳市芯源电子有限公司：保存该供应商发货地址\n\n深圳市福田区华强路18号 ？"});
        ASSERT_EQ(person.Focus(), "cboCkName");
        EXPECT_EQ(S(person.Find<QComboBox>("cboCkName").currentText()), "总部仓");
        while (person.Focus() != "Grid2" && person.keys < 40)
            person.Press(Qt::Key_Return);
        headKeys = person.keys;
        for (const char* cell : {"CPU001", "10",  "400",  "CPU002", "20",  "610",  "CPU003", "12", "880.5",
                                 "CPF001", "30",  "60",   "CPF004", "100", "6.25", "MB001",  "15", "360",
                                 "MEM001", "50",  "90.5", "SSD001", "25",  "117",  "HDD001", "8",  "265.4",
                                 "CAB001", "200", "3.1"})
            person.Enter(cell);
        EXPECT_EQ(person.Text("txtSum"), "44784.20");
        person.Answer(Qt::Key_Return);
        person.Answer(Qt::Key_Escape);
        person.Press(Qt::Key_F9);
        entryKeys = person.keys;
        EXPECT_EQ(person.Boxes(),
                  (Texts{"入库单：新增：20261105RK001，确定？", "单据新增完毕。打印本张单据？"}));
        EXPECT_EQ(person.Focus(), "dtpInvDate");
        person.Press(Qt::Key_Escape);
        person.Press(Qt::Key_Escape);
    }
    int headKeys = 0;
    int entryKeys = 0;
};

TEST_F(EntryKeys, ReceiptOfTenLinesFromTheDateToTheBooks) {
    MainWindow window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window) && window.OpenCompanyOf(company.Address(), ""));
    person.Next([&] { // the list of receipts
        EXPECT_EQ(person.Boxes(), Texts{"未有符合条件的单据记录！"});
        person.Next([&] { TypeReceipt(); });
        person.Press(Qt::Key_F6);
        ASSERT_EQ(person.Cell("Grid1", 1, 2), "20261105RK001");
        EXPECT_EQ(person.Focus(), "Grid1");
        person.Press(Qt::Key_Down); // to the row
        person.Next([&] {
            EXPECT_EQ(person.Focus(), "cmdSave");
            person.Press(Qt::Key_Return);
            EXPECT_EQ(person.Focus(), "cmdQuit"); // there is nothing to save any more
            person.Press(Qt::Key_Return);
        });
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(),
                  (Texts{"20261105RK001：单据审核，系统将同时进行库存数刷新、往来帐处理等操作，确定？",
                         "20261105RK001：单据审核完毕！"}));
        person.Press(Qt::Key_Escape);
        person.Press(Qt::Key_Escape);
    });
    person.Find("screens").setFocus(); // a company without an approved document offers its first steps before
    for (int i = 0; i < 3; ++i)        // past plan, enquiry and order
        person.Press(Qt::Key_Down);
    person.Press(Qt::Key_Return);

    // An Enter for each of the 12 fields from the date to the return mark and the supplier's 4 characters;
    // one more as the supplier's address is new to its list.
    EXPECT_EQ(headKeys, 12 + 4 + 1);
    // The lines' 115 characters and an Enter for each of their 30 cells; F9 and two answers.
    EXPECT_EQ(entryKeys, headKeys + 115 + 30 + 3);
    EXPECT_EQ(Rows("select c.fCpCode,b.fInvSL,b.fInvDJ,b.fInvJE from tJXC_CkDj02 b Left Join tJXC_Cp c"
                   " On b.fCpID=c.fCpID Order By b.fRowID"),
              (Texts{"CPU001|10|400|4000", "CPU002|20|610|12200", "CPU003|12|880.5|10566",
                     "CPF001|30|60|1800", "CPF004|100|6.25|625", "MB001|15|360|5400", "MEM001|50|90.5|4525",
                     "SSD001|25|117|2925", "HDD001|8|265.4|2123.2", "CAB001|200|3.1|620"}));
    EXPECT_EQ(Rows("select fInvNo,fInvDate,fInvJE,fInvDLR,fInvSHR,fCkName from tJXC_CkDj01"),
              Texts{"20261105RK001|2026-11-05|44784.2|马文涛|马文涛|总部仓"});
    EXPECT_EQ(Rows("select b.fCpCode,a.fCkName,a.fRkSl,a.fRkJe,a.fKcSL,a.fKcDj,a.fKcJE from tJXC_CkTj a"
                   " Inner Join tJXC_Cp b On a.fCpID=b.fCpID Order By b.fCpID"),
              (Texts{"CPU001|总部仓|10|4000|10|400|4000", "CPU002|总部仓|20|12200|20|610|12200",
                     "CPU003|总部仓|12|10566|12|880.5|10566", "CPF001|总部仓|30|1800|30|60|1800",
                     "CPF004|总部仓|100|625|100|6.25|625", "MB001|总部仓|15|5400|15|360|5400",
                     "MEM001|总部仓|50|4525|50|90.5|4525", "SSD001|总部仓|25|2925|25|117|2925",
                     "HDD001|总部仓|8|2123.2|8|265.4|2123.2", "CAB001|总部仓|200|620|200|3.1|620"}));
}

TEST_F(EntryKeys, NumbersTakeNumbersOnly) {
    Enter(1, [&] {
        person.Click("txtInvHbDl");
        person.Press(Qt::Key_A, Qt::ControlModifier);
        person.Type("12xE.5e");
        EXPECT_EQ(person.Text("txtInvHbDl"), "12.5");
        person.Press(Qt::Key_Home);
        person.Press(Qt::Key_Right);
        person.Type("."); // the point moves here
        EXPECT_EQ(person.Text("txtInvHbDl"), "1.25");
        person.Press(Qt::Key_A, Qt::ControlModifier);
        person.Type("7,5"); // where the number pad has a comma
        EXPECT_EQ(person.Text("txtInvHbDl"), "7.5");
        person.Press(Qt::Key_A, Qt::ControlModifier);
        person.Compose("3a2");
        EXPECT_EQ(person.Text("txtInvHbDl"), "32");
        person.Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(person.Text("txtInvHbDl"), "32");
        person.Press(Qt::Key_Backspace);
        EXPECT_EQ(person.Text("txtInvHbDl"), "3");
        person.Press(Qt::Key_Home);
        person.Press(Qt::Key_Delete);
        EXPECT_EQ(person.Text("txtInvHbDl"), "");
        person.Click("txtSum"); // shown only
        EXPECT_EQ(person.Boxes(), Texts{"汇率必须大于 0！"});
        EXPECT_EQ(person.Text("txtInvHbDl"), "1.0000");
        person.Type("9");
        person.Compose("9");
        EXPECT_EQ(person.Text("txtSum"), "0.00");
    });
    EXPECT_EQ(person.Boxes(), Texts{});
}

TEST_F(EntryKeys, CommaOfTheNumberPadIsThePoint) {
    Enter(1, [&] {
        person.ClickCell("Grid2", 1, line::kCode);
        for (const char* typed : {"CPU001", "2,5", "6,5"})
            person.Enter(typed);
        EXPECT_EQ(person.Cell("Grid2", 1, line::kAmount), "16.25");
        person.Answer(Qt::Key_D);
        person.Click("cmdQuit");
        person.Boxes();
    });
}

TEST_F(EntryKeys, NumberFieldCountsBytes) {
    Enter(1, [&] {
        person.Click("txtNo");
        EXPECT_EQ(person.Text("txtNo"), "20261105RK001");
        person.Press(Qt::Key_A, Qt::ControlModifier);
        QApplication::clipboard()->setText("123456789012345678901"); // one byte more than it takes
        person.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(person.Boxes(), Texts{"文本太小,无法容纳剪贴板数据."});
        EXPECT_EQ(person.Text("txtNo"), "20261105RK001");
        EXPECT_EQ(person.Focus(), "txtNo");
        person.Press(Qt::Key_Home);
        person.Compose("单号六"); // 6 bytes before 13
        person.Compose("中");     // 2 where 1 is left
        EXPECT_EQ(person.Text("txtNo"), "单号六20261105RK001");
        person.Type("XY"); // the second is too much
        EXPECT_EQ(person.Text("txtNo"), "单号六X20261105RK001");
        person.Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(person.Text("txtNo"), "单号六X20261105RK001");
    });
}

TEST_F(EntryKeys, CellsTakeWhatTheirColumnsTake) {
    Enter(1, [&] {
        person.ClickCell("Grid2", 1, line::kCode);
        person.Enter("CPU002");
        EXPECT_EQ(person.Cell("Grid2", 1, line::kPrice), "620.00"); // its cost price
        person.Type("x1.2.35");
        person.Press(Qt::Key_Z, Qt::ControlModifier);
        person.Press(Qt::Key_Y, Qt::ControlModifier);
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Cell("Grid2", 1, line::kQuantity), "1.23");
        person.Enter("600");
        EXPECT_EQ(person.Cell("Grid2", 1, line::kAmount), "738.00");
        person.ClickCell("Grid2", 1, line::kAmount); // worked out, not typed
        person.Type("5");
        EXPECT_EQ(person.Cell("Grid2", 1, line::kAmount), "738.00");
        person.ClickCell("Grid2", 1, line::kMemo1);
        person.Compose(QString("备").repeated(26)); // 52 bytes of 50
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Cell("Grid2", 1, line::kMemo1), "");
        person.ClickCell("Grid2", 1, line::kMemo1);
        person.Compose(QString("备").repeated(25));
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Cell("Grid2", 1, line::kMemo1).size(), 75U); // 3 bytes each in a text
    });
}

} // namespace

} // namespace jxc::test
