// What is suggested under a field while a person types into it: rows to choose from, each with the text that taking it
// puts in. A field without suggestions works the same; nothing is taken that the person has not chosen. Nothing typed
// suggests nothing: a view asks so when the person comes to a field, that the first key may find everything ready.
#pragma once

#include <string>
#include <vector>

namespace jxc {

struct SuggestionColumn {
    std::string caption;
    bool figure = false; // shown to the right
};

struct SuggestedRow {
    std::vector<std::string> cells; // as shown
    std::string text;               // what taking it puts in
    int column = 0; // of a grid: the row's column into which it goes, 0 for the one typed into
};

struct Suggestions {
    std::vector<SuggestionColumn> columns;
    std::vector<SuggestedRow> rows; // the best first
    bool more = false;              // than these are there
};

} // namespace jxc
