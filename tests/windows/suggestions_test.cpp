// What is suggested while a person types: what keys and mouse do with it, and what they must never do.
#include <QTest>

#include "documents/frmDj02.h"
#include "master/frmCp.h"
#include "stock/frmCkKc.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

constexpr int kLongEnough = 2000; // milliseconds for a list to come
constexpr int kPause = 120;       // in which one that is coming has come

class SuggestionsShown : public Windows {
  protected:
    // A receipt with its customer, the cursor in the first line's code.
    void Receipt(const std::function<void()>& work) {
        Enter(1, [&] {
            person.Click("txtKhSeek");
            person.Enter("G001");
            person.ClickCell("Grid2", 1, line::kCode);
            work();
            person.Answer(Qt::Key_D);
            person.Click("cmdQuit");
            person.Boxes();
        });
        EXPECT_EQ(Rows("select fInvID from tJXC_CkDj01 Where fInvType=1"), Texts{});
    }
    static QTableWidget* List() {
        for (auto* frame : Person::Front().findChildren<QFrame*>("label_suggestions"))
            if (frame->isVisible())
                return frame->findChild<QTableWidget*>();
        return nullptr;
    }
    static bool ListComes() {
        return QTest::qWaitFor([] { return List() != nullptr; }, kLongEnough);
    }
    static bool NoListComes() {
        QTest::qWait(kPause);
        return List() == nullptr;
    }
    // The first column of what is suggested, the row that is chosen in brackets.
    static Texts Suggested() {
        Texts texts;
        for (int row = 0; List() && row < List()->rowCount(); ++row) {
            const std::string text = S(List()->item(row, 0)->text());
            texts.push_back(row == List()->currentRow() ? "[" + text + "]" : text);
        }
        return texts;
    }
    Grid& Lines() { return person.Shown<frmDj02>().Grid2; }
    std::string Code(int row) { return Lines().Text(row, line::kCode); }
};

} // namespace

