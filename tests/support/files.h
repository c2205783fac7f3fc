// Files of a test: a folder that goes with it, and what a file holds.
#pragma once

#include <string>

namespace jxc::test {

// A new folder, removed with all that it holds.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return path_; }
    // The path of a file in it, which need not be there.
    std::string File(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

// All bytes of a file. Throws std::runtime_error when it cannot be read.
std::string FileText(const std::string& file);

} // namespace jxc::test
