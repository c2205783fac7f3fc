// Renaming a warehouse is whole in documents, stock and products or not at all, whichever statement fails; and what older
// companies lack is added once.
#include "controls/gestures.h"
#include "database/engine.h"
#include "master/frmCk.h"
#include "master/rename_warehouse.h"
#include "session/session.h"
#include "tests/support/clerk.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

class Warehouses : public OnOpenCompany {
  protected:
    void Visit(const std::function<void(frmCk&)>& act) {
        clerk->view.OnScreen("frmCk", [&](Screen& screen) { act(dynamic_cast<frmCk&>(screen)); });
        ShowModal(ScreenNamed("frmCk"));
    }
    // How often the name stands in the places that follow a rename.
    Lines Named(const std::string& name) {
        Lines counts;
        for (const char* place :
             {"tJXC_CkDj02 Where fCkName=", "tJXC_CkDj01 Where fCkName=", "tJXC_CkDj01 Where fCkName2=",
              "tJXC_CkTj Where fCkName=", "tJXC_Cp Where fCkName="})
            counts.push_back(One("Select count(*) From " + std::string(place) + "'" + name + "'"));
        return counts;
    }
    void TradeInHeadOffice() {
        Approved(TypicalDocument(1));
        DocumentInput transfer = TypicalDocument(3);
        transfer.warehouse = "零售门市";
        transfer.warehouse2 = "总部仓";
        ASSERT_NE(clerk->Save(transfer), 0) << clerk->LastBox();
    }
    const Lines nowhere{"0", "0", "0", "0", "0"};
};
ON_BOTH_ENGINES(Warehouses);

TEST_P(Warehouses, AreRenamedEverywhereOrNowhere) {
    TradeInHeadOffice();
    const Lines before = Named("总部仓");
    for (const std::string& count : before)
        EXPECT_NE(count, "0");
    for (size_t failing = 1;; ++failing) {
        ASSERT_LT(failing, 20U);
        bool renamed = false;
        size_t sent = 0;
        {
            const Recorder recorder(failing);
            renamed = SetCkChg("总部仓", "中心仓");
            sent = recorder.sent.size();
        }
        EXPECT_FALSE(Conn().InTransaction());
        EXPECT_EQ(Named("总部仓"), renamed ? nowhere : before) << "statement " << failing;
        EXPECT_EQ(Named("中心仓"), renamed ? before : nowhere) << "statement " << failing;
        EXPECT_EQ(renamed, sent < failing) << "statement " << failing;
        if (renamed)
            break;
    }
    EXPECT_TRUE(clerk->view.boxes.empty() || clerk->LastBox().find("仓库") == std::string::npos);
}

TEST_P(Warehouses, KeepTheNewNameAndSaySoWhenTheRestCannotFollow) {
    TradeInHeadOffice();
    session.OldName = "总部仓";
    Visit([&](frmCk& s) {
        const Lines before = Named("总部仓");
        for (const std::string failing :
             {"Delete From tJXC_CkTj", "UPDATE tJXC_CkDj02", "UPDATE tJXC_CkDj01 SET fCkName2",
              "UPDATE tJXC_CkTj", "UPDATE tJXC_Cp"}) {
            Click(s, s.cmdChange);
            EnterText(s, s.txtCkName, "中心仓");
            Conn().SetObserver([&](std::string_view sql) {
                if (sql.starts_with(failing))
                    throw DatabaseError("disk full");
            });
            Click(s, s.cmdSave);
            Conn().SetObserver(nullptr);
            EXPECT_EQ(clerk->LastBox(),
                      "注意：仓库已经改名。但关联的其它表（仓库出入单据、产品的限定仓库等）无法调整！")
                << failing;
            EXPECT_EQ(s.mode, EditorMode::Browse);
            EXPECT_FALSE(Conn().InTransaction());
            EXPECT_EQ(One("Select fCkName From tJXC_Ck Where fCkCode='01'"), "中心仓");
            EXPECT_EQ(Named("总部仓"), before) << failing;
            EXPECT_EQ(Named("中心仓"), nowhere) << failing;
            EXPECT_EQ(s.txtCkName.text, "中心仓");
            Conn().Execute("Update tJXC_Ck Set fCkName='总部仓' Where fCkCode='01'");
            session.OldName = "总部仓";
            ShowWarehouse(s, session.OldName);
        }
        // before the warehouse itself is written, nothing is
        for (const std::string failing : {"commit", "begin", "select * from tJXC_Ck where"}) {
            Click(s, s.cmdChange);
            EnterText(s, s.txtCkName, "中心仓");
            Conn().SetObserver([&](std::string_view sql) {
                if (sql.starts_with(failing))
                    throw DatabaseError("disk full");
            });
            Click(s, s.cmdSave);
            Conn().SetObserver(nullptr);
            EXPECT_EQ(clerk->LastBox(), "disk full") << failing;
            EXPECT_EQ(s.mode, EditorMode::Change);
            EXPECT_FALSE(Conn().InTransaction());
            EXPECT_EQ(One("Select fCkName From tJXC_Ck Where fCkCode='01'"), "总部仓") << failing;
            EXPECT_EQ(Named("总部仓"), before) << failing;
            Click(s, s.cmdCancel);
        }
    });
}

// A check that could not be made lets nothing pass.
TEST_P(Warehouses, AreNotWrittenUnchecked) {
    session.OldName = "生产仓";
    const auto pressed = [&](frmCk& s, const std::string& failing) {
        Conn().SetObserver([&](std::string_view sql) {
            if (sql.find(failing) != std::string_view::npos)
                throw DatabaseError("injected");
        });
        Click(s, s.cmdSave);
        Conn().SetObserver(nullptr);
        return clerk->LastBox();
    };
    const std::string before = One("Select count(*) From tJXC_Ck");
    Visit([&](frmCk& s) {
        Click(s, s.cmdAdd);
        EnterText(s, s.txtCkCode, "05");
        EnterText(s, s.txtCkName, "新仓");
        EXPECT_EQ(pressed(s, "Where fCkCode = "), "无法完成存盘前的检查，操作已经取消！");
        EXPECT_EQ(pressed(s, "Where fCkName = "), "无法完成存盘前的检查，操作已经取消！");
        Click(s, s.cmdCancel);
        Click(s, s.cmdDelete);
        EXPECT_EQ(pressed(s, "from tJXC_CkDj01"), "无法完成存盘前的检查，操作已经取消！");
        EXPECT_FALSE(Conn().InTransaction());
    });
    EXPECT_EQ(One("Select count(*) From tJXC_Ck"), before);
}

TEST_P(Warehouses, OfAnOlderCompanyGainTheirConsignee) {
    Conn().EngineInUse().ExecuteScript("alter table tJXC_Ck drop column fKhID");
    Conn().ForgetCatalogue();
    for (const bool first : {true, false}) {
        const Recorder recorder;
        Visit([](frmCk& s) { EXPECT_EQ(s.TreeView1.nodes.size(), 5U); });
        EXPECT_EQ(std::ranges::count(recorder.sent, "ALTER TABLE tJXC_Ck ADD fKhID Int NULL"), first ? 1 : 0);
    }
    EXPECT_EQ(One("Select fKhID From tJXC_Ck Where fCkCode='03'"), "null");
}

} // namespace

} // namespace jxc::test
