// The column dictionary: captions in both languages, the columns of a list with their widths and forms, the
// screen that renames a field, and the editors of code lists and columns, on both engines.
#include "forms/column_dictionary.h"

#include "controls/gestures.h"
#include "session/session.h"
#include "settings/frmRs_RptSet.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

struct Caller : Screen {
    Caller() : Screen("caller") { title = "产品管理"; }
    void Open() override {}
    Grid Grid1{*this, "Grid1"};
    Label lblCpCw{*this, "lblCpCw", "仓位"};
};

class Dictionary : public OnOpenCompany {
  protected:
    void TearDown() override {
        session.Language = 0;
        OnOpenCompany::TearDown();
    }
    void OnSettings(const std::function<void(frmRs_RptSet&)>& act) {
        clerk->view.OnScreen("frmRs_RptSet",
                             [act](Screen& screen) { act(dynamic_cast<frmRs_RptSet&>(screen)); });
    }
    std::string StoredField(const std::string& field) {
        return One("select FieldName_0,FieldName_1,FieldBriefType from rptListDetail where ftable='tJXC_Cp' "
                   "and FieldName='" +
                   field + "'");
    }

    Caller caller;
};
ON_BOTH_ENGINES(Dictionary);

TEST_P(Dictionary, GivesCaptionsInBothLanguages) {
    EXPECT_EQ(GetFieldCaption("tJXC_Cp", "fCpCw"), "限用仓位");
    EXPECT_EQ(GetFieldCaption("TJXC_CP", "fcpcw"), "限用仓位");
    session.Language = 1;
    EXPECT_EQ(GetFieldCaption("tJXC_Cp", "fCpCw"), "限用倉位");
    EXPECT_EQ(GetFieldCaption("tJXC_Cp", "fNoSuch"), "\t");
    EXPECT_EQ(GetFieldCaption("tNoSuch", "fCpCw"), "\t");
    EXPECT_EQ(GetFieldCaption("it's", "fCpCw"), "\t");
    Do("Update rptListDetail Set FieldName_1=Null Where FieldName='fCpCw'");
    EXPECT_EQ(GetFieldCaption("tJXC_Cp", "fCpCw"), "");
    session.Language = 2; // no caption column
    EXPECT_THROW(GetFieldCaption("tJXC_Cp", "fCpCw"), DatabaseError);
}

TEST_P(Dictionary, SetsUpTheSelectedColumnsInTheirOrder) {
    Do("Update rptListDetail Set FieldSelected=0 Where ftable='tJXC_Cp'");
    Do("Update rptListDetail Set FieldSelected=1,fieldID=3 Where FieldName='fCpPrice1'");
    Do("Update rptListDetail Set FieldSelected=1,fieldID=1,FieldGridWidth=Null Where FieldName='fCpUnit'");
    Do("Update rptListDetail Set FieldSelected=1,fieldID=2 Where FieldName='fCpFlag'");
    Do("Update rptListDetail Set FieldDataDeci=3,FieldGridWidth=11.5 Where FieldName='fCpPrice1'");
    caller.Grid1.SetColumns({{.caption = "old"}});
    caller.Grid1.SetRowCount(4);
    EXPECT_EQ(SetupGridColumns("tJXC_Cp", caller.Grid1, 1), "fCpUnit,fCpFlag,fCpPrice1");
    const Grid& grid = caller.Grid1;
    ASSERT_EQ(grid.ColumnCount(), 4);
    EXPECT_EQ(grid.RowCount(), 0);
    EXPECT_TRUE(grid.readOnly);
    EXPECT_TRUE(grid.visible);
    EXPECT_EQ(grid.Column(1).caption, "单位");
    EXPECT_EQ(grid.Column(1).width, 8);
    EXPECT_EQ(grid.Column(1).type, CellType::Text);
    EXPECT_EQ(grid.Column(1).alignment, Alignment::Center);
    EXPECT_EQ(grid.Column(2).type, CellType::Check);
    EXPECT_EQ(grid.Column(3).type, CellType::Number);
    EXPECT_EQ(grid.Column(3).decimals, 3);
    EXPECT_EQ(grid.Column(3).width, 11.5);
    EXPECT_EQ(grid.Column(3).alignment, Alignment::Right);
    EXPECT_FALSE(grid.Column(3).hidden);
    EXPECT_TRUE(grid.Column(4).hidden);

    // The caller's own columns stand before them.
    session.Language = 1;
    EXPECT_EQ(SetupGridColumns("tJXC_Cp", caller.Grid1, 3), "fCpUnit,fCpFlag,fCpPrice1");
    ASSERT_EQ(grid.ColumnCount(), 6);
    EXPECT_EQ(grid.Column(1).caption, "");
    EXPECT_EQ(grid.Column(3).caption, "單位");
    EXPECT_TRUE(grid.Column(6).hidden);

    EXPECT_EQ(SetupGridColumns("tNoSuch", caller.Grid1, 2), "");
    EXPECT_EQ(grid.ColumnCount(), 2);
    EXPECT_TRUE(grid.Column(2).hidden);
}

