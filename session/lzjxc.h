// The control that a host accounting suite embeds. The host sets the properties, then calls Refresh with a
// screen number; several calls may follow each other, properties stay as set.
//
//     lzJxc control;
//     control.UserPath("company.db");
//     control.SQLData(0);
//     control.UserName("王芳");
//     control.myType(1);
//     control.Refresh(13);   // document entry, type 1: a receipt
//
// All values live in the process-wide Session: two controls in one process share them, and a property that is set
// while a screen is open counts in it from then on.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/value.h"

namespace jxc {

// What a host saves of the control: keys and values in their order.
using PropertyBag = std::vector<std::pair<std::string, Value>>;
// Public properties to set on a screen before it shows.
using ScreenProperties = std::map<std::string, Value>;

class lzJxc {
  public:
    void CompName(std::string text);
    const std::string& UserPath() const;
    void UserPath(std::string text);
    const std::string& UserName() const;
    void UserName(std::string text);
    const std::string& OldName() const;
    void OldName(std::string text);
    const std::string& ZgName() const;
    void ZgName(std::string text);
    const std::string& myPower() const;
    void myPower(std::string digits);
    std::int16_t myType() const;
    void myType(std::int16_t type);

    // Opens the company, shows the screen of that number until it is closed, and closes the company. A number
    // without a screen opens and closes only. A company that cannot be opened is told in a message box, as is a
    // call from inside an open screen, which is refused and leaves that screen as it is.
    // `properties` are set on the screen after the number's own settings; a name that the screen does not
    // have is a ScreenError before anything is opened.
    void Refresh(std::int16_t RAction, const ScreenProperties& properties = {});

    void SQLData(std::int16_t dialect); // sets the date delimiter too
    void Password(std::string text);
    void Language(std::int16_t language);
    std::string myModel() const; // always ""
    void myModel(std::string preset);
    bool CopyRight() const;
    void CopyRight(bool shown);
    const std::string& UserID() const;
    void UserID(std::string text);
    const std::string& Default() const;
    void Default(std::string text);
    void PowerPath(std::string folder);

    // Sets a property by its name. An unknown name, or a value of the wrong kind, is a ScreenError and
    // changes nothing.
    void SetProperty(std::string_view name, const Value& value);

    // CompName, PowerPath and myModel are not kept. Reading leaves the date delimiter alone: a host sets
    // SQLData through the property before each Refresh. A missing key takes the default.
    void WriteProperties(PropertyBag& bag) const;
    void ReadProperties(const PropertyBag& bag);
};

} // namespace jxc
