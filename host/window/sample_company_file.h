// The sample company with a month of trade, as a file.
#pragma once

#include <string>

namespace jxc {

// Makes it; the file must not exist yet. Leaves none when something fails.
void MakeSampleCompany(const std::string& file);

} // namespace jxc
