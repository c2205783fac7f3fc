// The conditions of a query, each behind a box that is ticked: one table from which the statement's condition follows.
// What a person types or chooses in a filter's field ticks its box.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/control.h"
#include "forms/fields.h"

namespace jxc {

struct Filter {
    // The test as it stands behind " And "; {like}, {text} and {number} become what the field holds: its pattern and
    // its text as literals, and its number. Another place in braces is a std::logic_error.
    Filter(CheckBox& box, EditBox& value, std::string test);
    Filter(CheckBox& box, EditBox& value, std::function<std::string()> test);
    // The number that the field holds, compared by the sign chosen in the list.
    Filter(CheckBox& box, ListBox& sign, EditBox& number, std::string test);
    // One day or from one day to another; without any day it limits nothing.
    Filter(CheckBox& box, DateRange& days, std::string column);
    // Without a field.
    Filter(CheckBox& box, std::string test);
    // A condition that asks for more than one box; "" limits nothing.
    explicit Filter(std::function<std::string()> test);

    std::function<std::string()> condition; // "" while it limits nothing
    std::function<void()> whenGiven = {};   // ties the field to the box
};

class Filters {
  public:
    Filters() = default;
    explicit Filters(std::vector<Filter> filters);

    // The conditions of the ticked filters in their order, each with " And " before it.
    std::string Condition() const;

  private:
    std::vector<Filter> filters_;
};

// What a filter limits the query to, for a print-out's header; "" while its box is not ticked.
std::string TickedText(const CheckBox& box, const EditBox& value);

} // namespace jxc
