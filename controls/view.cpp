#include "controls/view.h"

#include <typeinfo>

#include "base/log.h"

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
    case BoxButton::Save:
        return "Save";
    case BoxButton::Discard:
        return "Discard";
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

void WarnOfFailure(const std::string& title, const std::string& text, const std::string& cause) {
    const bool itself = text == cause; // there is no more to tell
    Log(title, itself ? text : text + " " + cause);
    CurrentView().ShowBox({title, text, BoxIcon::Warning, {BoxButton::OK}, itself ? "" : cause});
}

std::string CauseOf(const std::exception& error) {
    try {
        std::rethrow_if_nested(error);
    } catch (const std::exception& cause) {
        return CauseOf(cause);
    }
    return error.what();
}

namespace {

bool IsFault(const std::exception& error) {
    return !dynamic_cast<const std::runtime_error*>(&error);
}

std::string TextOfFault() {
    return "程序出现内部错误，本次操作没有完成。请把日志交给技术支持：" + LogFile();
}

std::string NameOfFault(const std::exception& error) {
    return std::string(typeid(error).name()) + "：" + error.what();
}

} // namespace

std::string TextForPeople(const std::string& title, const std::exception& error) {
    if (!IsFault(error))
        return error.what();
    Log(title, NameOfFault(error));
    return TextOfFault();
}

void WarnOfError(const std::string& title, const std::exception& error) {
    if (IsFault(error))
        return WarnOfFailure(title, TextOfFault(), NameOfFault(error));
    WarnOfFailure(title, error.what(), CauseOf(error));
}

bool Attempt(const std::string& title, const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        WarnOfError(title, error);
        return false;
    }
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

BoxButton AskSaveOrDiscard(const std::string& title, const std::string& text) {
    MessageBox box{title, text, BoxIcon::Question, {BoxButton::Save, BoxButton::Discard, BoxButton::Cancel}};
    box.preset = 2;
    return CurrentView().ShowBox(box);
}

bool MayDropWork(Screen& screen) {
    const std::string question = screen.UnsavedWork();
    if (question.empty())
        return true;
    const BoxButton answer = AskSaveOrDiscard(screen.title, question);
    if (answer != BoxButton::Save)
        return answer == BoxButton::Discard;
    return Attempt(screen.title, [&] { screen.SaveWork(); }) && screen.IsOpen() &&
           screen.UnsavedWork().empty();
}

} // namespace jxc
