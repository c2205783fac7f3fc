#include "forms/filters.h"

#include <algorithm>
#include <stdexcept>

#include "base/text.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"

namespace jxc {

namespace {

// The test with the field's content in its places. What is typed may read like a place and stays as it is.
std::string WithValue(const std::string& test, const std::string& typed) {
    const std::pair<std::string_view, std::string> places[] = {{"{like}", InQuotes(LikePattern(typed))},
                                                               {"{text}", InQuotes(typed)},
                                                               {"{number}", NumberText(Val(typed))}};
    std::string condition;
    for (size_t at = 0; at < test.size();) {
        const auto place = std::ranges::find_if(places, [&](const auto& known) {
            return std::string_view(test).substr(at).starts_with(known.first);
        });
        if (place == std::end(places)) {
            if (test[at] == '{')
                throw std::logic_error("no such place in a filter's test: " + test);
            condition += test[at++];
            continue;
        }
        condition += place->second;
        at += place->first.size();
    }
    return condition;
}

// What is given to a field wants to be looked for.
void TickBy(std::function<void()>& event, CheckBox& box, const std::function<bool()>& given) {
    event = [&box, given, before = event] {
        if (given() && !box.value && box.IsUsable())
            box.Change(true);
        if (before)
            before();
    };
}

std::function<void()> TickedBy(EditBox& value, CheckBox& box) {
    return [&value, &box] {
        const auto given = [&value] { return !value.text.empty(); };
        TickBy(value.onChange, box, given);
        if (auto* list = dynamic_cast<ListBox*>(&value))
            TickBy(list->onChoose, box, given);
    };
}

} // namespace

Filter::Filter(CheckBox& box, EditBox& value, std::function<std::string()> test)
    : condition(
          [&box, &value, test = std::move(test)] { return box.value ? WithValue(test(), value.text) : ""; }),
      whenGiven(TickedBy(value, box)) {}

Filter::Filter(CheckBox& box, EditBox& value, std::string test)
    : Filter(box, value, [test = std::move(test)] { return test; }) {}

Filter::Filter(CheckBox& box, ListBox& sign, EditBox& number, std::string test)
    : condition([&box, &sign, &number, test = std::move(test)] {
          return box.value ? WithValue(test + sign.text + " {number}", number.text) : "";
      }),
      whenGiven(TickedBy(number, box)) {}

Filter::Filter(CheckBox& box, DateRange& days, std::string column)
    : condition([&box, &days, column = std::move(column)] { return box.value ? days.Test(column) : ""; }),
      whenGiven([&box, &days] {
          for (DateBox* day : {&days.first, &days.last})
              TickBy(day->onChange, box, [day] { return day->date.has_value(); });
      }) {}

Filter::Filter(CheckBox& box, std::string test)
    : condition([&box, test = std::move(test)] { return box.value ? test : ""; }) {}

Filter::Filter(std::function<std::string()> test) : condition(std::move(test)) {}

Filters::Filters(std::vector<Filter> filters) : filters_(std::move(filters)) {
    for (const Filter& filter : filters_)
        if (filter.whenGiven)
            filter.whenGiven();
}

std::string Filters::Condition() const {
    std::string where;
    for (const Filter& filter : filters_)
        if (const std::string condition = filter.condition(); !condition.empty())
            where += " And " + condition;
    return where;
}

std::string TickedText(const CheckBox& box, const EditBox& value) {
    return box.value ? value.text : "";
}

} // namespace jxc
