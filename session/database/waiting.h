// Tells somebody that an engine is being waited for, and whether he gives the waiting up.
#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace jxc {

constexpr const char* kGaveUpWaiting = "已取消等待，操作没有进行。";

class Waiting {
  public:
    // Called with the seconds waited, and with -1 at the end; false gives up. Null for none.
    void SetObserver(std::function<bool(int seconds)> observer) { observer_ = std::move(observer); }

    // Waits of an instant are nobody's concern.
    bool GoOn(std::chrono::milliseconds waited) {
        if (!observer_ || waited < std::chrono::milliseconds(300))
            return true;
        told_ = true;
        return observer_(static_cast<int>(waited.count() / 1000));
    }
    void End() {
        if (std::exchange(told_, false))
            observer_(-1);
    }

  private:
    std::function<bool(int)> observer_;
    bool told_ = false;
};

class WaitingEnds {
  public:
    explicit WaitingEnds(Waiting& waiting) : waiting_(waiting) {}
    ~WaitingEnds() {
        try {
            waiting_.End();
        } catch (...) { // an observer that fails here has no more to tell
        }
    }
    WaitingEnds(const WaitingEnds&) = delete;
    WaitingEnds& operator=(const WaitingEnds&) = delete;

  private:
    Waiting& waiting_;
};

} // namespace jxc
