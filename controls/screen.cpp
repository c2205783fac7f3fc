#include "controls/screen.h"

#include <cmath>

#include "base/text.h"
#include "controls/view.h"

namespace jxc {

namespace {

struct TableEntry {
    std::function<std::unique_ptr<Screen>()> make;
    std::unique_ptr<Screen> instance;
};

std::map<std::string, TableEntry, std::less<>>& Table() {
    static std::map<std::string, TableEntry, std::less<>> table;
    return table;
}

} // namespace

Control* Screen::Find(std::string_view control) const {
    for (Control* candidate : controls_)
        if (candidate->name == control)
            return candidate;
    return nullptr;
}

void Screen::AddTextProperty(std::string property, std::string& text) {
    AddProperty(
        std::move(property), [&text](const Value& v) { text = v.AsText(); }, [&text] { return Value(text); });
}

void Screen::AddProperty(std::string property, std::function<void(const Value&)> set,
                         std::function<Value()> get) {
    properties_[std::move(property)] = {std::move(set), std::move(get)};
}

std::int64_t Screen::WholeNumber(const std::string& property, const Value& value, std::int64_t least,
                                 std::int64_t most) {
    const bool numeric = value.IsNumber() || (value.IsText() && IsNumericText(value.AsText()));
    const double number = value.AsDouble();
    if (!numeric || number != std::floor(number) || number < static_cast<double>(least) ||
        number > static_cast<double>(most))
        throw ScreenError("属性 " + property + " 的值 " + value.AsText() + " 不是范围内的整数。");
    return static_cast<std::int64_t>(number);
}

const Screen::Property& Screen::FindProperty(std::string_view property) const {
    const auto found = properties_.find(property);
    if (found == properties_.end())
        throw ScreenError(name + " 没有属性 " + std::string(property) + "。");
    return found->second;
}

void Screen::SetProperty(std::string_view property, const Value& value) {
    FindProperty(property).set(value);
}
Value Screen::GetProperty(std::string_view property) const {
    return FindProperty(property).get();
}

void ShowModal(Screen& screen) {
    if (screen.IsOpen())
        throw ScreenError("“" + screen.title + "”已经打开。");
    screen.open_ = true;
    screen.MoveFocus(nullptr);
    try {
        screen.Open();
    } catch (const std::exception& error) {
        screen.Close();
        WarnOfError(screen.title, error);
        return;
    }
    try {
        if (screen.IsOpen())
            CurrentView().RunModal(screen);
    } catch (...) {
        screen.Close();
        throw;
    }
    screen.Close();
}

void RegisterScreen(std::string name, std::function<std::unique_ptr<Screen>()> make) {
    if (make)
        Table()[std::move(name)] = {std::move(make), nullptr};
    else
        Table().erase(name);
}

Screen* FindScreen(std::string_view name) {
    const auto found = Table().find(name);
    if (found == Table().end())
        return nullptr;
    if (!found->second.instance)
        found->second.instance = found->second.make();
    return found->second.instance.get();
}

Screen& ScreenNamed(std::string_view name) {
    if (Screen* screen = FindScreen(name))
        return *screen;
    throw ScreenError("本版本尚未提供该功能（" + std::string(name) + "）。");
}

ScreenToShow::ScreenToShow(std::string_view name) : screen_(&ScreenNamed(name)) {
    if (!screen_->IsOpen())
        return;
    another_ = Table().find(name)->second.make();
    screen_ = another_.get();
}

std::vector<std::string> ScreenNames() {
    std::vector<std::string> names;
    for (const auto& [name, entry] : Table())
        names.push_back(name);
    return names;
}

void ResetScreens() {
    for (auto& [name, entry] : Table())
        entry.instance.reset();
}

} // namespace jxc
