// Screens that this version does not have yet. A host's call of one is answered by a box that says so, and menus do
// not offer it. Whoever makes one moves its entry to the screen's own folder.

#include "host/planned_screens.h"
#include "session/screen_entries.h"
#include "session/session.h"

namespace jxc {

namespace {

bool IsTree() {
    return session.myType == 0;
}
bool IsList() {
    return session.myType != 0;
}

void PlanAnalyses() {
    AddScreen({.name = "frmTb01",
               .calls = {{8, StateOfType}},
               .menu = {{"查询(&Q)", "经理查询", "经营情况的图表。", 8, 0}}});
    AddScreen({.name = "frmTb02",
               .calls = {{9, StateOfType}},
               .menu = {{"查询(&Q)", "销售分析", "销售情况的图表。", 9, 0}}});
}

void PlanPerformance() {
    AddScreen({.name = "frmYj_Jbr_Jb",
               .calls = {{21, FixedState<0>, IsTree}, {24, StateOfType}},
               .menu = {{"业绩(&Y)", "营销员关系图", "营销员的上下级。", 21, 0}}});
    AddScreen({.name = "frmYj_Jbr",
               .calls = {{21, nullptr, IsList}},
               .menu = {{"业绩(&Y)", "营销员资料", "营销员名册。", 21, 1}}});
    AddScreen({.name = "frmYj_Set", .calls = {{22}}});
    AddScreen({.name = "frmYj_Gr", .calls = {{23}}});
    AddScreen({.name = "frmYj_Tj", .calls = {{25, StateOfType}}});
    AddScreen({.name = "frmYj_Tj02", .calls = {{28}}});
    AddScreen({.name = "frmYj_Step", .calls = {{29}}});
}

} // namespace

void RegisterPlannedScreens() {
    PlanAnalyses();
    PlanPerformance();
}

} // namespace jxc
