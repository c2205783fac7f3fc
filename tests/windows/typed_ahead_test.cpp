// Keys typed ahead of what the program has to say: they change no line that they were not meant for.
#include "documents/frmDj02.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class TypedAhead : public Windows {
  protected:
    // A receipt whose first line stands, with the cursor in the next line's code.
    void Receipt(const std::function<void()>& work) {
        Enter(1, [&] {
            person.Click("txtKhSeek");
            person.Enter("G001");
            person.ClickCell("Grid2", 1, line::kCode);
            Type({"CPU001", "3", "400"});
            work();
            person.Answer(Qt::Key_D);
            person.Click("cmdQuit");
            person.Boxes();
        });
        EXPECT_EQ(Rows("select fInvID from tJXC_CkDj01 Where fInvType=1"), Texts{});
    }
    void Type(std::initializer_list<const char*> texts) {
        for (const char* text : texts)
            person.Enter(text);
    }
    Grid& Lines() { return person.Shown<frmDj02>().Grid2; }
    // Code, quantity and price of every row, "-" for a blank one.
    Texts Shown() {
        Texts lines;
        for (int row = 1; row <= Lines().RowCount(); ++row)
            lines.push_back(Lines().Text(row, line::kCode).empty()
                                ? "-"
                                : Lines().Text(row, line::kCode) + " " +
                                      Lines().ShownText(row, line::kQuantity) + " " +
                                      Lines().ShownText(row, line::kPrice));
        return lines;
    }
    bool IsAtFoot(const std::string& told) {
        const QList<QLabel*> labels = person.Front().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
            return label->isVisible() && S(label->text()) == told;
        });
    }
};

} // namespace

TEST_F(TypedAhead, QuantityOfNothingHoldsTheCursor) {
    Receipt([&] {
        Type({"CPU003", "0"});
        EXPECT_TRUE(IsAtFoot("数量为 0，该行的产品已清空。"));
        Type({"880", "", ""});
        EXPECT_TRUE(IsAtFoot("没有找到产品“880”，该行已清空。"));
        EXPECT_EQ(person.Focus(), "Grid2");
        EXPECT_EQ(person.Boxes(), Texts{});
        Type({"CPU003", "5", "880"});
        EXPECT_EQ(Shown(), (Texts{"CPU001 3.00 400.00", "CPU003 5.00 880.00", "-"}));
    });
}

TEST_F(TypedAhead, QuoteHoldsTheCursor) {
    Receipt([&] {
        person.Enter("CPU'3");
        EXPECT_EQ(person.Boxes().size(), 1U);
        Type({"", "", "QQQ"});
        EXPECT_TRUE(IsAtFoot("没有找到产品“QQQ”，该行已清空。"));
        EXPECT_EQ(person.Focus(), "Grid2");
        EXPECT_EQ(Shown(), (Texts{"CPU001 3.00 400.00", "-"}));
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

TEST_F(TypedAhead, ProductThatIsThereKeepsItsLine) {
    Receipt([&] {
        person.Enter("CPU001");
        EXPECT_EQ(person.Boxes(), Texts{"该产品已有输入！"});
        Type({"7", "550", "CPU003"});
        EXPECT_EQ(Shown(), (Texts{"CPU001 3.00 400.00", "-"}));
        EXPECT_EQ(Lines().selectedRow, 1);
        person.Press(Qt::Key_Down); // and on
        person.Press(Qt::Key_Home);
        Type({"CPU003", "5", "880"});
        EXPECT_EQ(Shown(), (Texts{"CPU001 3.00 400.00", "CPU003 5.00 880.00", "-"}));
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

TEST_F(TypedAhead, WordAtTheFootOutlivesTheClickThatCausedIt) {
    Receipt([&] {
        person.Type("ZZZ");
        person.ClickCell("Grid2", 1, line::kPrice);
        EXPECT_TRUE(IsAtFoot("没有找到产品“ZZZ”，该行已清空。"));
        person.Press(Qt::Key_Down);
        EXPECT_FALSE(IsAtFoot("没有找到产品“ZZZ”，该行已清空。"));
    });
}

TEST_F(TypedAhead, NextLineStandsBelowAfterASaveThatWasNone) {
    Receipt([&] {
        person.Answer(Qt::Key_Escape);
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(), Texts{"入库单：新增：20261105RK001，确定？"});
        Type({"CPU003", "5", "880"});
        EXPECT_EQ(Shown(), (Texts{"CPU001 3.00 400.00", "CPU003 5.00 880.00", "-"}));
    });
}

// A field that is still being typed is part of what is saved on the way out.
TEST_F(TypedAhead, WayOutSavesTheFieldInHand) {
    const int key = Save(2);
    Open(13, 2,
         [&] {
             person.Click("cboInvMemo");
             person.Type("asked twice");
             person.Answer(Qt::Key_S);
             person.Answer(Qt::Key_Return);
             person.Answer(Qt::Key_Return);
             person.Answer(Qt::Key_Escape);
             person.Front().close();
         },
         {{"Action", 2}, {"invType", 2}, {"oldInvID", key}});
    EXPECT_EQ(person.Boxes().size(), 4U);
    EXPECT_EQ(Rows("select fInvMemo from tJXC_CkDj01 Where fInvID=" + std::to_string(key)),
              Texts{"asked twice"});
}

TEST_F(TypedAhead, NextLineStandsBelowAPaste) {
    Receipt([&] {
        CurrentView().SetClipboard("CPU003\t5\t880\n");
        person.Press(Qt::Key_V, Qt::ControlModifier);
        Type({"MEM001", "2", "92"});
        EXPECT_EQ(Shown(), (Texts{"CPU001 3.00 400.00", "CPU003 5.00 880.00", "MEM001 2.00 92.00", "-"}));
        CurrentView().SetClipboard("CPU002\t5\tx\n"); // a refused one takes nothing away
        person.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(person.Boxes().size(), 1U);
        Type({"CPU002", "1", "620"});
        EXPECT_EQ(Shown().size(), 5U);
        EXPECT_EQ(Shown()[3], "CPU002 1.00 620.00");
    });
}

} // namespace jxc::test
