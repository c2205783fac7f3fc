#include "tests/support/openings.h"

#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "session/screen_entries.h"

namespace jxc::test {

std::vector<Opening> Openings(int receipt) {
    std::vector<Opening> openings;
    const std::map<std::string, std::vector<ScreenProperties>> several{
        {"frmCpTj", {{{"CpTjSelect", 0}}, {{"CpTjSelect", 1}, {"TjID", 3}}}},
        {"frmCkKc", {{{"myState", 0}}, {{"myState", 1}}, {{"myState", 2}}}},
        {"frmJh02", {{{"myState", 0}}, {{"myState", 1}}}},
        {"frmDj01", {{{"invType", 1}}, {{"invType", 99}}, {{"invType", 224}}}},
        {"frmDj02",
         {{{"Action", 1}, {"invType", 1}},
          {{"Action", 1}, {"invType", 31}},
          {{"Action", 0}, {"invType", 1}, {"oldInvID", receipt}},
          {{"Action", 2}, {"invType", 1}, {"oldInvID", receipt}}}},
        {"frmBrief", {{{"kind", 1}}, {{"kind", 2}, {"code", "zy"}}, {{"kind", 5}, {"table", "lzJxc_Dj01"}}}},
        {"frmCp", {{}, {{"CpCode", "CPU"}, {"CpNoEdit", 1}}}},
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

bool Visit(Clerk& clerk, const Opening& opening, const std::function<void(Screen&)>& act) {
    ResetScreens();
    Screen& shown = ScreenNamed(opening.screen);
    for (const auto& [name, value] : opening.properties)
        shown.SetProperty(name, value);
    bool opened = false;
    clerk.view.boxes.clear();
    clerk.view.OnScreen(opening.screen, [&](Screen& screen) {
        if (!std::exchange(opened, true))
            act(screen);
    });
    ShowModal(shown);
    clerk.view.OnScreen(opening.screen, nullptr);
    return opened;
}

std::vector<std::string> CommandsOf(Clerk& clerk, const Opening& opening) {
    std::vector<std::string> names;
    EXPECT_TRUE(Visit(clerk, opening, [&](const Screen& screen) {
        for (const Control* control : screen.Controls())
            if (dynamic_cast<const Command*>(control) && control->IsUsable())
                names.push_back(control->name);
    })) << opening.screen;
    return names;
}

void PressCommand(Screen& screen, const std::string& name) {
    auto& command = dynamic_cast<Command&>(*screen.Find(name));
    if (command.IsUsable())
        Click(screen, command);
}

} // namespace jxc::test
