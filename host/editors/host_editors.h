// The host's own screens, by which a company is set up: they belong to the program around the module and have
// no screen number. They are opened by name.
#pragma once

#include <span>
#include <string_view>

namespace jxc {

struct HostEditor {
    std::string_view screen; // "frmHostCards"
    std::string_view title;  // as a menu names it
    std::string_view module; // whose right is needed, "" for none
};
std::span<const HostEditor> HostEditors();
// A ScreenError for a name that is no editor.
const HostEditor& FindHostEditor(std::string_view screen);

void RegisterHostEditors();

// Whether the signed-in user may open the editor; asks nobody and says nothing.
bool MayOpen(const HostEditor& editor);

// Opens the company of the session's properties, shows the editor until it is closed, and closes the company. A user
// without its right is told so, wherever he comes from.
// A company that cannot be opened is told in a message box; a name that is no editor is a ScreenError.
void OpenHostEditor(std::string_view screen);

} // namespace jxc
