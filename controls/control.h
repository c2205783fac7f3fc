// Control models: what a person sees and touches on a screen, as plain state with events, without a toolkit.
// Each registers itself in its screen by name. Operations change models; a view shows what the models say
// afterwards.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"
#include "base/value.h"
#include "controls/suggestions.h"

namespace jxc {

struct Screen;

enum class ControlKind {
    Text,
    Label,
    Button,
    Check,
    Option,
    List,
    Date,
    Grid,
    Tree,
    Tabs,
    Frame,
    Menu,
    Picture
};

// "text", "label", "button" ...: the kind as scripts read it.
std::string_view KindName(ControlKind kind);

struct Control;
struct Frame;

// Where a control stands: on its screen, or in one of the screen's frames, which hides and disables it with itself.
struct Place {
    Place(Screen& screen) : screen(screen) {}
    Place(Frame& frame);
    Screen& screen;
    Control* frame = nullptr;
};

struct Control {
    Control(Place place, std::string name, ControlKind kind, std::string caption = "");
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    // What a script reads as the control's value; nothing for controls without one.
    virtual Value Shown() const { return {}; }
    // Visible and enabled as a person meets it: the frame it stands in counts too.
    bool IsShown() const { return visible && (!frame || frame->IsShown()); }
    bool IsUsable() const { return enabled && IsShown() && (!frame || frame->IsUsable()); }

    Screen& screen;
    const std::string name;
    const ControlKind kind;
    std::string caption;
    std::string tag;
    bool visible = true;
    bool enabled = true;
    Control* const frame; // the frame or panel that holds it, null for none

    std::function<void()> onEnter;
    std::function<bool()> onLeave;                 // false keeps the focus here
    std::function<void(const std::string&)> onKey; // a named key: "Enter", "Delete", "F5" ...
};

struct Label : Control {
    Label(Place place, std::string name, std::string caption = "")
        : Control(place, std::move(name), ControlKind::Label, std::move(caption)) {}
    Value Shown() const override { return caption; }
    int color = 0;
    // What a field's caption can do beside naming it. The keyboard reaches both from the field: F6 and Shift+F6.
    std::function<void()> onDoubleClick;
    std::function<void()> onRightClick;
};

// A picture from a file, "" for none. A file that holds none shows nothing.
struct Picture : Control {
    Picture(Place place, std::string name) : Control(place, std::move(name), ControlKind::Picture) {}
    Value Shown() const override { return file; }
    std::string file; // its path
};

struct Frame : Control {
    Frame(Place place, std::string name, std::string caption = "")
        : Control(place, std::move(name), ControlKind::Frame, std::move(caption)) {}
};

inline Place::Place(Frame& frame) : screen(frame.screen), frame(&frame) {}

// A command button or a menu item.
struct Command : Control {
    std::function<void()> onClick;
    std::string shortcut; // "F9", "Ctrl+P": the key that presses it from anywhere on its screen, "" for none
    bool dropsWork = false; // what was typed and not saved is gone after it: a person is asked first

  protected:
    using Control::Control;
};

struct Button : Command {
    Button(Place place, std::string name, std::string caption = "", std::string shortcut = "")
        : Command(place, std::move(name), ControlKind::Button, std::move(caption)) {
        this->shortcut = std::move(shortcut);
    }
};

struct MenuItem : Command {
    MenuItem(Place place, std::string name, std::string caption = "")
        : Command(place, std::move(name), ControlKind::Menu, std::move(caption)) {}
};

// A check box or one option of a group. Assigning `value` fires nothing; Change does, as a click would.
struct Toggle : Control {
    bool value = false;
    std::function<void()> onChange;
    Value Shown() const override { return std::int64_t{value}; }

  protected:
    using Control::Control;
};

struct CheckBox : Toggle {
    CheckBox(Place place, std::string name, std::string caption = "", bool ticked = false)
        : Toggle(place, std::move(name), ControlKind::Check, std::move(caption)) {
        value = ticked;
    }
    void Change(bool ticked);
};

struct OptionButton : Toggle {
    OptionButton(Place place, std::string name, std::string group, std::string caption = "",
                 bool chosen = false)
        : Toggle(place, std::move(name), ControlKind::Option, std::move(caption)), group(std::move(group)) {
        value = chosen;
    }
    // Chooses this option and clears the others of its group.
    void Choose();
    const std::string group;
};

// The code points of keys that do something to a box's text.
constexpr int kBackspaceKey = 8;
constexpr int kPasteKey = 22;

// Anything with text that is edited key by key.
struct EditBox : Control {
    std::string text;
    int selStart = 0; // in characters
    int selLength = 0;
    bool locked = false;
    bool secret = false; // a pass word: neither seen nor told
    // A key before it takes effect: its code point, 22 for a paste. Setting it to 0 refuses the key.
    std::function<void(int& keyCode)> onKeyPress;
    std::function<void()> onChange; // the user changed the text
    // What is suggested for a text being typed; none for a box without suggestions.
    std::function<Suggestions(const std::string& typed)> onSuggest;
    // Puts in what was taken, where that is more than typing it; Enter follows.
    std::function<void(const std::string& text)> onTake;
    // Lets the person pick from a screen of its own, by what is typed; nothing when nothing was picked.
    std::function<std::optional<SuggestedRow>(const std::string& typed)> onPick;
    Value Shown() const override { return secret ? std::string(text.empty() ? "" : "***") : text; }

    void SelectAll();
    // Types one character, or 8 for backspace, 22 for a paste, through onKeyPress; false when it was refused.
    bool PressKey(int keyCode);
    // Puts `insert` in place of the selection, unfiltered.
    void Insert(std::string_view insert);

  protected:
    using Control::Control;
};

struct TextBox : EditBox {
    TextBox(Place place, std::string name, std::string text = "")
        : EditBox(place, std::move(name), ControlKind::Text) {
        this->text = std::move(text);
    }
    int maxBytes = 0; // the field's limit in bytes, 0 for none
};

// A drop-down list; an editable one also takes free text.
struct ListBox : EditBox {
    ListBox(Place place, std::string name, bool editable = false)
        : EditBox(place, std::move(name), ControlKind::List), editable(editable) {}
    const bool editable;
    std::vector<std::string> items;
    std::function<void()> onChoose;
    // The item as people read it; a list that keeps a key behind the text cuts it off here.
    std::function<std::string(const std::string& item)> visibleText;

    int Index() const { return index_; }
    // The chosen item whole, "" when none is.
    std::string Chosen() const { return index_ < 0 ? "" : items[static_cast<size_t>(index_)]; }
    // Selects without firing onChoose; -1 for none. The text follows.
    void SetIndex(int index);
    // Shows a text: the item that reads so, or of none.
    void SetText(const std::string& text);
    // Selects as a person does, firing onChoose.
    void Choose(int index);
    void Clear();
    std::string VisibleText(int index) const;

  private:
    int index_ = -1;
};

struct DateBox : Control {
    DateBox(Place place, std::string name) : Control(place, std::move(name), ControlKind::Date) {}
    std::optional<Date> date;
    std::function<void()> onChange;
    Value Shown() const override { return date ? Value(IsoText(*date)) : Value(); }
};

struct Tabs : Control {
    Tabs(Place place, std::string name, std::vector<std::string> captions)
        : Control(place, std::move(name), ControlKind::Tabs), captions(std::move(captions)) {}
    std::vector<std::string> captions;
    std::set<int> disabledTabs; // shown, but not to be chosen
    int index = 0;
    std::function<void()> onChange;
    Value Shown() const override { return std::int64_t{index}; }
};

} // namespace jxc
