#include "tests/support/files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace jxc::test {

TemporaryFolder::TemporaryFolder() : path_(std::filesystem::temp_directory_path() / "jxc-test-XXXXXX") {
    if (!mkdtemp(path_.data()))
        throw std::runtime_error("no folder " + path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code busy; // what cannot go stays: no test depends on it
    std::filesystem::remove_all(path_, busy);
}

std::string FileText(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    if (in.peek() != std::ifstream::traits_type::eof())
        text << in.rdbuf();
    if (!in.is_open() || in.bad())
        throw std::runtime_error("cannot read " + file);
    return text.str();
}

} // namespace jxc::test
