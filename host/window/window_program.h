// The program with windows.
#pragma once

#include <string>

#include "host/property_settings.h"

namespace jxc {

// What the program is started with.
struct WindowStart {
    std::string company = {};       // "" for the last one
    bool sample = false;            // the sample company instead
    std::string user = {};          // "" for the one of the settings, or the company's first
    PropertySettings settings = {}; // see MainWindow::StandOver
};

// Shows the main window with the company; where nobody has worked on one yet, with the sample company, which is made
// among the program's own data on first use. A last company that is gone or cannot be opened is told, and the window
// stands without one unless the person wants the sample. Returns the exit code when the window has been closed.
// Properties that cannot be set, a company that is not there and a missing display are a std::runtime_error before any
// window.
int RunWindows(const WindowStart& start);

// Drives the windows through a sample company made for it and saves a picture of each as PNG in `folder`,
// which is made if it is missing. Works without a display. Returns the exit code; a window that does not do what
// it is told is a std::runtime_error.
int TakePictures(const std::string& folder);

// Plays a new user's way from nothing to the first approved document (host/window/first_company.h), leaves its pictures
// in `folder` and tells how many keys it took. The company goes again. As above otherwise.
int TakeFirstPictures(const std::string& folder);

} // namespace jxc
