// A month of trade in the sample company, entered and approved through the screens as a clerk would: what the
// pictures and a first look show.
#pragma once

namespace jxc {

// The session names the company, which must hold the sample's cards and no documents, and the user who approves.
// Throws std::runtime_error with the first thing that did not go as expected. Takes a few seconds at most.
void PlaySampleMonth();

} // namespace jxc
