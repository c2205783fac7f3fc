// Texts and figures, row formulas, the key filter, gestures: what a person meets at every control.
#include <gtest/gtest.h>

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/grid_routines.h"
#include "controls/scripted_view.h"
#include "forms/edit_filter.h"
#include "session/lookups/lists.h"

namespace jxc {

namespace {

TEST(Text, NumbersAreReadByTheirLeadingDigits) {
    const std::pair<const char*, double> cases[] = {{"", 0},      {"12.5kg", 12.5}, {"  -3", -3}, {"abc", 0},
                                                    {"1,234", 1}, {"1e3x", 1000},   {"1e", 1},    {".5", 0.5},
                                                    {"-", 0},     {"+7", 7},        {"0x10", 0}};
    for (const auto& [text, number] : cases)
        EXPECT_EQ(Val(text), number) << text;
    EXPECT_TRUE(IsNumericText(" -1.5 "));
    for (const char* text : {"", "-", "1.2.3", "1x", "."})
        EXPECT_FALSE(IsNumericText(text)) << text;
}

TEST(Text, FiguresRoundAsPeopleRound) {
    // Half of the last decimal as written, not as the binary number happens to lie.
    EXPECT_EQ(RoundDecimal(1.005, 2), 1.01);
    EXPECT_EQ(RoundDecimal(-1.005, 2), -1.01);
    EXPECT_EQ(RoundDecimal(0.00015, 4, Halves::ToEven), 0.0002);
    EXPECT_EQ(RoundDecimal(0.00025, 4, Halves::ToEven), 0.0002);
    EXPECT_EQ(RoundDecimal(0.00025, 4), 0.0003);
    EXPECT_EQ(RoundDecimal(10.02 * 0.0125, 4, Halves::ToEven), 0.1252); // 0.12525 exactly
    EXPECT_EQ(RoundDecimal(10.02 * 0.0125, 4), 0.1253);
    EXPECT_EQ(RoundDecimal(999.995, 2), 1000);
    EXPECT_EQ(AddDecimal(AddDecimal(0.1, 0.2), -0.3), 0);
    EXPECT_EQ(AddDecimal(AddDecimal(1234567.89, 0.01), -0.01), 1234567.89);
    EXPECT_EQ(FormatFixed(1234567.891, 2, true), "1,234,567.89");
    EXPECT_EQ(FormatFixed(-0.001, 2), "0.00");
    EXPECT_EQ(FormatFixed(999.5, 0, true), "1,000");
    EXPECT_EQ(NumberText(800.0), "800");
    EXPECT_EQ(NumberText(0.1), "0.1");
}

TEST(Text, LengthsCountBytesOfTheCodePage) {
    EXPECT_EQ(AnsiByteLength("内存16G"), 7);
    EXPECT_EQ(TruncateToBytes("内存条", 5), "内存"); // the third would pass the limit
    EXPECT_EQ(TruncateToBytes("a内存", 3), "a内");
    EXPECT_EQ(MidText("入库单：新增", 5), "新增");
    EXPECT_EQ(CharacterCount(PadRight("客户", 80)), 80);
}

double Row(const char* formula, double d, double e) {
    return RowFormula(formula).Evaluate([=](int column) { return column == 4 ? d : e; });
}

TEST(RowFormulas, ComputeLikeASpreadsheet) {
    EXPECT_EQ(Row("E#*D#", 3, 7), 21);
    EXPECT_EQ(Row("E#-D#", 10, 7), -3);
    EXPECT_DOUBLE_EQ(Row("D#*E#/(1+E#)", 117, 0.17), 17);
    EXPECT_EQ(Row("D#/E#", 1, 0), 0); // no finite answer
    EXPECT_EQ(Row("IF(D#<=1500,0,IF(E#=2,1,2))", 1500, 0), 0);
    EXPECT_EQ(Row("IF(D#<=1500,0,IF(E#=2,1,2))", 1501, 2), 1);
    EXPECT_EQ(Row("IF(D#<>E#,-D#,+E#)", 4, 5), -4);
    for (const char* bad : {"", "E#*", "E#,D#", "X", "E#+(D#", "E1*2", "sin(E#)", "E#=D#=", "D#;E#"})
        EXPECT_THROW(RowFormula{bad}, FormulaError) << bad;
}

struct Desk : Screen {
    Desk() : Screen("desk") { title = "Desk"; }
    void Open() override {}
    TextBox first{*this, "first"};
    TextBox amount{*this, "amount"};
    Grid grid{*this, "grid"};
    Frame panel{*this, "panel"};
    Button save{panel, "save"};
};

// Works on the desk while it is open.
void AtDesk(ScriptedView& view, Desk& desk, const std::function<void()>& work) {
    view.OnScreen("desk", [&](Screen&) { work(); });
    ShowModal(desk);
}

TEST(GridModel, FormulasFollowEachOtherInDependencyOrder) {
    Desk desk;
    desk.grid.SetColumns(std::vector<GridColumn>(4, GridColumn{.type = CellType::Number}));
    desk.grid.SetFormula(4, "C#*0.1"); // set before the formula it rests on
    desk.grid.SetFormula(3, "A#*B#");
    desk.grid.SetRowCount(1);
    std::vector<int> changed;
    desk.grid.onCellChange = [&](int, int column) { changed.push_back(column); };
    desk.grid.SetCell(1, 1, 5.0);
    desk.grid.SetCell(1, 2, 8.0);
    EXPECT_EQ(desk.grid.Number(1, 4), 4);
    EXPECT_EQ(changed.back(), 4);
    EXPECT_THROW(desk.grid.SetFormula(1, "D#+1"), FormulaError); // a circle
    EXPECT_THROW(desk.grid.SetFormula(1, "E#"), FormulaError);   // no such column
    EXPECT_THROW(desk.grid.SetFormula(3, "D#"), FormulaError);
    EXPECT_THROW(desk.grid.SetFormula(4, "AAAAAAAAAA#"), FormulaError);
    EXPECT_THROW(desk.grid.Cell(2, 1), ScreenError);
    desk.grid.SetCell(1, 1, 10.0); // what was refused has changed nothing
    EXPECT_EQ(desk.grid.Number(1, 3), 80);
    EXPECT_EQ(desk.grid.Number(1, 4), 8);
    desk.grid.SetFormula(4, "if(C#>50,1,2)");
    desk.grid.Recalculate();
    EXPECT_EQ(desk.grid.Number(1, 4), 1);
}

TEST(GridModel, KnowsFiguresOutOfBounds) {
    Desk desk;
    desk.grid.SetColumns({{.type = CellType::Number, .below = 100},
                          {.type = CellType::Number, .decimals = 2},
                          {.type = CellType::Number, .below = 1000}});
    desk.grid.SetFormula(3, "A#*B#");
    desk.grid.SetRowCount(1);
    desk.grid.SetCell(1, 2, 11.0);
    ScriptedView view;
    const ViewInUse inUse(view);
    AtDesk(view, desk, [&] {
        TypeCell(desk, desk.grid, 1, 1, "90");
        EXPECT_THROW(TypeCell(desk, desk.grid, 1, 1, "91"), GestureRefused); // 1001
        EXPECT_EQ(desk.grid.Number(1, 3), 990);
        for (const char* typed : {"100", "-100", "1e300", "1e400", "-1e400"})
            EXPECT_THROW(TypeCell(desk, desk.grid, 1, 1, typed), GestureRefused) << typed;
        TypeCell(desk, desk.grid, 1, 1, "1e-400"); // nothing, and no overflow
        EXPECT_EQ(desk.grid.Number(1, 1), 0);
        for (const char* typed : {"1e999", "-1e999"}) // in a column without a bound
            try {
                TypeCell(desk, desk.grid, 1, 2, typed);
                ADD_FAILURE() << typed;
            } catch (const GestureRefused& refused) {
                EXPECT_NE(std::string(refused.what()).find("只能输入数字"), std::string::npos)
                    << refused.what();
            }
        TypeCell(desk, desk.grid, 1, 2, "1e300");
        EXPECT_EQ(desk.grid.Number(1, 2), 1e300);
    });
}

TEST(CellBlocks, AreReadAsSpreadsheetsWriteThem) {
    EXPECT_EQ(ReadCells("a\tb\r\n\r\n\t\nc\t\n"), (CellBlock{{"a", "b"}, {"c", ""}}));
    EXPECT_EQ(ReadCells("\"a\tb\nc\"\t\"\"\"q\"\"\"\n5\" screen"),
              (CellBlock{{"a\tb\nc", "\"q\""}, {"5\" screen"}}));
}

TEST(EditBoxes, TakeALongTextInOneGo) {
    Desk desk;
    ScriptedView view;
    const ViewInUse inUse(view);
    AtDesk(view, desk, [&] {
        int changes = 0;
        desk.first.onChange = [&] { ++changes; };
        EnterText(desk, desk.first, std::string(2'000'000, 'x') + "\n中");
        EXPECT_EQ(desk.first.text, std::string(2'000'000, 'x') + "中");
        EXPECT_EQ(changes, 1);
    });
}

TEST(GridModel, SortsStablyAndMarksTheHeading) {
    Desk desk;
    desk.grid.SetColumns({{.caption = "名称"}, {.caption = "数量", .type = CellType::Number}});
    desk.grid.SetRowCount(4);
    const char* const names[] = {"b", "a", "d", "c"};
    const Value amounts[] = {Value(10), Value(2.5), Value(), Value(10)};
    for (int row = 1; row <= 4; ++row) {
        desk.grid.FillCell(row, 1, names[row - 1]);
        desk.grid.FillCell(row, 2, amounts[row - 1]);
    }
    const auto order = [&] {
        std::string text;
        for (int row = 1; row <= 4; ++row)
            text += desk.grid.Text(row, 1);
        return text;
    };
    GridSort(desk.grid, 2);
    EXPECT_EQ(order(), "dabc");
    EXPECT_EQ(desk.grid.Column(2).caption, "数量↑");
    // Colours and selection go with their row.
    desk.grid.selectedRow = 2;
    desk.grid.SetRowTextColor(2, Rgb(255, 0, 0));
    GridSort(desk.grid, 2);
    EXPECT_EQ(order(), "bcad");
    EXPECT_EQ(desk.grid.selectedRow, 3);
    EXPECT_EQ(desk.grid.TextColor(3), 255);
    EXPECT_EQ(desk.grid.TextColor(2), kNormalColor);
    EXPECT_EQ(desk.grid.Column(2).caption, "数量↓");
    GridSort(desk.grid, 1);
    EXPECT_EQ(order(), "abcd");
    EXPECT_EQ(desk.grid.Column(2).caption, "数量");
}

TEST(GridModel, RowsAreAppendedInsertedAndRemovedAtTheSelection) {
    Desk desk;
    desk.grid.SetColumns({{.caption = "A"}, {.caption = "B", .type = CellType::Number}});
    GridAppendRow(desk.grid, 1);
    desk.grid.SetCell(1, 1, "x");
    GridAppendRow(desk.grid, 1);
    desk.grid.SetCell(2, 1, "z");
    desk.grid.selectedRow = 1;
    GridAppendRow(desk.grid, 1);
    EXPECT_EQ(desk.grid.RowCount(), 3);
    EXPECT_EQ(desk.grid.Text(2, 1) + desk.grid.Text(3, 1), "z");
    desk.grid.selectedRow = 0;
    GridAppendRow(desk.grid, 1); // nothing: no row selected in a filled grid
    GridAppendRow(desk.grid, 2);
    EXPECT_EQ(desk.grid.RowCount(), 3);
    EXPECT_EQ(GridHasValue(desk.grid, 1, "x"), 0);
    EXPECT_EQ(GridHasValue(desk.grid, 1, "z"), 3);
    desk.grid.SetCell(1, 2, 5.0);
    RemoveBlankRows(desk.grid, 2); // z has no amount, the middle row no name
    EXPECT_EQ(desk.grid.RowCount(), 1);
}

TEST(Keys, LengthAndNumberFilterWorkKeyByKey) {
    ScriptedView view;
    const ViewInUse inUse(view);
    Desk desk;
    AtDesk(view, desk, [&] {
        FilterKeys(desk.first, 10);
        EnterText(desk, desk.first, "123456789");
        desk.first.selStart = 9;
        EXPECT_FALSE(desk.first.PressKey(0x5E93)); // 库 counts two bytes
        EXPECT_TRUE(desk.first.PressKey('x'));
        EXPECT_EQ(desk.first.text, "123456789x");
        view.clipboard = "ab";
        EXPECT_FALSE(desk.first.PressKey(22));
        EXPECT_EQ(view.boxes.back().text, "文本太小,无法容纳剪贴板数据.");

        FilterKeys(desk.amount, 10, true);
        EnterText(desk, desk.amount, "12.5");
        EXPECT_THROW(EnterText(desk, desk.amount, "1e5"), GestureRefused);
        EXPECT_THROW(EnterText(desk, desk.amount, "-5"), GestureRefused); // a sign alone is no number yet
        EXPECT_EQ(desk.amount.text, "12.5");
        desk.amount.selStart = 1;
        desk.amount.selLength = 0;
        desk.amount.PressKey('.'); // moves the point to where it was typed
        EXPECT_EQ(desk.amount.text, "1.25");
        view.clipboard = "x";
        EXPECT_FALSE(desk.amount.PressKey(22));
    });
}

TEST(Gestures, MeetTheRulesAPersonMeets) {
    ScriptedView view;
    const ViewInUse inUse(view);
    Desk desk;
    AtDesk(view, desk, [&] {
        desk.panel.visible = false;
        EXPECT_THROW(Click(desk, desk.save), GestureRefused);
        desk.panel.visible = true;
        desk.panel.enabled = false;
        EXPECT_THROW(Click(desk, desk.save), GestureRefused);
        desk.first.onLeave = [] { return CheckNoQuote("it's"); };
        EnterText(desk, desk.first, "x");
        EXPECT_EQ(desk.Focus(), &desk.first); // the box keeps the focus
        EXPECT_FALSE(GoTo(desk, desk.amount));
        desk.first.onLeave = nullptr;
        desk.amount.onEnter = [] { throw std::runtime_error("数据库出错"); };
        GoTo(desk, desk.amount);
        EXPECT_EQ(view.boxes.back().text, "数据库出错"); // told, and the screen stays
        EXPECT_TRUE(desk.IsOpen());
    });
}

TEST(Lists, ItemsAreFoundByKeyOrText) {
    Desk desk;
    ListBox list(desk, "list");
    list.items = {"  1入库单", " 23采购订单", PadRight("公司", 80) + "17"};
    EXPECT_EQ(ComboIndexByLeftValue(list, 23, 3), 1);
    EXPECT_EQ(ComboIndexByLeftValue(list, 5, 3), -1);
    EXPECT_EQ(ComboIndexByMidValue(list, 17, 81), 2);
    EXPECT_EQ(ComboIndexByMidValue(list, 0, 81), -1);
    EXPECT_EQ(ComboIndexByText(list, ""), -1);
    EXPECT_EQ(ComboIndexByText(list, " 23采购订单"), 1);
}

} // namespace

} // namespace jxc
