// A person who types at speed and looks away: nothing goes, and nothing incomplete is saved, without a word.
#include "documents/frmDj02.h"
#include "session/components.h"
#include "session/screen_entries.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class LostWork : public Windows {
  protected:
    void BeginReceipt() {
        person.Click("txtKhSeek");
        person.Enter("G001");
        person.ClickCell("Grid2", 1, line::kCode);
    }
    // Leaves and gives up what was typed.
    void Discard() {
        person.Answer(Qt::Key_D);
        person.Click("cmdQuit");
        person.Boxes();
    }
    Texts Lines() {
        const Grid& grid = person.Shown<frmDj02>().Grid2;
        Texts lines;
        for (int row = 1; row <= grid.RowCount(); ++row)
            if (!grid.Text(row, line::kCode).empty())
                lines.push_back(grid.Text(row, line::kCode) + " " + grid.ShownText(row, line::kQuantity) +
                                " " + grid.ShownText(row, line::kPrice));
        return lines;
    }
    std::string Foot() {
        for (const QLabel* label : person.Front().findChildren<QLabel*>())
            if (label->text().startsWith("没有找到产品"))
                return S(label->text());
        return "";
    }
};

TEST_F(LostWork, MistypedCodeIsToldAndTheCursorStays) {
    Enter(1, [&] {
        BeginReceipt();
        person.EnterEach({"CPU001", "3", "400", "ZZZ"});
        EXPECT_EQ(Foot(), "没有找到产品“ZZZ”，该行已清空。");
        person.EnterEach({"CPU003", "5", "880"});
        EXPECT_EQ(Lines(), (Texts{"CPU001 3.00 400.00", "CPU003 5.00 880.00"}));
        person.Enter("ZZZ");
        for (int i = 0; i < 3; ++i)
            person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Focus(), "Grid2");
        person.Type("YYY"); // and a command pressed behind it
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(), Texts{});
        EXPECT_EQ(person.Shown<frmDj02>().Grid2.selectedColumn, line::kCode);
        Discard();
    });
    EXPECT_EQ(Rows("select fInvID from tJXC_CkDj01 Where fInvType=1").size(), 0U);
}

const char* const kQuestion = "单据尚未存盘，放弃所输入的内容？";

TEST_F(LostWork, WhateverWasTypedIsAskedForWhereverItWouldGo) {
    const int key = Save(2);
    const auto stored = [&] {
        return Rows("select fInvMemo,fInvDLR from tJXC_CkDj01 Where fInvID=" + std::to_string(key));
    };
    const Texts before = stored();
    const auto change = [&](const std::function<void()>& work) {
        Open(13, 2, work, {{"Action", 2}, {"invType", 2}, {"oldInvID", key}});
    };
    // Enter means to stay, for each of the ways out.
    const auto staysAndLeaves = [&](const std::function<void()>& type) {
        change([&] {
            type();
            for (const char* way : {"cmdQuit", "cmdPrevious", "cmdNext"}) {
                person.Click(way);
                EXPECT_EQ(person.Boxes(), Texts{kQuestion}) << way;
                EXPECT_TRUE(person.Shown<frmDj02>().IsOpen());
            }
            person.Answer(Qt::Key_D);
            person.Click("cmdQuit");
            EXPECT_EQ(person.Boxes(), Texts{kQuestion});
        });
    };
    staysAndLeaves([&] {
        person.ClickCell("Grid2", 1, line::kCode);
        person.Press(Qt::Key_F7); // a row deleted
    });
    staysAndLeaves([&] {
        person.Click("txtHtNo"); // a header changed
        person.Type("X");
    });
    EXPECT_EQ(stored(), before);
    change([&] { person.Click("cmdQuit"); });
    Enter(1, [&] { person.Click("cmdQuit"); });
    EXPECT_EQ(person.Boxes(), Texts{}); // nothing typed, nothing asked
    Enter(5, [&] {
        person.Click("txtZkl");
        person.Press(Qt::Key_A, Qt::ControlModifier);
        person.Type("0.5");
        person.Click("cmdNew");
        EXPECT_EQ(person.Boxes(), Texts{kQuestion});
        person.Answer(Qt::Key_D);
        person.Click("cmdNew");
        person.Boxes();
    });
}

TEST_F(LostWork, CanBeSavedOnTheWayOut) {
    Enter(1, [&] {
        BeginReceipt();
        person.EnterEach({"CPU001", "3", "400"});
        person.Answer(Qt::Key_Escape); // stays
        person.Click("cmdQuit");
        EXPECT_TRUE(person.Shown<frmDj02>().IsOpen());
        person.Answer(Qt::Key_S);
        person.Answer(Qt::Key_Return);
        person.Answer(Qt::Key_Escape);
        person.Click("cmdQuit");
        EXPECT_EQ(person.Boxes(), (Texts{kQuestion, kQuestion, "入库单：新增：20261105RK001，确定？",
                                         "单据新增完毕。打印本张单据？"}));
    });
    EXPECT_EQ(Rows("select fInvJE from tJXC_CkDj01 Where fInvNo='20261105RK001'"), Texts{"1200"});
    Enter(1, [&] { // what cannot be saved stays on the screen
        person.ClickCell("Grid2", 1, line::kCode);
        person.EnterEach({"CPU001", "3"});
        person.Answer(Qt::Key_S);
        person.Click("cmdQuit");
        EXPECT_EQ(person.Boxes(), (Texts{kQuestion, "请输入供应商！"}));
        EXPECT_TRUE(person.Shown<frmDj02>().IsOpen());
        Discard();
    });
}

