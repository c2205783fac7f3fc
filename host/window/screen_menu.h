// What the main window offers: every screen that this version has, by subject, with what the host sets to
// open it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace jxc {

// One way into a screen: Refresh(action) with myType, and properties for the screen. With `screen` one of the
// host's own editors instead.
struct MenuEntry {
    std::string caption;
    std::int16_t action = -1;
    std::int16_t myType = -1;
    std::string screen;
};

// The ways into one subject's screens: an item of the tree. The first is what a double click does.
struct MenuItemRow {
    std::string caption;
    std::string purpose; // a sentence for the person
    std::vector<MenuEntry> entries;
};

struct Subject {
    std::string caption;
    std::vector<MenuItemRow> items;
};

// Reads the document types in use and the rights of the session's user. The session's connection must be
// open.
std::vector<Subject> SubjectsOf();

} // namespace jxc
