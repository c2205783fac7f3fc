// A company whose months are closed and taken back through their screens.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "tests/support/clerk.h"

namespace jxc::test {

class OnClosing : public OnOpenCompany {
  protected:
    void TearDown() override {
        FixToday(std::nullopt);
        OnOpenCompany::TearDown();
    }
    // Opens the screen, starts, answers each box with its first button, and leaves; `before` runs before the start.
    // Whether the month moved.
    bool Close(const std::function<void()>& before = {}) { return Run("frmJz_Step", before); }
    bool Reverse(const std::function<void()>& before = {}) { return Run("frmJz_unStep", before); }
    // One receipt, one issue, one transfer, one assembly and so on, each approved.
    void OneOfEach();

  private:
    bool Run(const std::string& screen, const std::function<void()>& before);
};

// The books, and the closed tables too.
Lines AllBooks();
// The documents of the open book, without the stamp that a restored one keeps, and the period.
Lines OpenDocuments();

} // namespace jxc::test
