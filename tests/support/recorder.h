// Hears every statement that the session's connection sends while it lives, and has one of them fail when it is told to.
#pragma once

#include <string>
#include <vector>

namespace jxc::test {

class Recorder {
  public:
    // The statement of that number from now on fails, counted from 1; 0 for none.
    explicit Recorder(size_t failing = 0);
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    std::vector<std::string> sent; // in their order, transaction commands among them
};

} // namespace jxc::test
