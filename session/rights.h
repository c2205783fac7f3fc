// What the signed-in user may do: the digits of myPower, read through the host's module table.
#pragma once

#include <string>

namespace jxc {

// A module of the host's table.
struct Module {
    int serial = 0;       // position in myPower; -1 is open to everyone, 0: no such module in use
    std::string name;     // model_Name
    std::string caption;  // in the session's language
    std::string password; // only of modules with a second pass word
};

// The module by its name or caption. Opens the connection if it is closed: a right may be asked for at any
// time.
[[nodiscard]] Module GetModule(const std::string& moduleName);

// Not 0 when the user has the right `offset` digits behind the module's own. Without a user name, or for a
// module that is not in use, the answer is 0 without a message; a digit "0" shows message 39.
[[nodiscard]] int ModuleRight(const std::string& moduleName, int offset);
// The same without a message: for what is shown or disabled when a screen opens.
[[nodiscard]] bool HasModuleRight(const std::string& moduleName, int offset);

} // namespace jxc
