// The focus is to be seen wherever the keyboard goes, and only there.
#include "documents/frmDj01.h"
#include "documents/frmDj02.h"
#include "session/components.h"
#include "session/screen_entries.h"
#include "settings/frmRs_RptSet.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class FocusShown : public Windows {
  protected:
    // How much of the line around a widget is painted in the colour of the focus, from 0 to 1.
    static double Marked(const QWidget& widget) {
        QWidget& window = *widget.window();
        const QImage shown = window.grab().toImage();
        const QColor mark = window.palette().color(QPalette::Active, QPalette::Highlight);
        const QRect around(widget.mapTo(&window, QPoint(0, 0)) - QPoint(1, 1), widget.size() + QSize(2, 2));
        int points = 0, marked = 0;
        const auto look = [&](int x, int y) {
            if (!shown.rect().contains(x, y))
                return;
            ++points;
            marked += shown.pixelColor(x, y) == mark;
        };
        for (int x = around.left(); x <= around.right(); ++x) {
            look(x, around.top());
            look(x, around.bottom());
        }
        for (int y = around.top(); y <= around.bottom(); ++y) {
            look(around.left(), y);
            look(around.right(), y);
        }
        return points > 0 ? double(marked) / points : 0;
    }

    // Walks with Tab until the first stop comes again; the stops in their order.
    std::vector<QWidget*> Walk() {
        std::vector<QWidget*> stops;
        person.Press(Qt::Key_Shift); // a window in memory is in front from its first key on
        for (int i = 0; i < 80; ++i) {
            QWidget* here = person.Front().focusWidget();
            if (!here || (!stops.empty() && here == stops.front()))
                break;
            EXPECT_GT(Marked(*here), 0.8) << S(here->objectName());
            if (!stops.empty() && stops.back() != here) {
                EXPECT_LT(Marked(*stops.back()), 0.4) << S(stops.back()->objectName()) << " was left";
            }
            if (stops.empty() || stops.back() != here)
                stops.push_back(here);
            person.Press(Qt::Key_Tab);
        }
        return stops;
    }
};

template <typename Kind>
bool AnyOf(const std::vector<QWidget*>& stops) {
    return std::any_of(stops.begin(), stops.end(),
                       [](QWidget* stop) { return qobject_cast<Kind*>(stop) != nullptr; });
}

TEST_F(FocusShown, AtEveryStopOfTheEntryAndOfTheList) {
    Enter(1, [&] {
        const auto stops = Walk();
        EXPECT_TRUE(AnyOf<QLineEdit>(stops) && AnyOf<QComboBox>(stops) && AnyOf<QDateEdit>(stops) &&
                    AnyOf<QCheckBox>(stops) && AnyOf<QTableView>(stops) && AnyOf<QPushButton>(stops))
            << stops.size();
    });
    Open(11, 1, [&] {
        person.Find<QTabWidget>("SSTab1").setCurrentIndex(2); // the filters
        const auto stops = Walk();
        EXPECT_TRUE(AnyOf<QRadioButton>(stops) && AnyOf<QCheckBox>(stops)) << stops.size();
    });
}

TEST_F(FocusShown, AtEveryStopOfTheEditors) {
    for (const ScreenEntry& editor : ScreenEntries()) {
        if (!editor.openedByName)
            continue;
        person.Next([&] {
            EXPECT_GT(Walk().size(), 1U) << editor.name;
            person.Press(Qt::Key_C, Qt::AltModifier); // the fields are usable now
            EXPECT_GT(Walk().size(), 3U) << editor.name;
        });
        OpenByName(editor.name);
    }
    EXPECT_EQ(person.Boxes(), Texts{});
}

TEST_F(FocusShown, AtEveryStopOfTheSmallScreens) {
    const OpenCompany open(company.Address());
    const auto walksThrough = [&](const char* table, const char* code, BriefKind kind) {
        person.Next([&] {
            person.Find("cmdOk").setFocus(); // the cells of the grid are one stop, to be met on the way
            const auto stops = Walk();
            EXPECT_TRUE(AnyOf<QTableView>(stops) && AnyOf<QPushButton>(stops))
                << static_cast<int>(kind) << ": " << stops.size();
        });
        ComponentsInUse().codeLists->Edit(table, code, kind);
    };
    walksThrough("", "99999999", BriefKind::ChooseList);
    walksThrough("", "2010", BriefKind::EditEntries);
    walksThrough("tJXC_Cp", "", BriefKind::SelectColumns);
    auto& field = static_cast<frmRs_RptSet&>(ScreenNamed("frmRs_RptSet"));
    field.TabelName = "tJXC_Cp";
    field.Field = "fCpCw";
    person.Next([&] { EXPECT_TRUE(AnyOf<QLineEdit>(Walk())); });
    ShowModal(field);
    EXPECT_EQ(person.Boxes(), Texts{});
}

TEST_F(FocusShown, AtEveryStopOfTheStockQuery) {
    Save(1, true);
    for (const int action : {4, 5, 6})
        Open(action, -1, [&] {
            const auto stops = Walk();
            EXPECT_TRUE(AnyOf<QTableView>(stops) && AnyOf<QPushButton>(stops)) << action;
        });
}

TEST_F(FocusShown, SelectionIsFaintWhileTheFocusIsElsewhere) {
    Save(1, true);
    Open(4, -1, [&] {
        auto& table = person.Find<QTableView>("Grid1");
        const auto ground = [&] {
            const QRect cell = table.visualRect(table.model()->index(0, 1));
            return table.viewport()->grab().toImage().pixelColor(cell.right() - 3, cell.bottom() - 3);
        };
        person.ClickCell("Grid1", 1, 1);
        const QColor strong = ground();
        person.Press(Qt::Key_Backtab, Qt::ShiftModifier);
        ASSERT_NE(person.Focus(), "Grid1");
        const QColor faint = ground();
        EXPECT_GT(faint.lightness(), 215);
        EXPECT_LT(strong.lightness(), 160);
        EXPECT_LT(faint.lightness(), 255); // but still to be seen
    });
}

} // namespace

} // namespace jxc::test
