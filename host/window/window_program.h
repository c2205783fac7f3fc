// The program with windows.
#pragma once

#include <string>

namespace jxc {

// Shows the main window with the company, "" for the last one; with `sample`, or when there is no last one,
// the sample company, which is made among the program's own data on first use. `user` "" for the company's
// first. Returns the exit code when the window has been closed.
int RunWindows(const std::string& company, const std::string& user, bool sample);

// Drives the windows through a sample company made for it and saves a picture of each as PNG in `folder`,
// which is made if it is missing. Works without a display. Returns the exit code.
int TakePictures(const std::string& folder);

} // namespace jxc
