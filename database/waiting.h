// Tells somebody that an engine is being waited for, and whether he gives the waiting up.
#pragma once

#include <chrono>
#include <exception>
#include <functional>
#include <utility>

#include "base/log.h"

namespace jxc {

constexpr const char* kGaveUpWaiting = "已取消等待，操作没有进行。";

class Waiting {
  public:
    // Called with the seconds waited, and with -1 at the end; false gives up. Null for none.
    void SetObserver(std::function<bool(int seconds)> observer) { observer_ = std::move(observer); }

    // Waits of an instant are nobody's concern.
    [[nodiscard]] bool GoOn(std::chrono::milliseconds waited) {
        if (!observer_ || waited < std::chrono::milliseconds(300))
            return true;
        told_ = true;
        return Tell(static_cast<int>(waited.count() / 1000));
    }
    void End() {
        if (std::exchange(told_, false))
            Tell(-1);
    }

  private:
    // An observer that fails has no say; its error must not pass through the engine's C code.
    bool Tell(int seconds) {
        try {
            return observer_(seconds);
        } catch (const std::exception& error) {
            Log("waiting", error.what());
        } catch (...) {
            Log("waiting", "unknown error of the observer");
        }
        return true;
    }

    std::function<bool(int)> observer_;
    bool told_ = false;
};

class WaitingEnds {
  public:
    explicit WaitingEnds(Waiting& waiting) : waiting_(waiting) {}
    ~WaitingEnds() { waiting_.End(); }
    WaitingEnds(const WaitingEnds&) = delete;
    WaitingEnds& operator=(const WaitingEnds&) = delete;

  private:
    Waiting& waiting_;
};

} // namespace jxc
