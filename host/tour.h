// The tour: a piece of a trading company's month, played through the screens as a person would.
#pragma once

#include <string>

namespace jxc {

// Plays on `company`, a file that is created with the sample data when it does not exist, or an empty
// database on a server; "" takes a file in a temporary folder, removed at the end. Tells on standard output
// what is done and shows the resulting stock. 0 when all came as expected.
int PlayTour(const std::string& company);

} // namespace jxc