TEST_F(SuggestionsShown, AreTakenWithArrowsAndEnter) {
    Receipt([&] {
        person.Type("cpu00");
        ASSERT_TRUE(ListComes());
        EXPECT_EQ(Suggested().at(0), "CPU001");
        EXPECT_EQ(List()->horizontalHeaderItem(2)->text(), "库存数");
        person.Press(Qt::Key_Down);
        person.Press(Qt::Key_Down);
        EXPECT_EQ(Suggested().at(1), "[CPU002]");
        person.Press(Qt::Key_Up);
        EXPECT_EQ(Suggested().at(0), "[CPU001]");
        person.Press(Qt::Key_PageDown);
        EXPECT_EQ(Suggested().back(), "[CPU005]");
        person.Press(Qt::Key_Up);
        person.Press(Qt::Key_Return);
        EXPECT_EQ(List(), nullptr);
        EXPECT_EQ(Code(1), "CPU004");
        EXPECT_EQ(Lines().selectedColumn, line::kQuantity); // as after the code typed and Enter
        person.EnterEach({"5", "880"});
        EXPECT_EQ(Lines().RowCount(), 2);
        EXPECT_EQ(Lines().ShownText(1, line::kQuantity), "5.00");
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

// Who types on meets the same as ever, however slowly he types.
TEST_F(SuggestionsShown, AreNotTakenByEnterAlone) {
    Receipt([&] {
        person.Type("CPU002");
        ASSERT_TRUE(ListComes());
        person.Press(Qt::Key_Return);
        EXPECT_EQ(Code(1), "CPU002");
        person.EnterEach({"5", "880"});
        person.Type("cpu00");
        ASSERT_TRUE(ListComes());
        person.Press(Qt::Key_Down);
        person.Type("3"); // what was chosen is no more
        person.Press(Qt::Key_Return);
        EXPECT_EQ(Code(2), "CPU003");
        person.EnterEach({"1", "1"});
        person.Type("cpu00");
        ASSERT_TRUE(ListComes());
        person.Press(Qt::Key_Down);
        person.Press(Qt::Key_Up); // and given up again
        person.Type("1");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(Code(3), "CPU001");
    });
}

// A scanner types a whole code within a moment: nothing is shown, nothing is taken, no key is lost.
TEST_F(SuggestionsShown, KeepOutOfABurstOfKeys) {
    const std::string bar = Rows("select fCpBarCode from tJXC_Cp where fCpCode='MEM001'").at(0);
    Receipt([&] {
        person.EnterEach({"CPU001", "3", "400", "CPU003", "5", "880"});
        EXPECT_EQ(List(), nullptr);
        person.Enter(Q(bar));
        person.EnterEach({"2", "90"});
        for (int scan = 0; scan < 3; ++scan)
            person.Enter(Q(bar));
        EXPECT_EQ(Texts({Code(1), Code(2), Code(3), Code(4)}), (Texts{"CPU001", "CPU003", "MEM001", ""}));
        EXPECT_EQ(Lines().ShownText(3, line::kQuantity), "5.00");
        EXPECT_EQ(Lines().selectedRow, 4);
        EXPECT_EQ(Lines().selectedColumn, line::kCode);
        EXPECT_TRUE(NoListComes());
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

TEST_F(SuggestionsShown, GoByEscAndAreTakenByAClick) {
    Receipt([&] {
        person.Type("clq");
        ASSERT_TRUE(ListComes());
        person.Press(Qt::Key_Down);
        person.Press(Qt::Key_Escape);
        EXPECT_EQ(List(), nullptr);
        EXPECT_EQ(person.Focus(), "cellEditor"); // typing goes on
        person.Press(Qt::Key_Backspace);
        ASSERT_TRUE(ListComes());
        const std::string first = Suggested().at(0);
        QTableWidget& list = *List();
        person.Click(*list.viewport(), list.visualItemRect(list.item(0, 1)).center());
        EXPECT_EQ(Code(1), first);
        EXPECT_EQ(Lines().selectedColumn, line::kQuantity);
        // A quote, or nothing that is like it, suggests nothing.
        person.EnterEach({"5", "880"});
        person.Type("x'");
        EXPECT_TRUE(NoListComes());
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Boxes().size(), 1U);
        EXPECT_EQ(Code(2), "");
    });
}

// A name is many products' name: what is taken in its cell goes by its code.
TEST_F(SuggestionsShown, OfANameGoByTheCode) {
    Receipt([&] {
        person.ClickCell("Grid2", 1, line::kName);
        person.Compose("处理器");
        ASSERT_TRUE(ListComes());
        person.Press(Qt::Key_Down);
        const std::string first = Suggested().at(0);
        person.Press(Qt::Key_Return);
        EXPECT_EQ("[" + Code(1) + "]", first);
        EXPECT_EQ(Lines().selectedColumn, line::kQuantity);
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

TEST_F(SuggestionsShown, OfCardsAndListsByPinyin) {
    Enter(1, [&] {
        person.Click("txtKhSeek");
        person.Type("szsxy");
        ASSERT_TRUE(ListComes());
        EXPECT_EQ(Suggested(), Texts{"G001"});
        person.Press(Qt::Key_Down);
        person.Press(Qt::Key_Return);
        EXPECT_EQ(Person::Shown<frmDj02>().cboKhList.CompanyName(), "深圳市芯源电子有限公司");
        EXPECT_EQ(person.Focus(), "cboKhList"); // as behind its own search
        person.Click("txtKhSeek");
        EXPECT_TRUE(NoListComes()); // what stands there is not being typed
        EXPECT_EQ(person.Boxes(), Texts{});
        person.Answer(Qt::Key_D);
        person.Click("cmdQuit");
    });
    Open(4, -1, [&] {
        auto& warehouse = Person::Shown<frmCkKc>().cboCk;
        Person::Find<QComboBox>("cboCk").setFocus();
        person.Type("lsms");
        EXPECT_EQ(warehouse.Chosen(), "零售门市");
        QTest::qWait(1100); // another word
        person.Type("dx");
        EXPECT_EQ(warehouse.Chosen(), "代销仓");
        person.Type("q"); // nothing of that name: the choice stays
        EXPECT_EQ(warehouse.Chosen(), "代销仓");
        person.Click("txtCpCode");
        person.Type("nct");
        ASSERT_TRUE(ListComes());
        person.Press(Qt::Key_Down);
        const std::string chosen = Suggested().at(0);
        person.Press(Qt::Key_Return);
        EXPECT_EQ("[" + Person::Text("txtCpCode") + "]", chosen);
    });
}

TEST_F(SuggestionsShown, PickerOpensByF3) {
    Receipt([&] {
        person.Type("cpu");
        person.Next([&] {
            EXPECT_EQ(Person::Text("txtCpCode2"), "cpu");
            person.ClickCell("Grid1", 2, 1);
            person.Click("cmdSelect");
        });
        person.Press(Qt::Key_F3);
        EXPECT_EQ(Code(1), "CPU002");
        EXPECT_EQ(Lines().selectedColumn, line::kQuantity);
        person.EnterEach({"5", "880"});
        person.Next([&] { // nothing typed: every product; nothing picked
            EXPECT_GT(Person::Shown<frmCp>().Grid1.RowCount(), 50);
            person.Click("cmdQuit");
        });
        person.Press(Qt::Key_F3);
        EXPECT_EQ(Code(2), "");
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

} // namespace jxc::test
