#include "session/screen_entries.h"

#include <algorithm>

#include "session/company/company_visit.h"
#include "session/rights.h"
#include "session/session.h"

namespace jxc {

namespace {

std::vector<ScreenEntry>& Entries() {
    static std::vector<ScreenEntry> entries;
    return entries;
}

} // namespace

void AddScreen(ScreenEntry entry) {
    if (entry.make)
        RegisterScreen(entry.name, entry.make);
    const auto known =
        std::ranges::find_if(Entries(), [&](const ScreenEntry& other) { return other.name == entry.name; });
    if (known == Entries().end())
        Entries().push_back(std::move(entry));
    else
        *known = std::move(entry);
}

const std::vector<ScreenEntry>& ScreenEntries() {
    return Entries();
}

bool MayOpen(const ScreenEntry& entry) {
    return entry.module.empty() || HasModuleRight(entry.module, 0);
}

void OpenByName(std::string_view screen) {
    const auto entry = std::ranges::find_if(
        Entries(), [&](const ScreenEntry& known) { return known.openedByName && known.name == screen; });
    if (entry == Entries().end())
        throw ScreenError("没有窗口 " + std::string(screen) + "。");
    VisitCompany([&] {
        if (entry->module.empty() || ModuleRight(entry->module, 0) != 0)
            ShowModal(ScreenNamed(screen));
    });
}

void StateOfType(Screen& screen) {
    screen.SetProperty("myState", session.myType);
}

} // namespace jxc
