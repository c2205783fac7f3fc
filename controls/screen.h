// A screen: named controls, a title, public properties that openers set by name, and whether it is open.
// Screens are single instances in the table of screens, so a lower floor opens a higher one's screen by name
// without including it.
#pragma once

#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "controls/arrangement.h"
#include "controls/control.h"

namespace jxc {

// A name that no screen, control or property has, or a value that does not fit. what() is text for people.
class ScreenError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct Screen {
    explicit Screen(std::string name) : name(std::move(name)) {}
    virtual ~Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    // Loads what the screen shows when it opens. It may show messages, and may Close() the screen again.
    virtual void Open() = 0;

    // How a window without a form file of its own lays the screen out; empty where it has one.
    virtual Arrangement Arrange() { return {}; }

    // What is asked of a person before typed work would be lost; "" when there is none.
    virtual std::string UnsavedWork() const { return ""; }
    // Saves it, with the questions of saving. Work that is still unsaved afterwards was not.
    virtual void SaveWork() {}

    // The command that closes the panel in which the control stands, as Esc there does; null when it stands in none.
    virtual Command* PanelCommand(const Control& /*inIt*/) { return nullptr; }

    bool IsOpen() const { return open_; }
    void Close() { open_ = false; }

    // Called by the controls' constructors.
    void Register(Control& control) { controls_.push_back(&control); }
    const std::vector<Control*>& Controls() const { return controls_; }
    // The control by its name; null when there is none.
    Control* Find(std::string_view control) const;

    // The control that has the focus; null when none has. Screens move it by MoveFocus, which fires no event.
    Control* Focus() const { return focus_; }
    void MoveFocus(Control* control) {
        focus_ = control;
        if (control && control->kind != ControlKind::Button && control->kind != ControlKind::Menu)
            lastField_ = control;
    }
    // The field or grid that had the focus last, also while a command has it; null when none had.
    Control* LastField() const { return lastField_; }

    // Public properties, for openers and scripts.
    template <typename Number>
    void AddNumberProperty(const std::string& property, Number& number) {
        const auto set = [&number, property](const Value& value) {
            number = static_cast<Number>(WholeNumber(property, value, std::numeric_limits<Number>::min(),
                                                     std::numeric_limits<Number>::max()));
        };
        AddProperty(property, set, [&number] { return Value(static_cast<std::int64_t>(number)); });
    }
    void AddTextProperty(std::string property, std::string& text);
    void AddProperty(std::string property, std::function<void(const Value&)> set, std::function<Value()> get);
    void SetProperty(std::string_view property, const Value& value); // ScreenError for an unknown name
    Value GetProperty(std::string_view property) const;
    bool HasProperty(std::string_view property) const { return properties_.contains(property); }

    const std::string name;
    std::string title;

  private:
    friend void ShowModal(Screen& screen);
    struct Property {
        std::function<void(const Value&)> set;
        std::function<Value()> get;
    };
    // The whole number that a value holds; a ScreenError when it is none, or out of range.
    static std::int64_t WholeNumber(const std::string& property, const Value& value, std::int64_t least,
                                    std::int64_t most);
    const Property& FindProperty(std::string_view property) const;

    std::vector<Control*> controls_;
    std::map<std::string, Property, std::less<>> properties_;
    Control* focus_ = nullptr;
    Control* lastField_ = nullptr;
    bool open_ = false;
};

// Opens the screen over those that are open and returns when it has been closed. A screen whose data cannot
// be loaded shows the reason in a message box and does not open.
void ShowModal(Screen& screen);

// The table of screens. An instance is made on first use and kept. Without a maker the name leaves the table.
void RegisterScreen(std::string name, std::function<std::unique_ptr<Screen>()> make);
// The screen of that name; null when none is registered.
Screen* FindScreen(std::string_view name);
// The same, but a ScreenError for people when there is none.
Screen& ScreenNamed(std::string_view name);
// The screen of that name to be shown now: the kept instance or, while that one is open, another that lives
// as long as this. So a picker can stand over a screen of its own kind without touching it. A ScreenError
// when none is registered.
class ScreenToShow {
  public:
    explicit ScreenToShow(std::string_view name);
    Screen& operator*() const { return *screen_; }
    Screen* operator->() const { return screen_; }

  private:
    std::unique_ptr<Screen> another_;
    Screen* screen_;
};
// The names in the table, in alphabetical order.
std::vector<std::string> ScreenNames();
// Forgets the instances, so that the next use starts afresh (a new company, the next test).
void ResetScreens();

} // namespace jxc
