// A view for unit tests: message boxes are answered from a list, screens are driven by a routine per name,
// and everything shown is recorded.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "controls/view.h"

namespace jxc {

class ScriptedView : public View {
  public:
    // What to do when a screen of that name opens; it is closed when the routine returns.
    void OnScreen(const std::string& name, std::function<void(Screen&)> routine) {
        routines_[name] = std::move(routine);
    }
    // The answers to the boxes to come. Without one, a box is answered by its first button.
    void Answer(BoxButton button) { answers_.push_back(button); }
    // Answers every box from now on by a routine.
    void AnswerWith(std::function<BoxButton(const MessageBox&)> answer) { answer_ = std::move(answer); }

    std::vector<MessageBox> boxes;    // shown so far
    std::vector<std::string> screens; // opened so far
    std::vector<std::string> notices;
    std::vector<std::string> told; // lines beside the work
    std::vector<std::string> addresses;
    std::vector<std::string> steps; // of progress
    std::vector<std::string> dialled;
    std::string clipboard;
    std::vector<int> waits; // the seconds told of each waiting, -1 at its end
    bool patient = true;

    void RunModal(Screen& screen) override;
    BoxButton ShowBox(const MessageBox& box) override;
    void ShowProgress(const std::string& step, int done, int total) override;
    void ShowNotice(const std::string& title, const std::string& text) override;
    void Signal(const std::string& text) override { told.push_back(text); }
    bool KeepWaiting(int seconds) override {
        waits.push_back(seconds);
        return patient;
    }
    void OpenAddress(const std::string& address) override { addresses.push_back(address); }
    void DialNumber(const std::string& number) override { dialled.push_back(number); }
    std::string Clipboard() override { return clipboard; }
    void SetClipboard(const std::string& text) override { clipboard = text; }

  private:
    std::map<std::string, std::function<void(Screen&)>> routines_;
    std::deque<BoxButton> answers_;
    std::function<BoxButton(const MessageBox&)> answer_;
};

} // namespace jxc
