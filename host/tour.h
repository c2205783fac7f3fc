// The tour: a piece of a trading company's month, played through the screens as a person would.
#pragma once

#include <string>

namespace jxc {

// Plays on `company`, a sample company as a file or in a database on a server, which is made when it is not
// there; another company is refused. "" takes a file in a temporary folder, removed at the end. Tells on standard output
// what is done and shows the resulting stock. 0 when all came as expected.
int PlayTour(const std::string& company);

} // namespace jxc
