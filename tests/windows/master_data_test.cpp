// Master data by keys alone: a warehouse from its tree into its fields, a kit template part by part.
#include "master/frmCk.h"
#include "master/frmCp.h"
#include "master/frmCpTj.h"
#include "settings/frmSystem.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

using MasterData = Windows;

TEST_F(MasterData, AWarehouseIsReachedAndChangedByKeys) {
    Open(1, 0, [&] {
        EXPECT_EQ(person.Focus(), "TreeView1");
        auto& tree = person.Find<QTreeWidget>("TreeView1");
        QTreeWidgetItem* root = tree.topLevelItem(0);
        EXPECT_TRUE(root->isExpanded());
        for (int child = 0; child < root->childCount(); ++child)
            EXPECT_FALSE(root->child(child)->icon(0).isNull());
        for (int down = 0; down < 3; ++down)
            person.Press(Qt::Key_Down);
        EXPECT_EQ(person.Text("txtCkCode"), "02");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(person.Find<QTabWidget>("SSTab1").currentIndex(), frmCk::kDetailPage);
        person.Press(Qt::Key_F4);
        EXPECT_EQ(person.Focus(), "txtCkCode");
        person.Enter("21");
        EXPECT_EQ(person.Focus(), "txtCkName");
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(), Texts{"修改将涉及系统所有单据的相关调整,确定?[零售门市]"});
        EXPECT_EQ(person.Focus(), "TreeView1");
        EXPECT_FALSE(person.Shown<frmCk>().cmdSave.IsUsable());
    });
    EXPECT_EQ(Rows("select fCkCode from tJXC_Ck Where fCkName='零售门市'"), Texts{"21"});
}

TEST_F(MasterData, AKitIsTypedPartByPart) {
    Open(3, 0, [&] {
        EXPECT_EQ(person.Focus(), "Grid1");
        person.Press(Qt::Key_F2);
        EXPECT_EQ(person.Focus(), "txtTjCode");
        person.EnterEach({"zz9", "KIT", "note", "PC002"});
        EXPECT_EQ(person.Text("txtTjCode"), "ZZ9");
        EXPECT_EQ(person.Focus(), "Grid2");
        person.EnterEach({"MEM001", "2", "MEM002", "1"});
        EXPECT_EQ(person.Text("txtTjPrice"), "356.00"); // 2 * 92 + 172
        EXPECT_EQ(person.Shown<frmCpTj>().Grid2.RowCount(), 3);
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(), (Texts{"KIT：新增模板，确定？", "新增完毕!"}));
        EXPECT_EQ(person.Focus(), "txtTjCode");
        person.Click("cmdCancel");
    });
    EXPECT_EQ(Rows("select a.fTjJe,b.fRowID,b.fCpPjSL from tJXC_CpTj01 a Inner Join tJXC_CpTj02 b On "
                   "b.fTjID=a.fTjID Where a.fTjCode='ZZ9' Order By b.fRowID"),
              (Texts{"356|1|2", "356|2|1"}));
}

// Field by field with Enter; its picture is shown as soon as its file is named, and what is none is told.
TEST_F(MasterData, AProductIsTypedByKeysAndShowsItsPicture) {
    const QFileInfo place(Q(company.Address()));
    QImage(40, 30, QImage::Format_RGB32).save(place.absolutePath() + "/teapot.png");
    Open(2, 0, [&] {
        EXPECT_EQ(person.Focus(), "Grid1");
        person.Press(Qt::Key_F2);
        EXPECT_EQ(person.Focus(), "txtCpCode");
        person.EnterEach({"TEA1", "Teapot", "0.8 l", "pc", "6901"});
        EXPECT_EQ(person.Focus(), "txtCpPrice(0)");
        person.EnterEach({"10", "12.5"});
        EXPECT_EQ(person.Text("txtCpPrice(1)"), "12.50");
        auto& s = person.Shown<frmCp>();
        person.Find("txtCpPicture").setFocus();
        person.Enter("none.png");
        EXPECT_EQ(s.lblNoPicture.caption, "没有找到图片文件。");
        EXPECT_TRUE(person.Find<QLabel>("imgPicture").pixmap(Qt::ReturnByValue).isNull());
        person.Find("txtCpPicture").setFocus();
        person.Press(Qt::Key_A, Qt::ControlModifier);
        person.Enter("teapot.png");
        EXPECT_EQ(s.lblNoPicture.caption, "");
        EXPECT_EQ(person.Find<QLabel>("imgPicture").pixmap(Qt::ReturnByValue).size(), QSize(40, 30));
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes(), (Texts{"确定新增 [Teapot] ?", "新增完毕!"}));
        EXPECT_EQ(person.Focus(), "txtCpCode");
        person.Press(Qt::Key_Escape);
        person.Press(Qt::Key_Return);
    });
    EXPECT_EQ(Rows("select fCpName,fCpGG,fCpUnit,fCpBarCode,fCpPrice0,fCpPrice1,fCpPicture from tJXC_Cp "
                   "Where fCpCode='TEA1'"),
              Texts{"Teapot|0.8 l|pc|6901|10|12.5|teapot.png"});
}

