// What shows the screens: windows for people, JSON lines for programs, a script for tests. One view is in use
// at a time.
#pragma once

#include <string>
#include <vector>

#include "controls/screen.h"

namespace jxc {

enum class BoxIcon { Information, Warning, Question };
enum class BoxButton { OK, Cancel, Yes, No };

struct MessageBox {
    std::string title;
    std::string text;
    BoxIcon icon = BoxIcon::Information;
    std::vector<BoxButton> buttons{BoxButton::OK};
};

std::string_view ButtonName(BoxButton button); // "OK", "Cancel", "Yes", "No"
std::string_view IconName(BoxIcon icon);       // "information", "warning", "question"

class View {
  public:
    virtual ~View() = default;
    // Lets the person work on the open screen until it is closed.
    virtual void RunModal(Screen& screen) = 0;
    virtual BoxButton ShowBox(const MessageBox& box) = 0;
    // Long work reports its step; `total` 0 ends the report.
    virtual void ShowProgress(const std::string& step, int done, int total) = 0;
    // A text to read, or a tree to print.
    virtual void ShowNotice(const std::string& title, const std::string& text) = 0;
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

// What a box of one line takes of the clipboard: its text up to the first line end.
std::string ClipboardLine();

void Warn(const std::string& title, const std::string& text);
void Inform(const std::string& title, const std::string& text);
bool AskOkCancel(const std::string& title, const std::string& text); // true for OK
bool AskYesNo(const std::string& title, const std::string& text);    // true for Yes

} // namespace jxc
