// What went wrong, for whoever has to find out why: a file of lines beside the program's settings. People see the
// message of their work; the engine's own words stand here.
//
// The file is JXC_LOG's when the environment names one, else jxc.log in the user's settings folder
// (XDG_CONFIG_HOME or ~/.config, lzJxc below it). It is readable by its owner only and begins anew at a megabyte;
// the three before are kept as jxc.log.1 to .3. A file that cannot be written is done without.
#pragma once

#include <string>
#include <string_view>

namespace jxc {

// Adds a line with the time. `subject` is what was being done.
void Log(std::string_view subject, std::string_view text);

// The file in use; "" when there is none.
std::string LogFile();

} // namespace jxc