// A cell of a list is opened by typing, and its item taken with the arrows or by its number.
TEST_F(MasterData, AListCellOfTheTypesIsChosenByKeys) {
    Open(0, 0, [&] {
        person.Press(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(person.Focus(), "Grid1");
        auto& s = person.Shown<frmSystem>();
        person.ClickCell("Grid1", 7, 4);
        person.Press(Qt::Key_3);
        person.Press(Qt::Key_Return);
        EXPECT_EQ(s.Grid1.ShownText(7, 4), "3.代销商");
        person.ClickCell("Grid1", 7, 4);
        person.Press(Qt::Key_9);
        person.Press(Qt::Key_Return); // leaves the list
        person.Press(Qt::Key_Return);
        EXPECT_EQ(s.Grid1.ShownText(7, 4), "3.代销商");
        EXPECT_EQ(person.Boxes().size(), 1U); // no such item
    });
}

// A new company's first receipt: what is missing is entered on the way, and the receipt goes on.
TEST_F(MasterData, AReceiptWithoutProductsAndCardsLeadsToThem) {
    ExecuteOnCompany(company.Address(), "Delete From tJXC_Cp");
    ExecuteOnCompany(company.Address(), "Delete From cards");
    person.Next([&] {
        person.Find("txtKhSeek").setFocus();
        person.Enter("G1");
        EXPECT_EQ(person.Boxes(), Texts{"未有符合条件的供应商资料！"});
        person.Next([&] {
            EXPECT_EQ(S(person.Front().windowTitle()), "客户资料");
            person.Press(Qt::Key_F2);
            person.EnterEach({"G1", "KILN"});
            person.Press(Qt::Key_F9);
            for (int times = 0; times < 4; ++times)
                person.Press(Qt::Key_Escape);
        });
        person.Press(Qt::Key_U, Qt::AltModifier);
        EXPECT_EQ(person.Focus(), "txtKhSeek");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(S(person.Find<QComboBox>("cboKhList").currentText()), "KILN");
        person.ClickCell("Grid2", 1, 1);
        person.Enter("P1"); // told at the foot
        person.Next([&] {
            EXPECT_EQ(S(person.Front().windowTitle()), "产品管理");
            person.Press(Qt::Key_F2);
            person.EnterEach({"P1", "CUP"});
            person.Press(Qt::Key_F9);
            for (int times = 0; times < 4; ++times)
                person.Press(Qt::Key_Escape);
        });
        person.Press(Qt::Key_R, Qt::AltModifier);
        person.Boxes();
        person.ClickCell("Grid2", 1, 1);
        person.EnterEach({"P1", "2", "3"});
        EXPECT_EQ(person.Text("txtSum"), "6.00");
        person.Answer(Qt::Key_Return);
        person.Answer(Qt::Key_Escape);
        person.Press(Qt::Key_F9);
        EXPECT_EQ(person.Boxes().size(), 2U);
    });
    control.myType(1);
    control.Refresh(13);
    EXPECT_EQ(Rows("select b.CompCode,a.fInvJE from tJXC_CkDj01 a Inner Join cards b On a.fKhID=b.fID"),
              Texts{"G1|6"});
}

} // namespace

} // namespace jxc::test
