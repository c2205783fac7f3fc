// Lines from elsewhere, by keys and by clicks: each panel takes the cursor when it opens, and Esc gives it back.
#include "documents/frmDj01.h"
#include "documents/frmDj02.h"
#include "master/frmCpTj.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

const std::string kQuestion = "表中已有产品记录，[是]-追加调入；[否]-调入前清空原数据记录？";

class LoadLines : public Windows {
  protected:
    void SaveSource() {
        DocumentInput source = TypicalDocument(DocType::Receipt);
        source.number = "SRC1";
        ASSERT_NE(Save(source), 0);
    }
    int Lines() const { return person.Shown<frmDj02>().Grid2.RowCount(); }
};

TEST_F(LoadLines, ADocumentIsLoadedByKeys) {
    SaveSource();
    Enter(DocType::Receipt, [&] {
        person.Click("txtNo");
        person.Press(Qt::Key_F2);
        EXPECT_EQ(person.Focus(), "cboInvType2");
        person.Press(Qt::Key_Escape); // back where the person was
        EXPECT_EQ(person.Focus(), "txtNo");
        EXPECT_FALSE(person.Find("fraLoad").isVisible());
        person.Press(Qt::Key_F2);
        person.Type("rkd"); // its name in pinyin
        EXPECT_EQ(S(person.Find<QComboBox>("cboInvType2").currentText()), "1  入库单");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Focus(), "txtNo2");
        person.Enter("SRC1");
        EXPECT_EQ(person.Focus(), "cmdLoadDj2");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Boxes(), Texts{});
        EXPECT_EQ(Lines(), 2);
        EXPECT_EQ(person.Cell("Grid2", 2, line::kCode), "MEM002");
        // ready for the next number: typed over the one that is there
        EXPECT_EQ(person.Focus(), "txtNo2");
        person.Enter("SRC2");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Boxes(), Texts{"入库单：单据单号 SRC2 不存在 ！"});
        EXPECT_EQ(person.Focus(), "txtNo2");
        person.Enter("SRC1");
        person.Answer(Qt::Key_Y);
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Boxes(), Texts{kQuestion});
        EXPECT_EQ(person.Cell("Grid2", 1, line::kQuantity), "6.00");
        person.Press(Qt::Key_Escape); // to the lines
        EXPECT_EQ(person.Focus(), "Grid2");
        EXPECT_FALSE(person.Find("fraLoad").isVisible());
        person.Answer(Qt::Key_D);
    });
}

// What was paid last, without a hand from the keyboard; left without taking, the line stays as it was.
TEST_F(LoadLines, TheLastPriceComesByKeys) {
    DocumentInput receipt = TypicalDocument(DocType::Receipt);
    receipt.lines = {{"CPU002", 3, 590}};
    ASSERT_NE(Save(receipt, true), 0);
    Enter(DocType::Receipt, [&] {
        person.Click("txtKhSeek");
        person.Enter("G001");
        person.Click("Grid2");
        person.EnterEach({"CPU002", "2", "1"});
        person.Press(Qt::Key_Up);
        for (const bool takes : {false, true}) {
            person.Next([&] {
                EXPECT_EQ(person.Focus(), "Grid1");
                EXPECT_EQ(person.Cell("Grid1", 1, 7), "590.00");
                if (!takes)
                    person.Press(Qt::Key_Escape); // to the button that leaves
                person.Press(Qt::Key_Return);
            });
            person.Press(Qt::Key_T, Qt::ControlModifier);
            EXPECT_EQ(person.Cell("Grid2", 1, line::kPrice), takes ? "590.00" : "1.00");
        }
        EXPECT_EQ(person.Cell("Grid2", 1, line::kAmount), "1,180.00");
        person.Answer(Qt::Key_D);
    });
}

