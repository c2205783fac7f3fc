#include "documents/document_screens.h"

#include "documents/frmDj01.h"
#include "documents/frmDj02.h"
#include "documents/frmDjTrades.h"
#include "session/screen_entries.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr std::int16_t kAllTypes = 99;

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

} // namespace

void RegisterDocumentScreens() {
    AddScreen({.name = "frmDj01",
               .make = [] { return std::make_unique<frmDj01>(); },
               .calls = {{11, HeaderList}, {12, LineList}},
               .menu = {{"查询(&Q)", "仓库单据查询", "按任意条件查找所有单据。", 11, kAllTypes},
                        {"查询(&Q)", "仓库明细查询", "按任意条件查找单据的每一行。", 12, kAllTypes}}});
    AddScreen({.name = "frmDj02",
               .make = [] { return std::make_unique<frmDj02>(); },
               .calls = {{13, NewDocument}}});
    AddScreen({.name = "frmDjTrades", .make = [] { return std::make_unique<frmDjTrades>(); }});
}

} // namespace jxc
