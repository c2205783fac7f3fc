// Refresh: from a screen number to the screen, with the settings that the number stands for.

#include <functional>
#include <vector>

#include "controls/screen.h"
#include "session/company_visit.h"
#include "session/lzjxc.h"
#include "session/session.h"

namespace jxc {

namespace {

bool Always() {
    return true;
}
bool IsClose() {
    return session.myType == 1;
}
bool IsReverseClose() {
    return session.myType != 1;
}
bool IsTree() {
    return session.myType == 0;
}
bool IsList() {
    return session.myType != 0;
}

using Prepare = void (*)(Screen&);

void Nothing(Screen&) {}
void CpNoEditOff(Screen& screen) {
    screen.SetProperty("CpNoEdit", 0);
}
void CpTjSelectOff(Screen& screen) {
    screen.SetProperty("CpTjSelect", 0);
}
template <int State>
void FixedState(Screen& screen) {
    screen.SetProperty("myState", State);
}
void StateOfType(Screen& screen) {
    screen.SetProperty("myState", session.myType);
}
void Tick(Screen& screen, const char* box, bool ticked) {
    if (auto* toggle = dynamic_cast<Toggle*>(screen.Find(box)))
        toggle->value = ticked;
}
// The screen is kept between calls: the box that the other call cleared is ticked again.
void HeaderList(Screen& screen) {
    screen.SetProperty("invType", session.myType);
    Tick(screen, "chkDj", true);
    Tick(screen, "chkDjMx", false);
}
void LineList(Screen& screen) {
    screen.SetProperty("invType", session.myType);
    Tick(screen, "chkDj", false);
    Tick(screen, "chkDjMx", true);
}
// A host that calls the entry screen wants to write a new document.
void NewDocument(Screen& screen) {
    screen.SetProperty("Action", 1);
    screen.SetProperty("OldType", 0);
    screen.SetProperty("oldInvID", 0);
    screen.SetProperty("JzState", 0);
    screen.SetProperty("invType", session.myType);
}

struct DispatchRow {
    int action;
    bool (*when)();
    const char* screen;
    Prepare prepare;
};

const DispatchRow kDispatch[] = {
    {0, Always, "frmSystem", Nothing},
    {1, Always, "frmCk", Nothing},
    {2, Always, "frmCp", CpNoEditOff},
    {3, Always, "frmCpTj", CpTjSelectOff},
    {4, Always, "frmCkKc", FixedState<0>},
    {5, Always, "frmCkKc", FixedState<1>},
    {6, Always, "frmCkKc", FixedState<2>},
    {7, IsClose, "frmJz_Step", Nothing},
    {7, IsReverseClose, "frmJz_unStep", Nothing},
    {8, Always, "frmTb01", StateOfType},
    {9, Always, "frmTb02", StateOfType},
    {11, Always, "frmDj01", HeaderList},
    {12, Always, "frmDj01", LineList},
    {13, Always, "frmDj02", NewDocument},
    {14, Always, "frmJh02", StateOfType},
    {21, IsTree, "frmYj_Jbr_Jb", FixedState<0>},
    {21, IsList, "frmYj_Jbr", Nothing},
    {22, Always, "frmYj_Set", Nothing},
    {23, Always, "frmYj_Gr", Nothing},
    {24, Always, "frmYj_Jbr_Jb", StateOfType},
    {25, Always, "frmYj_Tj", StateOfType},
    {28, Always, "frmYj_Tj02", Nothing},
    {29, Always, "frmYj_Step", Nothing},
};

const DispatchRow* RowOf(int action) {
    for (const DispatchRow& row : kDispatch)
        if (row.action == action && row.when())
            return &row;
    return nullptr;
}

// A host's mistake in a property is told before anything is opened or set.
void CheckProperties(const DispatchRow* row, const ScreenProperties& properties) {
    const Screen* screen = row ? FindScreen(row->screen) : nullptr;
    for (const auto& [name, value] : properties)
        if (screen && !screen->HasProperty(name))
            throw ScreenError(screen->name + " 没有属性 " + name + "。");
}

void ShowScreen(const DispatchRow& row, const ScreenProperties& properties) {
    Screen& screen = ScreenNamed(row.screen);
    row.prepare(screen);
    for (const auto& [name, value] : properties)
        screen.SetProperty(name, value);
    ShowModal(screen);
}

} // namespace

void lzJxc::Refresh(std::int16_t RAction, const ScreenProperties& properties) {
    const DispatchRow* row = RowOf(RAction);
    CheckProperties(row, properties);
    VisitCompany([&] {
        if (row)
            ShowScreen(*row, properties);
    });
}

} // namespace jxc
