// The host's own screens, by which a company is set up: they belong to the program around the module and have
// no screen number. They are opened by name.
#pragma once

#include <span>
#include <string_view>

namespace jxc {

struct HostEditor {
    std::string_view screen; // "frmHostCards"
    std::string_view title;  // as a menu names it
};
std::span<const HostEditor> HostEditors();

void RegisterHostEditors();

// Opens the company of the session's properties, shows the editor until it is closed, and closes the company.
// A company that cannot be opened is told in a message box; a name that is no editor is a ScreenError.
void OpenHostEditor(std::string_view screen);

} // namespace jxc
