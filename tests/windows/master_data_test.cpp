// Master data by keys alone: a warehouse from its tree into its fields, a kit template part by part.
#include "master/frmCk.h"
#include "master/frmCpTj.h"
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

} // namespace

} // namespace jxc::test
