// Saving a kit template is whole or not at all, whichever statement fails; what older companies lack is added once; and
// whoever closes the picker without choosing has chosen nothing.
#include "controls/gestures.h"
#include "database/database_error.h"
#include "database/engine.h"
#include "master/frmCpTj.h"
#include "session/session.h"
#include "tests/support/clerk.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

constexpr int kFirstKit = 2; // of the sample company

class Kits : public OnOpenCompany {
  protected:
    void Visit(const std::function<void(frmCpTj&)>& act, bool picking = false) {
        Screen& shown = ScreenNamed("frmCpTj");
        shown.SetProperty("CpTjSelect", picking ? 1 : 0);
        shown.SetProperty("TjID", kFirstKit);
        clerk->view.OnScreen("frmCpTj", [&](Screen& screen) { act(dynamic_cast<frmCpTj&>(screen)); });
        ShowModal(shown);
    }
    static Lines Stored() {
        Lines rows =
            RowsOf("Select fTjID,fTjCode,fTjName,fTjMemo,fTjJe,fCpID From tJXC_CpTj01 Order By fTjID");
        for (const std::string& row :
             RowsOf("Select fTjID,fRowID,fCpPjID,fCpPjSL,fCpPjMemo From tJXC_CpTj02 Order By fTjID,fRowID"))
            rows.push_back(row);
        return rows;
    }
    // Saves with the first statement failing, then with the second, until one behind the commit does: nothing is stored
    // before, and all of it then.
    void FailAtEveryStatement(const std::function<void(frmCpTj&)>& enter) {
        const Lines before = Stored();
        for (size_t failing = 1; Stored() == before; ++failing) {
            ASSERT_LT(failing, 60U);
            Lines sent;
            Visit([&](frmCpTj& s) {
                enter(s);
                clerk->view.boxes.clear();
                const Recorder recorder(failing);
                Click(s, s.cmdSave);
                sent = recorder.sent;
            });
            EXPECT_FALSE(Conn().InTransaction());
            const auto committed = std::ranges::find(sent, "commit") - sent.begin() + 1;
            EXPECT_EQ(Stored() == before, failing <= static_cast<size_t>(committed))
                << "statement " << failing;
            EXPECT_FALSE(clerk->view.boxes.empty()) << "statement " << failing;
        }
    }
};
ON_BOTH_ENGINES(Kits);

TEST_P(Kits, AreAddedWholeOrNotAtAll) {
    FailAtEveryStatement([](frmCpTj& s) {
        Click(s, s.cmdAdd);
        EnterText(s, s.txtTjCode, "zz9");
        EnterText(s, s.txtTjName, "新套件");
        EnterText(s, s.txtCpCode, "PC002");
        TypeCell(s, s.Grid2, 1, part::kCode, "MEM001");
        TypeCell(s, s.Grid2, 1, part::kQuantity, "2");
        TypeCell(s, s.Grid2, 2, part::kCode, "MEM002");
        TypeCell(s, s.Grid2, 2, part::kQuantity, "1");
    });
    EXPECT_EQ(One("Select fTjCode,fTjJe From tJXC_CpTj01 Where fTjName='新套件'"), "ZZ9|356"); // 2 * 92 + 172
}

TEST_P(Kits, AreChangedWholeOrNotAtAll) {
    FailAtEveryStatement([](frmCpTj& s) {
        Click(s, s.cmdChange);
        TypeCell(s, s.Grid2, 1, part::kQuantity, "2");
    });
    EXPECT_EQ(One("Select fTjJe From tJXC_CpTj01 Where fTjID=2"), "2177.5"); // 1557.5 + 620
}

TEST_P(Kits, AreDeletedWholeOrNotAtAll) {
    FailAtEveryStatement([](frmCpTj& s) { Click(s, s.cmdDelete); });
    EXPECT_EQ(One("Select count(*) From tJXC_CpTj02 Where fTjID=2"), "0");
}

// Nobody can say that it was cancelled, nor that it was done; what was typed stays.
TEST_P(Kits, SayThatNobodyKnowsWhenTheLineIsLostWithTheCommit) {
    Visit([&](frmCpTj& s) {
        Click(s, s.cmdChange);
        TypeCell(s, s.Grid2, 1, part::kQuantity, "2");
        Conn().SetObserver([](std::string_view sql) {
            if (sql == "commit")
                throw CommitUnknown("lost");
        });
        Click(s, s.cmdSave);
        Conn().SetObserver(nullptr);
        EXPECT_EQ(clerk->LastBox(), "与服务器的连接在存盘的最后一步中断，" + s.txtTjName.text +
                                        " 可能已经存盘，也可能没有。请查询确认后再继续。");
        EXPECT_EQ(s.mode, EditorMode::Change);
        EXPECT_EQ(s.Grid2.Number(1, part::kQuantity), 2);
    });
}

