// Refresh: from a screen number to the screen, with the settings that the number stands for.

#include "session/company/company_visit.h"
#include "session/lzjxc.h"
#include "session/screen_entries.h"

namespace jxc {

namespace {

struct Called {
    const ScreenEntry* entry = nullptr; // null for a number without a screen
    const HostCall* call = nullptr;
};

Called ScreenOf(int action) {
    for (const ScreenEntry& entry : ScreenEntries())
        for (const HostCall& call : entry.calls)
            if (call.action == action && (!call.when || call.when()))
                return {&entry, &call};
    return {};
}

// A host's mistake in a property is told before anything is opened or set.
void CheckProperties(const Called& called, const ScreenProperties& properties) {
    const Screen* screen = called.entry ? FindScreen(called.entry->name) : nullptr;
    for (const auto& [name, value] : properties)
        if (screen && !screen->HasProperty(name))
            throw ScreenError(screen->name + " 没有属性 " + name + "。");
}

void ShowScreen(const Called& called, const ScreenProperties& properties) {
    Screen& screen = ScreenNamed(called.entry->name);
    if (called.call->prepare)
        called.call->prepare(screen);
    for (const auto& [name, value] : properties)
        screen.SetProperty(name, value);
    ShowModal(screen);
}

} // namespace

void lzJxc::Refresh(std::int16_t RAction, const ScreenProperties& properties) {
    const Called called = ScreenOf(RAction);
    CheckProperties(called, properties);
    VisitCompany([&] {
        if (called.entry)
            ShowScreen(called, properties);
    });
}

} // namespace jxc
