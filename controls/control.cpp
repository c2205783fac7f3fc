#include "controls/control.h"

#include "base/text.h"
#include "controls/screen.h"
#include "controls/view.h"

namespace jxc {

namespace {} // namespace

std::string_view KindName(ControlKind kind) {
    switch (kind) {
    case ControlKind::Text:
        return "text";
    case ControlKind::Label:
        return "label";
    case ControlKind::Button:
        return "button";
    case ControlKind::Check:
        return "check";
    case ControlKind::Option:
        return "option";
    case ControlKind::List:
        return "list";
    case ControlKind::Date:
        return "date";
    case ControlKind::Grid:
        return "grid";
    case ControlKind::Tree:
        return "tree";
    case ControlKind::Tabs:
        return "tabs";
    case ControlKind::Frame:
        return "frame";
    case ControlKind::Menu:
        return "menu";
    case ControlKind::Picture:
        return "picture";
    }
    return "";
}

Control::Control(Place place, std::string name, ControlKind kind, std::string caption)
    : screen(place.screen), name(std::move(name)), kind(kind), caption(std::move(caption)),
      frame(place.frame) {
    screen.Register(*this);
}

void CheckBox::Change(bool ticked) {
    if (value == ticked)
        return;
    value = ticked;
    if (onChange)
        onChange();
}

void OptionButton::Choose() {
    for (Control* other : screen.Controls())
        if (auto* option = dynamic_cast<OptionButton*>(other); option && option->group == group)
            option->value = option == this;
    if (onChange)
        onChange();
}

void EditBox::SelectAll() {
    selStart = 0;
    selLength = CharacterCount(text);
}

void EditBox::Insert(std::string_view insert) {
    std::u32string points = ToCodePoints(text);
    const std::u32string added = ToCodePoints(insert);
    const size_t from = std::min(static_cast<size_t>(selStart), points.size());
    points.replace(from, std::min(static_cast<size_t>(selLength), points.size() - from), added);
    text = FromCodePoints(points);
    selStart = static_cast<int>(from + added.size());
    selLength = 0;
}

bool EditBox::PressKey(int keyCode) {
    const std::string before = text;
    if (onKeyPress)
        onKeyPress(keyCode);
    if (keyCode == 0 && text == before)
        return false;
    if (keyCode == kPasteKey) {
        Insert(ClipboardLine());
    } else if (keyCode == kBackspaceKey) {
        if (selLength == 0 && selStart > 0) {
            --selStart;
            selLength = 1;
        }
        Insert("");
    } else if (keyCode >= 32) {
        Insert(FromCodePoints(std::u32string(1, static_cast<char32_t>(keyCode))));
    }
    if (onChange)
        onChange();
    return true;
}

void ListBox::SetIndex(int index) {
    index_ = index >= 0 && index < static_cast<int>(items.size()) ? index : -1;
    text = VisibleText(index_);
}

void ListBox::SetText(const std::string& shown) {
    index_ = -1;
    for (int i = static_cast<int>(items.size()) - 1; i >= 0; --i)
        if (VisibleText(i) == shown)
            index_ = i;
    text = shown;
}

void ListBox::Choose(int index) {
    SetIndex(index);
    if (onChoose)
        onChoose();
}

void ListBox::Clear() {
    items.clear();
    index_ = -1;
    text.clear();
}

std::string ListBox::VisibleText(int index) const {
    if (index < 0)
        return "";
    const std::string& item = items[static_cast<size_t>(index)];
    return visibleText ? visibleText(item) : item;
}

} // namespace jxc
