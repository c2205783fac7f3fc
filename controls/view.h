// What shows the screens: windows for people, JSON lines for programs, a script for tests. One view is in use
// at a time.
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "controls/screen.h"

namespace jxc {

enum class BoxIcon { Information, Warning, Question };
enum class BoxButton { OK, Cancel, Yes, No, Save, Discard };

struct MessageBox {
    std::string title;
    std::string text;
    BoxIcon icon = BoxIcon::Information;
    std::vector<BoxButton> buttons{BoxButton::OK};
    std::string details = {}; // the cause as the engine told it, shown on demand; "" for none
    size_t preset = 0;        // the button that Enter presses
};

std::string_view ButtonName(BoxButton button); // "OK", "Cancel", "Yes", "No" ...
std::string_view IconName(BoxIcon icon);       // "information", "warning", "question"

class View {
  public:
    virtual ~View() = default;
    // Lets the person work on the open screen until it is closed.
    virtual void RunModal(Screen& screen) = 0;
    virtual BoxButton ShowBox(const MessageBox& box) = 0;
    // Long work reports its step; `total` 0 ends the report.
    virtual void ShowProgress(const std::string& step, int done, int total) = 0;
    // Whether the person asked the work that is being reported to stop.
    virtual bool StopAsked() { return false; }
    // A text to read, or a tree to print.
    virtual void ShowNotice(const std::string& title, const std::string& text) = 0;
    // A line beside the work and a sound; nothing waits for an answer, so the next key answers nothing.
    virtual void Signal(const std::string& text) = 0;
    // The database has not answered for so many seconds, perhaps because another user is saving; -1 when it has.
    // False when the person gives up: the work then fails with that reason.
    virtual bool KeepWaiting(int seconds) = 0;
    // Opens a file, mail or web address with the desktop's program.
    virtual void OpenAddress(const std::string& address) = 0;
    // Starts the dialer with a number, "" without one; nothing where the platform has no dialer.
    virtual void DialNumber(const std::string& number) = 0;
    virtual std::string Clipboard() = 0;
    virtual void SetClipboard(const std::string& text) = 0;
};

View& CurrentView(); // a ScreenError when none is in use
// Puts a view in use for its lifetime, and the one before back afterwards.
class ViewInUse {
  public:
    explicit ViewInUse(View& view);
    ~ViewInUse();
    ViewInUse(const ViewInUse&) = delete;
    ViewInUse& operator=(const ViewInUse&) = delete;

  private:
    View* before_;
};

// Ends the report of long work however its block is left.
struct ProgressEnds {
    ProgressEnds() = default;
    ~ProgressEnds() {
        try {
            CurrentView().ShowProgress("", 0, 0);
        } catch (...) { // a view that fails here has no more to end
        }
    }
    ProgressEnds(const ProgressEnds&) = delete;
    ProgressEnds& operator=(const ProgressEnds&) = delete;
};

// What a box of one line takes of the clipboard: its text up to the first line end.
std::string ClipboardLine();

void Warn(const std::string& title, const std::string& text);
// The message of work that failed; its cause goes to the log and is shown on demand.
void WarnOfFailure(const std::string& title, const std::string& text, const std::string& cause);
// The text of the innermost error nested in an error, or else its own.
std::string CauseOf(const std::exception& error);
// What a person or a script is told of an error: a runtime error's own text; of a fault of the program, that there was
// one, whose own text goes to the log as `title`'s.
std::string TextForPeople(const std::string& title, const std::exception& error);
// An error that no routine expected: a fault of the program, told as such. Errors of people and of the world are
// runtime errors with a text for people, which is told as it is; what is nested in one is its cause.
void WarnOfError(const std::string& title, const std::exception& error);
// Runs `work`; what it throws is told by WarnOfError. False then.
bool Attempt(const std::string& title, const std::function<void()>& work);
void Inform(const std::string& title, const std::string& text);
bool AskOkCancel(const std::string& title, const std::string& text); // true for OK
bool AskYesNo(const std::string& title, const std::string& text);    // true for Yes
// What becomes of typed work: Save, Discard or Cancel, and Enter means Cancel.
BoxButton AskSaveOrDiscard(const std::string& title, const std::string& text);
// Before a person leaves the screen: asks what becomes of work that is not saved, and saves it if that is wanted. False
// when the person stays: rather goes on, or the work could not be saved.
[[nodiscard]] bool MayDropWork(Screen& screen);

} // namespace jxc
