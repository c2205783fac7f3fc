// The view for people: a window per open screen, message boxes, progress, the desktop's clipboard and
// programs. Needs a QApplication.
#pragma once

#include <memory>
#include <vector>

#include "controls/view.h"

namespace jxc {

class ProgressWindow;
class ScreenWindow;
class WaitingWindow;

class QtView : public View {
  public:
    QtView();
    ~QtView() override;

    void RunModal(Screen& screen) override;
    BoxButton ShowBox(const MessageBox& box) override;
    void ShowProgress(const std::string& step, int done, int total) override;
    bool StopAsked() override;
    void ShowNotice(const std::string& title, const std::string& text) override;
    bool KeepWaiting(int seconds) override;
    void Signal(const std::string& text) override;
    void OpenAddress(const std::string& address) override;
    void DialNumber(const std::string& number) override;
    std::string Clipboard() override;
    void SetClipboard(const std::string& text) override;

    // The window of the screen in front; null when none is open.
    ScreenWindow* Front() const { return windows_.empty() ? nullptr : windows_.back(); }
    // Message boxes shown so far: a gesture that raised one does not move on by itself.
    int BoxesShown() const { return boxesShown_; }

  private:
    std::vector<ScreenWindow*> windows_; // the open ones, the one in front last
    std::unique_ptr<ProgressWindow> progress_;
    std::unique_ptr<WaitingWindow> waiting_;
    int boxesShown_ = 0;
};

} // namespace jxc
