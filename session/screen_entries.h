// The entries of the screens: what makes each, which of the host's calls open it, where a menu offers it and whose
// right it needs. Dispatch, menus and scripts read them; a subsystem adds its own.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/screen.h"

namespace jxc {

// A number of lzJxc::Refresh that opens the screen. `when` chooses between screens of one number, null for always;
// `prepare` sets what the number stands for before the caller's own properties, null for nothing.
struct HostCall {
    std::int16_t action;
    void (*prepare)(Screen&) = nullptr;
    bool (*when)() = nullptr;
};

// An item of a menu: the call it makes, or, with an action of -1, the screen opened by its name.
struct MenuPlace {
    std::string subject; // of the items that stand together, with its mnemonic
    std::string caption;
    std::string purpose; // one sentence
    std::int16_t action = -1;
    std::int16_t myType = -1;
};

struct ScreenEntry {
    std::string name;
    // Null: this version has no such screen yet, and a call says so.
    std::function<std::unique_ptr<Screen>()> make = {};
    std::vector<HostCall> calls = {};
    std::vector<MenuPlace> menu = {};
    std::string module = {};   // whose right the menu and an opening by name ask for, "" for none
    bool openedByName = false; // it has no number
};

// Adds the entry, in place of one of the same name, and its maker to the table of screens.
void AddScreen(ScreenEntry entry);
const std::vector<ScreenEntry>& ScreenEntries(); // in the order in which they were added

// Whether the signed-in user may open the screen from a menu; asks nobody and says nothing.
[[nodiscard]] bool MayOpen(const ScreenEntry& entry);

// Opens the company of the session's properties, shows the screen until it is closed, and closes the company. A user
// without its right is told so, wherever he comes from. A company that cannot be opened is told in a message box; a
// name of no screen that is opened so is a ScreenError.
void OpenByName(std::string_view screen);

// For HostCall::prepare: the screen's property myState is fixed, or the host's myType.
template <int State>
void FixedState(Screen& screen) {
    screen.SetProperty("myState", State);
}
void StateOfType(Screen& screen);

} // namespace jxc