TEST_P(Dictionary, KeepsTheWidthsOfColumns) {
    const std::string fields = SetupGridColumns("tJXC_Cp", caller.Grid1, 2);
    ASSERT_TRUE(fields.starts_with("fCpCode,fCpName,"));
    caller.Grid1.Column(2).width = 17;
    caller.Grid1.Column(3).width = 23.5;
    SaveGridColumnWidths("tJXC_Cp", caller.Grid1, 2, fields);
    EXPECT_EQ(clerk->view.boxes.back().title, "产品管理");
    EXPECT_EQ(clerk->view.boxes.back().text, "栏目样式保存完毕！");
    SetupGridColumns("tJXC_Cp", caller.Grid1, 1);
    EXPECT_EQ(caller.Grid1.Column(1).width, 17);
    EXPECT_EQ(caller.Grid1.Column(2).width, 23.5);
    EXPECT_EQ(caller.Grid1.Column(3).width, 20); // as the dictionary had it
    EXPECT_EQ(One("select FieldGridWidth from rptListDetail where FieldName='fCpPicture'"), "16");
}

TEST_P(Dictionary, FieldsAreRenamedInTheLanguageInUse) {
    caller.lblCpCw.tag = "fCpCw";
    OnSettings([&](frmRs_RptSet& s) {
        EXPECT_EQ(s.title, "项目设置");
        EXPECT_EQ(s.txtName.text, "限用仓位");
        EXPECT_EQ(s.txtItemNo.text, "fCpCw");
        EXPECT_THROW(Click(s, s.Command3), GestureRefused); // the list of this field is fixed
        EXPECT_THROW(EnterText(s, s.txtItemNo, "2010"), GestureRefused);
        EXPECT_THROW(EnterText(s, s.txtName, "一二三四五六七八九十一二三四五六"), GestureRefused);
        EnterText(s, s.txtName, "货'架");
        EXPECT_EQ(clerk->view.boxes.back().text, "文本错误: 文本中不可含有<引号>或<单引号> !");
        EnterText(s, s.txtName, "");
        Click(s, s.CmdOk);
        EXPECT_TRUE(s.IsOpen());
        EnterText(s, s.txtName, "货架");
        Click(s, s.CmdOk);
        EXPECT_FALSE(s.IsOpen());
    });
    EXPECT_TRUE(SetControlCaption(caller.lblCpCw, "tJXC_Cp"));
    EXPECT_EQ(caller.lblCpCw.caption, "货架");
    EXPECT_EQ(StoredField("fCpCw"), "货架|限用倉位|fCpCw");

    // Confirmed as it is, and closed without a choice: no change.
    OnSettings([](frmRs_RptSet& s) { Click(s, s.CmdOk); });
    EXPECT_FALSE(SetControlCaption(caller.lblCpCw, "tJXC_Cp"));
    OnSettings([](frmRs_RptSet& s) { EnterText(s, s.txtName, "别的"); });
    EXPECT_FALSE(SetControlCaption(caller.lblCpCw, "tJXC_Cp"));
    // Cancelled: the label shows what was typed, the dictionary keeps what it has.
    OnSettings([](frmRs_RptSet& s) {
        EnterText(s, s.txtName, "别的");
        Click(s, s.CmdCancel);
    });
    EXPECT_TRUE(SetControlCaption(caller.lblCpCw, "tJXC_Cp"));
    EXPECT_EQ(StoredField("fCpCw"), "货架|限用倉位|fCpCw");
}