TEST_F(LoadLines, ADocumentIsPickedByClicks) {
    SaveSource();
    Enter(DocType::Receipt, [&] {
        person.Click("cmdLoad");
        person.Find<QComboBox>("cboInvType2").setCurrentIndex(6);
        ASSERT_TRUE(person.Find<QComboBox>("cboInvType2").currentText().startsWith("1 "));
        person.Next([&] { // closed without a choice
            EXPECT_TRUE(person.Shown<frmDj01>().cmdSelect.IsUsable());
        });
        person.Click("cmdLoadDj2");
        EXPECT_EQ(person.Text("txtNo2"), "");
        EXPECT_EQ(Lines(), 1);
        person.Next([&] {
            person.Press(Qt::Key_F5);
            person.DoubleClickCell("Grid1", 1, 2);
        });
        person.Click("cmdLoadDj2");
        EXPECT_EQ(person.Text("txtNo2"), "SRC1");
        EXPECT_EQ(Lines(), 2);
        EXPECT_EQ(person.Boxes(), Texts{});
        person.Answer(Qt::Key_Escape);
        person.Click("cmdLoadDj2");
        EXPECT_EQ(person.Boxes(), Texts{kQuestion});
        EXPECT_EQ(Lines(), 2);
        EXPECT_EQ(person.Cell("Grid2", 1, line::kQuantity), "3.00");
        person.Answer(Qt::Key_D);
    });
}

TEST_F(LoadLines, AnOrdersBalanceIsLoadedByItsKey) {
    DocumentInput order = TypicalDocument(DocType::PurchaseOrder);
    order.number = "ORD1";
    ASSERT_NE(Save(order), 0);
    Enter(DocType::Receipt, [&] {
        person.Click("txtHtNo");
        person.Type("ORD1");
        person.Press(Qt::Key_F11);
        EXPECT_EQ(Lines(), 2);
        EXPECT_EQ(person.Focus(), "Grid2");
        person.Answer(Qt::Key_D);
    });
}

TEST_F(LoadLines, AKitIsPickedByKeys) {
    Enter(DocType::Assembly, [&] {
        EXPECT_TRUE(person.Find("fraLoadInv").isVisible());
        EXPECT_EQ(person.Focus(), "dtpInvDate");
        person.Press(Qt::Key_F5); // the panel goes, and the cursor stays
        EXPECT_FALSE(person.Find("fraLoadInv").isVisible());
        EXPECT_EQ(person.Focus(), "dtpInvDate");
        person.Press(Qt::Key_F5);
        EXPECT_EQ(person.Focus(), "txtTjCode");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Focus(), "txtInvSL2");
        person.Press(Qt::Key_A, Qt::ControlModifier);
        person.Enter("2");
        EXPECT_EQ(person.Focus(), "cmdLoadTj2");
        person.Next([&] {
            EXPECT_EQ(person.Focus(), "Grid1");
            person.Press(Qt::Key_Down);
            person.Press(Qt::Key_O, Qt::AltModifier);
        });
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Text("txtTjCode"), "ZZ002");
        EXPECT_EQ(person.Text("txtCpCode"), "PC002");
        EXPECT_EQ(Lines(), 8);
        EXPECT_EQ(person.Cell("Grid2", 4, line::kQuantity), "4.00"); // two of two
        person.Press(Qt::Key_Escape);
        EXPECT_EQ(person.Focus(), "Grid2");
        person.Answer(Qt::Key_D);
    });
}

TEST_F(LoadLines, AStocktakeIsListedByKeys) {
    Save(DocType::Opening, true);
    Enter(DocType::Stocktake, [&] {
        person.Press(Qt::Key_F12);
        EXPECT_EQ(person.Boxes(), Texts{"请输入[仓库] ！"});
        EXPECT_EQ(person.Focus(), "cboCkName");
        person.Find<QComboBox>("cboCkName").setCurrentIndex(0);
        person.Press(Qt::Key_F12);
        EXPECT_EQ(person.Focus(), "optPd(0)");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Focus(), "optPd(1)");
        person.Press(Qt::Key_Space);
        EXPECT_TRUE(person.Shown<frmDj02>().optPd[1].value);
        EXPECT_FALSE(person.Find<QRadioButton>("optPd(0)").isChecked());
        person.Press(Qt::Key_T, Qt::AltModifier);
        EXPECT_FALSE(person.Find("fraPdTj").isVisible());
        EXPECT_EQ(person.Focus(), "Grid2");
        EXPECT_EQ(Lines(), 2);
        person.Type("7"); // the first count
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Shown<frmDj02>().Grid2.Number(1, line::kCounted), 7);
        person.Press(Qt::Key_F12);
        person.Click("chkPd(0)");
        person.Click("chkPd(1)");
        person.Click("chkPd(2)");
        EXPECT_TRUE(person.Find<QCheckBox>("chkPd(2)").isChecked());
        person.Press(Qt::Key_Escape);
        EXPECT_EQ(person.Focus(), "Grid2");
        person.Answer(Qt::Key_D);
    });
}

} // namespace

} // namespace jxc::test
