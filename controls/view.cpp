#include "controls/view.h"

namespace jxc {

namespace {
View* inUse = nullptr;
}

std::string_view ButtonName(BoxButton button) {
    switch (button) {
    case BoxButton::OK:
        return "OK";
    case BoxButton::Cancel:
        return "Cancel";
    case BoxButton::Yes:
        return "Yes";
    case BoxButton::No:
        return "No";
    }
    return "";
}

std::string_view IconName(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Information:
        return "information";
    case BoxIcon::Warning:
        return "warning";
    case BoxIcon::Question:
        return "question";
    }
    return "";
}

View& CurrentView() {
    if (!inUse)
        throw ScreenError("没有可用的显示界面。");
    return *inUse;
}

ViewInUse::ViewInUse(View& view) : before_(inUse) {
    inUse = &view;
}
ViewInUse::~ViewInUse() {
    inUse = before_;
}

std::string ClipboardLine() {
    const std::string text = CurrentView().Clipboard();
    return text.substr(0, text.find_first_of("\r\n"));
}

void Warn(const std::string& title, const std::string& text) {
    CurrentView().ShowBox({title, text, BoxIcon::Warning, {BoxButton::OK}});
}

void Inform(const std::string& title, const std::string& text) {
    CurrentView().ShowBox({title, text, BoxIcon::Information, {BoxButton::OK}});
}

bool AskOkCancel(const std::string& title, const std::string& text) {
    const MessageBox box{title, text, BoxIcon::Question, {BoxButton::OK, BoxButton::Cancel}};
    return CurrentView().ShowBox(box) == BoxButton::OK;
}

bool AskYesNo(const std::string& title, const std::string& text) {
    const MessageBox box{title, text, BoxIcon::Question, {BoxButton::Yes, BoxButton::No}};
    return CurrentView().ShowBox(box) == BoxButton::Yes;
}

} // namespace jxc