TEST_P(Dictionary, FieldsAreFoundByTheirCaptionAndTakeACodeList) {
    Screen& settings = ScreenNamed("frmRs_RptSet");
    settings.SetProperty("TabelName", "tJXC_Cp");
    settings.SetProperty("Field", "");
    settings.SetProperty("ModelName", "產品圖片");
    session.Language = 1;
    clerk->view.OnScreen("frmBrief", [](Screen& screen) {
        auto& lists = dynamic_cast<Grid&>(*screen.Find("Grid1"));
        ASSERT_EQ(lists.RowCount(), 6);
        for (int row = 1; row <= lists.RowCount(); ++row)
            if (lists.Text(row, 1) == "1001")
                SelectRow(screen, lists, row);
        PressKey(screen, lists, "Enter");
    });
    OnSettings([](frmRs_RptSet& s) {
        EXPECT_EQ(s.txtName.text, "產品圖片");
        Click(s, s.Command3);
        EXPECT_EQ(s.txtItemNo.text, "1001");
        Click(s, s.CmdOk);
    });
    ShowModal(settings);
    EXPECT_EQ(StoredField("fCpPicture"), "产品图片|產品圖片|1001");
    EXPECT_EQ(session.RptSetResult, "產品圖片");

    // Nothing chosen leaves the number; a field that is not there leaves the boxes empty.
    settings.SetProperty("Field", "fCpPicture");
    clerk->view.OnScreen("frmBrief", [](Screen&) {});
    OnSettings([](frmRs_RptSet& s) {
        Click(s, s.Command3);
        EXPECT_EQ(s.txtItemNo.text, "1001");
    });
    ShowModal(settings);
    settings.SetProperty("Field", "fNoSuch");
    OnSettings([](frmRs_RptSet& s) { EXPECT_EQ(s.txtName.text + s.txtItemNo.text, ""); });
    ShowModal(settings);
}

TEST_P(Dictionary, ColumnsAreSelectedAndOrderedOnTheirScreen) {
    clerk->view.OnScreen("frmBrief", [](Screen& screen) {
        EXPECT_EQ(screen.title, "栏目设置");
        auto& columns = dynamic_cast<Grid&>(*screen.Find("Grid1"));
        EXPECT_EQ(columns.Text(2, 2), "品名");
        TypeCell(screen, columns, 1, 1, "0");
        EXPECT_THROW(TypeCell(screen, columns, 1, 1, "7"), GestureRefused);
        SelectRow(screen, columns, 3);
        Click(screen, dynamic_cast<Button&>(*screen.Find("cmdUp")));
        Click(screen, dynamic_cast<Button&>(*screen.Find("cmdOk")));
    });
    EXPECT_EQ(OpenBriefPicker("tJXC_Cp", "", BriefKind::SelectColumns), "tJXC_Cp");
    EXPECT_TRUE(SetupGridColumns("tJXC_Cp", caller.Grid1, 1).starts_with("fCpGG,fCpName,fCpUnit,"));
    clerk->view.OnScreen("frmBrief", [this](Screen& screen) {
        auto& grid = dynamic_cast<Grid&>(*screen.Find("Grid1"));
        for (int row = 1; row <= grid.RowCount(); ++row)
            TypeCell(screen, grid, row, 1, "0");
        clerk->view.boxes.clear();
        Click(screen, dynamic_cast<Button&>(*screen.Find("cmdOk"))); // a list without columns shows nothing
        ASSERT_EQ(clerk->view.boxes.size(), 1U);
        EXPECT_EQ(clerk->view.boxes.front().text, "请至少选择一个栏目！");
        EXPECT_TRUE(screen.IsOpen());
        Click(screen, dynamic_cast<Button&>(*screen.Find("cmdCancel")));
    });
    EXPECT_EQ(OpenBriefPicker("tJXC_Cp", "", BriefKind::SelectColumns), "");
}

// The way in to a field's caption: the column editor.
TEST_P(Dictionary, ColumnsAreRenamedFromTheirEditor) {
    clerk->view.OnScreen("frmBrief", [](Screen& screen) {
        SelectRow(screen, dynamic_cast<Grid&>(*screen.Find("Grid1")), 2);
        Click(screen, dynamic_cast<Button&>(*screen.Find("cmdRename")));
        EXPECT_EQ(dynamic_cast<Grid&>(*screen.Find("Grid1")).Text(2, 2), "货名");
        Click(screen, dynamic_cast<Button&>(*screen.Find("cmdCancel")));
    });
    clerk->view.OnScreen("frmRs_RptSet", [](Screen& screen) {
        EnterText(screen, dynamic_cast<TextBox&>(*screen.Find("txtName")), "货名");
        Click(screen, dynamic_cast<Button&>(*screen.Find("CmdOk")));
    });
    EXPECT_EQ(OpenBriefPicker("tJXC_Cp", "", BriefKind::SelectColumns), "tJXC_Cp");
    EXPECT_EQ(GetFieldCaption("tJXC_Cp", "fCpName"), "货名");
}

} // namespace

} // namespace jxc::test
