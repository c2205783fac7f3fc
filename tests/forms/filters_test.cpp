// What screens share to ask a query: conditions behind ticked boxes, and the way in which lists find their place again.
#include "controls/gestures.h"
#include "controls/grid_routines.h"
#include "controls/scripted_view.h"
#include "forms/columns.h"
#include "forms/filters.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

struct Asking : Screen {
    Asking() : Screen("asking") {
        signs.items = {" =", ">="};
        signs.SetIndex(1);
    }
    void Open() override {}

    CheckBox chkName{*this, "chkName"};
    PatternField txtName{*this, "txtName"};
    CheckBox chkPrice{*this, "chkPrice"};
    ListBox signs{*this, "signs"};
    PatternField txtPrice{*this, "txtPrice"};
    CheckBox chkDate{*this, "chkDate"};
    DateRange days{*this, "days"};
    CheckBox chkNeg{*this, "chkNeg"};
    Filters filters{{{chkName, txtName, "(a Like {like} Or b={text})"},
                     {chkPrice, signs, txtPrice, "p "},
                     {chkDate, days, "d"},
                     {chkNeg, "n<0"}}};
};

class Filtering : public testing::Test {
  protected:
    void SetUp() override { session.SQLData = 0; }
    ScriptedView view;
    ViewInUse inUse{view};
    Asking s;
};

TEST_F(Filtering, LimitsByTickedBoxesInTheirOrder) {
    EXPECT_EQ(s.filters.Condition(), "");
    s.chkNeg.value = s.chkName.value = s.chkPrice.value = s.chkDate.value = true;
    s.txtName.text = "ab";
    s.txtPrice.text = "2.50x";
    s.days.first.date = MakeDate(2026, 11, 1);
    s.days.last.date = MakeDate(2026, 11, 30);
    EXPECT_EQ(s.filters.Condition(),
              " And (a Like '%ab%' Or b='ab') And p >= 2.5 And d Between #2026-11-01# And "
              "#2026-11-30# And n<0");
    s.days.first.date.reset();
    s.chkName.value = s.chkPrice.value = s.chkNeg.value = false;
    EXPECT_EQ(s.filters.Condition(), " And d = #2026-11-30#");
    s.days.last.date.reset();
    EXPECT_EQ(s.filters.Condition(), "");
}

// What a person types is content, even if it reads like a part of the test.
TEST_F(Filtering, TakesWhatIsTypedAsItIs) {
    s.chkName.value = true;
    s.txtName.text = "{text}o'x{number}";
    EXPECT_EQ(s.filters.Condition(), " And (a Like '%{text}o''x{number}%' Or b='{text}o''x{number}')");
}

// Typing looks for what is typed; what is emptied, or unticked afterwards, is the person's own choice.
TEST_F(Filtering, TicksItsBoxWhenSomethingIsGiven) {
    view.OnScreen("asking", [&](Screen&) {
        EnterText(s, s.txtName, "a");
        PickDate(s, s.days.last, MakeDate(2026, 11, 30));
        EXPECT_TRUE(s.chkName.value);
        EXPECT_TRUE(s.chkDate.value);
        EXPECT_FALSE(s.chkPrice.value);
        SetToggle(s, s.chkName, false);
        EnterText(s, s.txtName, "");
        EXPECT_FALSE(s.chkName.value);
    });
    ShowModal(s);
    EXPECT_EQ(view.screens.size(), 1u);
}

class Lists : public OnBothEngines {};
ON_BOTH_ENGINES(Lists);

TEST_P(Lists, FillByTheirColumnsAndFindTheirPlaceAgain) {
    struct Listing : Screen {
        Listing() : Screen("listing") {}
        void Open() override {}
        Grid grid{*this, "grid"};
    } screen;
    bool wanted = false;
    Columns list(screen.grid, {{"地址", "fKhAdd", 20},
                               {.caption = "长度",
                                .field = "fKhAdd",
                                .figure = Figure::Number,
                                .made = [](const Recordset& row) -> Value {
                                    return static_cast<int>(row["fKhAdd"].AsText().size());
                                },
                                .when = [&] { return wanted; },
                                .decimals = 0},
                               {"fKhID", "fKhID", 0, Figure::Key}});
    const auto fill = [&] {
        Recordset rows(Conn(), "select " + list.FieldList() + " from tJXC_KhAdd order by fKhID");
        return list.Fill(rows);
    };
    for (const char* row : {"1,'bb'", "2,'a'", "3,'ccc'"})
        Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (" + std::string(row) + ")");
    list.SetUp();
    EXPECT_TRUE(screen.grid.readOnly);
    EXPECT_EQ(fill(), 3);
    EXPECT_TRUE(screen.grid.Column(2).hidden && screen.grid.Column(3).hidden);
    EXPECT_TRUE(screen.grid.Cell(1, 2).IsNull()); // not wanted, not filled
    wanted = true;
    list.ShowWanted();
    list.takes = [](const Recordset& row) { return row["fKhAdd"].AsText() != "a"; };
    EXPECT_EQ(fill(), 2);
    EXPECT_EQ(screen.grid.ShownText(2, 2), "3");
    EXPECT_FALSE(screen.grid.Column(2).hidden);

    list.takes = nullptr;
    fill();
    GridSort(screen.grid, 1);
    GridSort(screen.grid, 1); // downwards: ccc, bb, a
    screen.grid.selectedRow = 2;
    const KeptPlace kept = KeepPlace(list);
    Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (9,'z')");
    fill();
    EXPECT_EQ(screen.grid.sortedColumn, 0);
    RestorePlace(list, kept);
    EXPECT_EQ(screen.grid.Text(1, 1), "z");
    EXPECT_EQ(screen.grid.Text(screen.grid.selectedRow, 1), "bb");
    Do("Delete From tJXC_KhAdd Where fKhID=1");
    fill();
    RestorePlace(list, kept);
    EXPECT_EQ(screen.grid.selectedRow, 0);
}

} // namespace

} // namespace jxc::test
