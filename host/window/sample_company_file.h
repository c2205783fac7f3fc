// The sample company with a month of trade, as a file.
#pragma once

#include <string>

namespace jxc {

// Makes it; the file must not exist yet. Leaves none when something fails.
void MakeSampleCompany(const std::string& file);

// The sample company to try the program with, among the program's own data; it may not be there yet.
std::string SampleCompanyFile();
// The same, made if it is missing. What stands in the way is a std::runtime_error.
std::string OwnSampleCompany();

} // namespace jxc
