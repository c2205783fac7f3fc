// Fields that many screens have, each a member one line long with its rules: what may be typed, where its list comes
// from.
#pragma once

#include <optional>
#include <string>

#include "controls/control.h"

namespace jxc {

// A text of at most so many bytes of the code page, without quotes; with `numeric` it must stay one number.
struct TextField : TextBox {
    TextField(Place place, std::string name, std::string caption, int maxBytes, bool numeric = false);
};

// A whole number of at most so many digits, without a sign.
struct DigitsField : TextBox {
    DigitsField(Place place, std::string name, std::string caption, int digits);
};

// What a query's filter looks for: a part of a text, or a pattern.
struct PatternField : TextField {
    PatternField(Place place, std::string name) : TextField(place, std::move(name), "", 50) {}
};

// A list of a query; an editable one takes a text without quotes too, an item or a pattern.
struct ListField : ListBox {
    ListField(Place place, std::string name, bool editable = false);
};

// A list whose items are those of the program, chosen by their places from 0.
struct FixedList : ListBox {
    FixedList(Place place, std::string name, std::string caption, std::vector<std::string> choices);
};

// Two days, either of which may be left out. `name`(0) is the first, `name`(1) the last.
struct DateRange {
    DateRange(Place place, const std::string& name) : first(place, name + "(0)"), last(place, name + "(1)") {}
    DateBox first, last;

    // The condition on a date column, both days included; with one day given it is that day. "" without any.
    std::string Test(const std::string& column) const;
};

} // namespace jxc
