// The program with windows.
#pragma once

#include <string>

namespace jxc {

// Shows the main window with the company, "" for the last one or the sample company; `user` "" for its first.
// Returns the exit code when the window has been closed.
int RunWindows(const std::string& company, const std::string& user);

// Drives the windows through a sample company made for it and saves a picture of each as PNG in `folder`,
// which is made if it is missing. Works without a display. Returns the exit code.
int TakePictures(const std::string& folder);

} // namespace jxc
