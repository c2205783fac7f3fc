// Every screen that is registered, on both engines: it opens, each of its commands can be pressed, and whichever
// statement fails on the way, the person is told, nothing stays half done and the screen works on.
#include "controls/gestures.h"
#include "session/screen_entries.h"
#include "session/session.h"
#include "tests/support/clerk.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

// One way in which a screen is opened.
struct Opening {
    std::string screen;
    ScreenProperties properties = {};

    void Prepare() const {
        Screen& shown = ScreenNamed(screen);
        for (const auto& [name, value] : properties)
            shown.SetProperty(name, value);
    }
};

// Screens that stand for several things are opened as each of them; the others as they are.
std::vector<Opening> Openings(int receipt) {
    std::vector<Opening> openings;
    const std::map<std::string, std::vector<ScreenProperties>> several{
        {"frmCkKc", {{{"myState", 0}}, {{"myState", 1}}, {{"myState", 2}}}},
        {"frmDj01", {{{"invType", 1}}, {{"invType", 99}}, {{"invType", 224}}}},
        {"frmDj02",
         {{{"Action", 1}, {"invType", 1}},
          {{"Action", 1}, {"invType", 31}},
          {{"Action", 0}, {"invType", 1}, {"oldInvID", receipt}},
          {{"Action", 2}, {"invType", 1}, {"oldInvID", receipt}}}},
        {"frmBrief", {{{"kind", 1}}, {{"kind", 2}, {"code", "zy"}}, {{"kind", 5}, {"table", "lzJxc_Dj01"}}}},
        {"frmRs_RptSet", {{{"TabelName", "tJXC_Cp"}, {"Field", "fCpCode"}}}}};
    for (const ScreenEntry& entry : ScreenEntries()) {
        if (!entry.make)
            continue;
        const auto ways = several.find(entry.name);
        if (ways == several.end())
            openings.push_back({entry.name});
        else
            for (const ScreenProperties& properties : ways->second)
                openings.push_back({entry.name, properties});
    }
    return openings;
}

class EveryScreen : public OnOpenCompany {
  protected:
    // Opens the screen freshly, lets `act` work on it and closes it. False when it did not open.
    bool Visit(const Opening& opening, const std::function<void(Screen&)>& act) {
        ResetScreens();
        opening.Prepare();
        bool opened = false;
        clerk->view.boxes.clear();
        clerk->view.OnScreen(opening.screen, [&](Screen& screen) {
            if (!std::exchange(opened, true)) // one that opens over it is closed at once
                act(screen);
        });
        ShowModal(ScreenNamed(opening.screen));
        clerk->view.OnScreen(opening.screen, nullptr);
        return opened;
    }
    // The commands that a person could press when the screen has opened.
    std::vector<std::string> Commands(const Opening& opening) {
        std::vector<std::string> names;
        EXPECT_TRUE(Visit(opening, [&](const Screen& screen) {
            for (const Control* control : screen.Controls())
                if (dynamic_cast<const Command*>(control) && control->IsUsable())
                    names.push_back(control->name);
        }));
        return names;
    }
    // A failure at opening may have left the command disabled, as a person would find it.
    static void Press(Screen& screen, const std::string& name) {
        auto& command = dynamic_cast<Command&>(*screen.Find(name));
        if (command.IsUsable())
            Click(screen, command);
    }
    // No fault of the program was told, and the connection is fit for the next work.
    void ExpectSound(const std::string& where) {
        for (const MessageBox& box : clerk->view.boxes)
            EXPECT_EQ(box.text.find("程序出现内部错误"), std::string::npos) << where << "\n" << box.details;
        EXPECT_NO_THROW({
            Transaction transaction(Conn());
            EXPECT_EQ(Conn().Query("Select Count(*) From tJXC_InvSys").At(0, 0).AsLong(), 1);
        }) << where;
    }
    // `work` with its first statement failing, then with its second, until none is left to fail.
    void FailEach(const std::string& where, const std::function<void()>& work) {
        for (size_t failing = 1;; ++failing) {
            ASSERT_LT(failing, 500u) << where;
            size_t sent = 0;
            {
                const Recorder recorder(failing);
                EXPECT_NO_THROW(work()) << where << ", statement " << failing;
                sent = recorder.sent.size();
            }
            ExpectSound(where + ", statement " + std::to_string(failing));
            if (sent < failing)
                return;
        }
    }
};
ON_BOTH_ENGINES(EveryScreen);

TEST_P(EveryScreen, OpensAndTakesEveryCommand) {
    const int receipt = clerk->Save(TypicalDocument(1));
    for (const Opening& opening : Openings(receipt))
        for (const bool agreed : {false, true})
            for (const std::string& command : Commands(opening)) {
                const std::string where = opening.screen + " " + command;
                clerk->view.AnswerWith([agreed](const MessageBox& box) {
                    return agreed ? box.buttons.front() : box.buttons.back();
                });
                EXPECT_TRUE(Visit(opening, [&](Screen& screen) { Press(screen, command); })) << where;
                ExpectSound(where);
            }
}

TEST_P(EveryScreen, SurvivesTheFailureOfAnyStatement) {
    const int receipt = clerk->Save(TypicalDocument(1));
    for (const Opening& opening : Openings(receipt)) {
        FailEach(opening.screen, [&] { Visit(opening, [](Screen&) {}); });
        for (const std::string& command : Commands(opening)) {
            FailEach(opening.screen + " " + command, [&] {
                // The statements of opening are counted too: those of the command come behind them.
                Visit(opening, [&](Screen& screen) { Press(screen, command); });
            });
        }
    }
}

} // namespace

} // namespace jxc::test
