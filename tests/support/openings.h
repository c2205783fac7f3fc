// Every way in which the registered screens are opened, for tests that go through all of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/clerk.h"

namespace jxc::test {

// One way in which a screen is opened.
struct Opening {
    std::string screen;
    ScreenProperties properties = {};
};

// Of all registered screens: those that stand for several things as each of them, the others as they are. `receipt` is
// the key of a receipt that is not approved.
std::vector<Opening> Openings(int receipt);

// Opens the screen freshly, lets `act` work on it and closes it; screens that open over it are closed at once. False
// when it did not open.
bool Visit(Clerk& clerk, const Opening& opening, const std::function<void(Screen&)>& act);

// The commands that a person could press when the screen has opened.
std::vector<std::string> CommandsOf(Clerk& clerk, const Opening& opening);
// Presses the command as far as it can be pressed.
void PressCommand(Screen& screen, const std::string& command);

} // namespace jxc::test
