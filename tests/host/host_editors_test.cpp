// What every editor of the host owes its users: a title as menus name it, a word for every box, a key for
// every button, and a save that is whole or not at all.
#include "session/screen_entries.h"

#include <set>

#include "controls/gestures.h"
#include "controls/scripted_view.h"
#include "forms/record_editor.h"
#include "host/company_address.h"
#include "host/editors/frmHostCards.h"
#include "session/session.h"
#include "tests/support/on_sample_company.h"

namespace jxc::test {

namespace {

class HostEditorScreens : public OnSampleCompany {
  protected:
    ScriptedView view;
    ViewInUse inUse{view};
};
ON_BOTH_ENGINES(HostEditorScreens);

TEST_P(HostEditorScreens, OpenByNameAndCanBeWorkedByKeyboard) {
    int editors = 0;
    for (const ScreenEntry& editor : ScreenEntries()) {
        if (!editor.openedByName)
            continue;
        ++editors;
        view.OnScreen(editor.name, [&](Screen& screen) {
            EXPECT_EQ(screen.title, editor.menu.at(0).caption);
            EXPECT_NE(screen.Focus(), nullptr);
            std::set<char> keys;
            for (const Control* control : screen.Controls()) {
                if (control->kind != ControlKind::Grid && dynamic_cast<RecordEditor*>(&screen)) {
                    EXPECT_NE(control->caption, "") << control->name;
                }
                const size_t mark = control->caption.find('&');
                if (control->kind == ControlKind::Button) {
                    ASSERT_NE(mark, std::string::npos) << control->name;
                    EXPECT_TRUE(keys.insert(control->caption[mark + 1]).second) << control->name;
                }
            }
        });
        OpenByName(editor.name);
        EXPECT_EQ(view.screens.back(), editor.name);
        EXPECT_EQ(session.Conn, nullptr);
    }
    EXPECT_EQ(editors, 7);
    EXPECT_THROW(OpenByName("frmDj02"), ScreenError);
    EXPECT_TRUE(view.boxes.empty());
}

// Whoever asks for it, from a menu or by script: without the right the editor stays shut, and it is said.
TEST_P(HostEditorScreens, AskForTheirRight) {
    control.myPower("00000");
    OpenByName("frmHostCards");
    EXPECT_TRUE(view.screens.empty());
    ASSERT_EQ(view.boxes.size(), 1U);
    EXPECT_EQ(view.boxes[0].text, "您无权进入!");
    for (const ScreenEntry& editor : ScreenEntries()) {
        if (!editor.openedByName || editor.module.empty())
            continue;
        const OpenCompany open(company->Address());
        EXPECT_FALSE(MayOpen(editor));
        control.myPower("1111111111");
        EXPECT_TRUE(MayOpen(editor));
    }
}

// The addresses of a card are deleted before the card: when that fails they come back, and the screen stays.
TEST_P(HostEditorScreens, SaveWholeOrNotAtAll) {
    view.OnScreen("frmHostCards", [&](Screen& screen) {
        auto& s = dynamic_cast<frmHostCards&>(screen);
        EnterText(s, s.txtSeek, "X004");
        Click(s, s.cmdSeek);
        Click(s, s.cmdDelete);
        Conn().SetObserver([](std::string_view sql) {
            if (sql.starts_with("Delete From cards"))
                throw DatabaseError("disk full");
        });
        Click(s, s.cmdSave);
        EXPECT_EQ(view.boxes.back().text, "disk full");
        EXPECT_EQ(s.mode, EditorMode::Delete);
        EXPECT_FALSE(Conn().InTransaction());
        EXPECT_EQ(One("select count(*) from tJXC_KhAdd Where fKhID=13"), "2");
        Conn().SetObserver(nullptr);
        Click(s, s.cmdSave);
        EXPECT_EQ(s.mode, EditorMode::Browse);
        EXPECT_EQ(One("select count(*) from tJXC_KhAdd Where fKhID=13"), "0");
    });
    OpenByName("frmHostCards");
}

} // namespace

} // namespace jxc::test
