// A purchase plan by keys alone: worked out by limits, one supplier for all, a quantity typed over, orders made.
#include "plans/frmJh02.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

using PlanWindow = Windows;

TEST_F(PlanWindow, BecomesOrdersByKeys) {
    Open(14, 0, [&] {
        auto& s = person.Shown<frmJh02>();
        person.Boxes();
        person.Find("cboType").setFocus();
        person.Press(Qt::Key_Up);
        EXPECT_EQ(s.cboType.Index(), plan::kByLimit);
        person.Find("txtCpCode").setFocus();
        person.Type("CPU00");
        EXPECT_TRUE(s.chkCpCode.value);
        person.Press(Qt::Key_F5);
        EXPECT_EQ(s.Grid1.RowCount(), 5);
        person.Find("txtKhSeek").setFocus();
        person.Enter("G007");
        EXPECT_EQ(person.Focus(), "cboKhList");
        person.Press(Qt::Key_Return);
        EXPECT_EQ(s.Grid1.Text(1, plan::kSupplier), "苏州灵键外设有限公司");
        EXPECT_EQ(s.Grid1.Text(2, plan::kSupplier), "");
        person.Press(Qt::Key_F6);
        EXPECT_EQ(person.Boxes(), Texts{"每一记录都已有供应商。"});
        person.Find("Grid1").setFocus();
        person.ClickCell("Grid1", 1, plan::kNeeded);
        person.Enter("3");
        EXPECT_EQ(s.Grid1.Number(1, plan::kNeeded), 3);
        person.Press(Qt::Key_F9);
        EXPECT_EQ(
            person.Boxes(),
            (Texts{"本操作将列表中的所有实际计划需求数，转化为多张“采购订单”，分别对应不同的供应商。继续？",
                   "采购订单转化完毕，共生成 2张单据。"}));
    });
    EXPECT_EQ(Rows("select a.fKhID,b.fInvSL from tJXC_CkHt01 a Inner Join tJXC_CkHt02 b On b.fInvID=a.fInvID "
                   "Where a.fKhID=8"),
              Texts{"8|3"});
}

// What was typed over is asked for before it is worked out anew, and before the window is left.
TEST_F(PlanWindow, AsksBeforeTypedWorkGoes) {
    Open(14, 0, [&] {
        auto& s = person.Shown<frmJh02>();
        person.Boxes();
        person.Find("cboType").setFocus();
        person.Press(Qt::Key_Up);
        person.Press(Qt::Key_F5);
        EXPECT_EQ(person.Boxes(), Texts{});
        person.ClickCell("Grid1", 1, plan::kNeeded);
        person.Enter("3");
        person.Answer(Qt::Key_Escape);
        person.Press(Qt::Key_F5);
        EXPECT_EQ(person.Boxes(), Texts{"计划单尚未使用，放弃所输入的内容？"});
        EXPECT_EQ(s.Grid1.Number(1, plan::kNeeded), 3);
        s.touched = false; // given up by other means
    });
}

} // namespace

} // namespace jxc::test