TEST_P(Kits, AskNothingWhileOthersWait) {
    Visit([&](frmCpTj& s) {
        Click(s, s.cmdChange);
        clerk->view.AnswerWith([](const MessageBox&) {
            EXPECT_FALSE(Conn().InTransaction());
            return BoxButton::OK;
        });
        Click(s, s.cmdSave);
    });
}

// A picker of products leaves the kit's own product in hand.
TEST_P(Kits, KeepTheirProductWhileAPartIsPicked) {
    Visit([&](frmCpTj& s) {
        const std::int32_t kit = session.SelectedProductID;
        EXPECT_NE(kit, 0);
        Click(s, s.cmdChange);
        clerk->view.OnScreen("frmCp", [](Screen&) {});
        TypeCell(s, s.Grid2, 1, part::kCode, "MEM00"); // fits several
        EXPECT_EQ(clerk->view.screens.back(), "frmCp");
        EXPECT_EQ(session.SelectedProductID, kit);
    });
}

TEST_P(Kits, ArePickedByTheSelectButtonOnly) {
    const Screen& picker = ScreenNamed("frmCpTj");
    Visit([](frmCpTj& s) { Click(s, s.cmdSelect); }, true);
    EXPECT_EQ(picker.GetProperty("CpTjSelect").AsLong(), 1);
    EXPECT_EQ(picker.GetProperty("TjCode").AsText(), "ZZ001");
    EXPECT_EQ(picker.GetProperty("TjID").AsLong(), kFirstKit);
    Visit([](frmCpTj& s) { Click(s, s.cmdQuit); }, true);
    EXPECT_EQ(picker.GetProperty("CpTjSelect").AsLong(), 0);
    Visit([](frmCpTj&) {}, true); // the window is closed
    EXPECT_EQ(picker.GetProperty("CpTjSelect").AsLong(), 0);
    Visit([](frmCpTj& s) { EXPECT_FALSE(s.cmdSelect.visible); });
}

TEST_P(Kits, OfAnOlderCompanyGainTheirNotes) {
    Conn().EngineInUse().ExecuteScript("alter table tJXC_CpTj02 drop column fCpPjMemo");
    Conn().ForgetCatalogue();
    const std::string added = Dialect("ALTER TABLE tJXC_CpTj02 ADD fCpPjMemo varchar(50) Null",
                                      "ALTER TABLE tJXC_CpTj02 ADD fCpPjMemo nvarchar(50) Null");
    for (const bool first : {true, false}) {
        const Recorder recorder;
        Visit([](frmCpTj& s) { EXPECT_EQ(s.Grid2.RowCount(), 9); });
        EXPECT_EQ(std::ranges::count(recorder.sent, added), first ? 1 : 0);
    }
}

// What another user made of the cost since it was shown is what it was before.
TEST_P(Kits, ChangeACostFromWhatIsStored) {
    Visit([&](frmCpTj& s) {
        Click(s, s.cmdChange);
        Conn().Execute("Update tJXC_Cp Set fCpPrice0=1500.25 Where fCpCode='PC001'");
        EnterText(s, s.txtCpPrice, "1600.5");
        GoTo(s, s.txtTjCode);
        EXPECT_EQ(s.txtCpPrice.text, "1600.50");
    });
    EXPECT_EQ(One("Select fCpPrice0 From tJXC_Cp Where fCpCode='PC001'"), "1600.5");
    EXPECT_EQ(One("Select Top 1 fName,fBefore,fAfter From tJXC_Audit Order By fID Desc"),
              R"(PC001|{"fCpPrice0":1500.25}|{"fCpPrice0":1600.5})");
}

// A paste of a long text, as a person makes it: cut to what the field holds.
TEST_P(Kits, TakeNoMoreThanTheirFieldsHold) {
    Visit([&](frmCpTj& s) {
        Click(s, s.cmdChange);
        GoTo(s, s.txtTjName);
        s.txtTjName.SelectAll();
        clerk->view.clipboard = "一二三四五六七八九十甲";
        EXPECT_FALSE(TypeKey(s, s.txtTjName, kPasteKey));
        EXPECT_EQ(clerk->LastBox(), "文本太小,无法容纳剪贴板数据.");
        EXPECT_EQ(s.txtTjName.text, "组装电脑 办公型");
        s.txtTjName.text = "一二三四五六七八九十甲"; // by whatever way
        Click(s, s.cmdSave);
        EXPECT_EQ(One("Select fTjName From tJXC_CpTj01 Where fTjID=2"), "一二三四五六七八九十");
    });
}

} // namespace

} // namespace jxc::test
