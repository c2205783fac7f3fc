#include "session/lzjxc.h"

#include <functional>
#include <limits>

#include "base/text.h"
#include "controls/screen.h"
#include "database/storable_text.h"
#include "session/session.h"

namespace jxc {

namespace {

std::int16_t ShortOf(std::string_view name, const Value& value) {
    if (value.IsNull() || (value.IsText() && !IsNumericText(value.AsText())) ||
        value.AsDouble() != static_cast<double>(value.AsLong()) ||
        value.AsLong() < std::numeric_limits<std::int16_t>::min() ||
        value.AsLong() > std::numeric_limits<std::int16_t>::max())
        throw ScreenError("属性 " + std::string(name) + " 须为 16 位整数。");
    return static_cast<std::int16_t>(value.AsLong());
}

bool FlagOf(std::string_view name, const Value& value) {
    if (value.IsText() && EqualsNoCase(value.AsText(), "true"))
        return true;
    if (value.IsText() && EqualsNoCase(value.AsText(), "false"))
        return false;
    return ShortOf(name, value) != 0;
}

Value KeptValue(const PropertyBag& bag, std::string_view key, Value otherwise) {
    for (const auto& [name, value] : bag)
        if (EqualsNoCase(name, key))
            return value;
    return otherwise;
}

} // namespace

void lzJxc::CompName(std::string text) {
    session.CompName = std::move(text);
}
const std::string& lzJxc::UserPath() const {
    return session.UserPath;
}
void lzJxc::UserPath(std::string text) {
    session.UserPath = std::move(text);
}
const std::string& lzJxc::UserName() const {
    return session.UserName;
}
void lzJxc::UserName(std::string text) {
    session.UserName = std::move(text);
}
const std::string& lzJxc::OldName() const {
    return session.OldName;
}
void lzJxc::OldName(std::string text) {
    session.OldName = std::move(text);
}
const std::string& lzJxc::ZgName() const {
    return session.ZgName;
}
void lzJxc::ZgName(std::string text) {
    session.ZgName = std::move(text);
}
const std::string& lzJxc::myPower() const {
    return session.myPower;
}
void lzJxc::myPower(std::string digits) {
    session.myPower = std::move(digits);
}
std::int16_t lzJxc::myType() const {
    return session.myType;
}
void lzJxc::myType(std::int16_t type) {
    session.myType = type;
}
void lzJxc::SQLData(std::int16_t dialect) {
    session.SQLData = dialect;
    session.DateDelimiter = dialect == 0 ? "#" : "'";
}
void lzJxc::Password(std::string text) {
    session.Password = std::move(text);
}
void lzJxc::Language(std::int16_t language) {
    if (language != 0 && language != 1)
        throw ScreenError("属性 Language 须为 0 或 1。");
    session.Language = language;
}
std::string lzJxc::myModel() const {
    return "";
}
void lzJxc::myModel(std::string preset) {
    session.myModel = std::move(preset);
}
bool lzJxc::CopyRight() const {
    return session.CopyRight;
}
void lzJxc::CopyRight(bool shown) {
    session.CopyRight = shown;
}
const std::string& lzJxc::UserID() const {
    return session.UserID;
}
void lzJxc::UserID(std::string text) {
    session.UserID = std::move(text);
}
const std::string& lzJxc::Default() const {
    return session.Default;
}
void lzJxc::Default(std::string text) {
    session.Default = std::move(text);
}
void lzJxc::PowerPath(std::string folder) {
    session.PowerPath = std::move(folder);
}

void lzJxc::SetProperty(std::string_view name, const Value& value) {
    using Setter = std::function<void(lzJxc&, std::string_view, const Value&)>;
    const auto text = [](void (lzJxc::*set)(std::string)) -> Setter {
        return [set](lzJxc& control, std::string_view n, const Value& v) {
            if (!IsStorable(v.AsText()))
                throw ScreenError("属性 " + std::string(n) + " 的文本含有无效字符。");
            (control.*set)(v.AsText());
        };
    };
    const auto number = [](void (lzJxc::*set)(std::int16_t)) -> Setter {
        return [set](lzJxc& control, std::string_view n, const Value& v) { (control.*set)(ShortOf(n, v)); };
    };
    static const std::map<std::string, Setter, std::less<>> setters{
        {"CompName", text(&lzJxc::CompName)},
        {"UserPath", text(&lzJxc::UserPath)},
        {"UserName", text(&lzJxc::UserName)},
        {"OldName", text(&lzJxc::OldName)},
        {"ZgName", text(&lzJxc::ZgName)},
        {"myPower", text(&lzJxc::myPower)},
        {"Password", text(&lzJxc::Password)},
        {"UserID", text(&lzJxc::UserID)},
        {"Default", text(&lzJxc::Default)},
        {"PowerPath", text(&lzJxc::PowerPath)},
        {"myModel", text(&lzJxc::myModel)},
        {"myType", number(&lzJxc::myType)},
        {"SQLData", number(&lzJxc::SQLData)},
        {"Language", number(&lzJxc::Language)},
        {"CopyRight",
         [](lzJxc& control, std::string_view n, const Value& v) { control.CopyRight(FlagOf(n, v)); }},
    };
    const auto found = setters.find(name);
    if (found == setters.end())
        throw ScreenError("没有属性 " + std::string(name) + "。");
    found->second(*this, name, value);
}

void lzJxc::WriteProperties(PropertyBag& bag) const {
    bag.emplace_back("UserPath", session.UserPath);
    bag.emplace_back("UserName", session.UserName);
    bag.emplace_back("ZgName", session.ZgName);
    bag.emplace_back("oldName", session.OldName);
    bag.emplace_back("myPower", session.myPower);
    bag.emplace_back("myType", std::int64_t{session.myType});
    bag.emplace_back("SQLData", std::int64_t{session.SQLData});
    bag.emplace_back("Language", std::int64_t{session.Language});
    bag.emplace_back("Password", session.Password);
    bag.emplace_back("UserID", session.UserID);
    bag.emplace_back("Default", session.Default);
    bag.emplace_back("CopyRight", std::int64_t{session.CopyRight});
}

void lzJxc::ReadProperties(const PropertyBag& bag) {
    const auto text = [&](std::string_view key, const char* otherwise) {
        return KeptValue(bag, key, otherwise).AsText();
    };
    const auto number = [&](std::string_view key, int otherwise) {
        return static_cast<std::int16_t>(KeptValue(bag, key, otherwise).AsLong());
    };
    session.UserPath = text("UserPath", "");
    session.UserName = text("UserName", "");
    session.ZgName = text("ZgName", "");
    session.OldName = text("oldName", "");
    session.myPower = text("myPower", "0000");
    session.myType = number("myType", -1);
    session.SQLData = number("SQLData", 0);
    session.Language = number("Language", 0) == 1 ? 1 : 0;
    session.Password = text("Password", "");
    session.UserID = text("UserID", "");
    session.Default = text("Default", "");
    session.CopyRight = number("CopyRight", 0) != 0;
}

} // namespace jxc