const char* const kCardQuestion = "资料尚未保存，放弃所输入的内容？";

class LostCard : public LostWork {
  protected:
    void Edit(const char* screen, const std::function<void()>& work) {
        person.Next(work);
        OpenByName(screen);
    }
    void BeginCard() {
        person.Press(Qt::Key_A, Qt::AltModifier);
        person.Enter("K999");
        person.Compose("远山商行");
    }
};

TEST_F(LostCard, IsAskedForBeforeItGoes) {
    Edit("frmHostCards", [&] {
        BeginCard();
        for (const int key : {Qt::Key_Escape, Qt::Key_Escape}) // to the cancel button, out
            person.Press(key);
        EXPECT_EQ(person.Boxes(), Texts{kCardQuestion}); // Enter means to stay
        EXPECT_EQ(person.Text("txtCompName"), "远山商行");
        person.Click("cmdCancel");
        EXPECT_EQ(person.Boxes(), Texts{kCardQuestion});
        person.Front().close(); // by the frame
        EXPECT_EQ(person.Boxes(), Texts{kCardQuestion});
        person.Answer(Qt::Key_D);
        person.Click("cmdCancel");
        EXPECT_EQ(person.Boxes(), Texts{kCardQuestion});
        person.Press(Qt::Key_C, Qt::AltModifier); // a change that changes nothing
        person.Click("cmdCancel");
        EXPECT_EQ(person.Boxes(), Texts{});
        EXPECT_TRUE(person.Find("cmdQuit").isEnabled());
        person.Click("cmdQuit");
    });
    EXPECT_EQ(person.Boxes(), Texts{});
    EXPECT_EQ(Rows("select count(*) from cards where CompCode='K999'"), Texts{"0"});
}

TEST_F(LostCard, CanBeSavedOnTheWayOut) {
    Edit("frmHostCards", [&] {
        BeginCard();
        person.Answer(Qt::Key_S);
        person.Click("cmdCancel");
        EXPECT_EQ(person.Boxes(), Texts{kCardQuestion});
        EXPECT_TRUE(person.Find("cmdQuit").isEnabled()); // not at the next card
        person.Press(Qt::Key_A, Qt::AltModifier);
        person.Enter("K999"); // taken by now
        person.Compose("另一家");
        person.Answer(Qt::Key_S);
        person.Click("cmdCancel");
        EXPECT_EQ(person.Boxes(), (Texts{kCardQuestion, "[编号] K999 已有存在！"}));
        EXPECT_EQ(person.Text("txtCompName"), "另一家");
        person.Answer(Qt::Key_D);
        person.Click("cmdCancel");
    });
    person.Boxes();
    EXPECT_EQ(Rows("select CompName from cards where CompCode='K999'"), Texts{"远山商行"});
}

// The list behind the summaries of documents: opened, changed, left.
TEST_F(LostCard, IsAnEntryOfACodeListToo) {
    const OpenCompany open(company.Address());
    const char* const question = "代码表尚未保存，放弃所作的修改？";
    const auto change = [&](const std::function<void()>& work) {
        person.Next([&] {
            person.ClickCell("Grid1", 1, 2);
            person.Enter("Z");
            work();
        });
        ComponentsInUse().codeLists->Edit("", "2010", BriefKind::EditEntries);
    };
    const auto stored = [&] { return Rows("select BriefName from BriefDetail where BriefName='Z'"); };
    change([&] {
        for (const int key : {Qt::Key_Escape, Qt::Key_Escape})
            person.Press(key);
        EXPECT_EQ(person.Boxes(), Texts{question});
        person.Answer(Qt::Key_D);
        person.Click("cmdCancel");
        EXPECT_EQ(person.Boxes(), Texts{question});
    });
    EXPECT_EQ(stored(), Texts{});
    change([&] {
        person.Answer(Qt::Key_S);
        person.Click("cmdCancel");
        EXPECT_EQ(person.Boxes(), Texts{question});
    });
    EXPECT_EQ(stored(), Texts{"Z"});
}

// What is chosen and ticked beside the fields is work too.
TEST_F(LostCard, HoldsMoreThanTexts) {
    const auto asksAfter = [&](const char* screen, const std::function<void()>& work) {
        Edit(screen, [&] {
            person.Press(Qt::Key_C, Qt::AltModifier);
            work();
            person.Answer(Qt::Key_D);
            person.Click("cmdCancel");
            EXPECT_EQ(person.Boxes(), Texts{kCardQuestion}) << screen;
        });
    };
    asksAfter("frmHostCards", [&] {
        person.Find("cboType0").setFocus();
        person.Press(Qt::Key_Up);
    });
    asksAfter("frmHostMoneys", [&] {
        person.Find("chkMoneyType").setFocus();
        person.Press(Qt::Key_Space);
    });
    asksAfter("frmHostCompany", [&] {
        person.Find("dtpCompDate").setFocus();
        person.Press(Qt::Key_Up);
    });
    asksAfter("frmHostUsers", [&] { person.ClickCell("Grid2", 1, 2); });
}

} // namespace

} // namespace jxc::test
