// Suggestions asked for and taken, picks from a screen of its own.

#include "base/log.h"
#include "controls/gestures.h"
#include "controls/view.h"

namespace jxc {

namespace {

// A person who types on is not stopped by a box because a list could not be read.
template <typename Search>
Suggestions Quietly(const Screen& screen, const Search& search) {
    try {
        return search();
    } catch (const std::exception& error) {
        Log(screen.title, error.what());
        return {};
    }
}

void RequireTyping(const EditBox& box) {
    if (!box.IsUsable() || box.locked)
        throw GestureRefused(box.name + " 不能输入。");
}

// Also for the row that typing behind the last one adds.
void RequireTyping(const Grid& grid, int row, int column) {
    if (!grid.IsUsable() || row < 1 || row > grid.RowCount() + 1 || column < 1 ||
        column > grid.ColumnCount() || !grid.CanType(column))
        throw GestureRefused(grid.name + " 的该单元格不能输入。");
}

} // namespace

Suggestions Suggest(const EditBox& box, const std::string& typed) {
    RequireTyping(box);
    return box.onSuggest ? Quietly(box.screen, [&] { return box.onSuggest(typed); }) : Suggestions();
}

Suggestions SuggestInCell(const Grid& grid, int row, int column, const std::string& typed) {
    RequireTyping(grid, row, column);
    return grid.onSuggest ? Quietly(grid.screen, [&] { return grid.onSuggest(row, column, typed); })
                          : Suggestions();
}

void TakeText(Screen& screen, EditBox& box, const SuggestedRow& taken) {
    RequireTyping(box);
    if (!GoTo(screen, box))
        return;
    if (box.onTake)
        Attempt(screen.title, [&] { box.onTake(taken.text); });
    else
        TypeText(screen, box, taken.text);
}

void TakeSuggestion(Screen& screen, EditBox& box, const SuggestedRow& taken) {
    TakeText(screen, box, taken);
    if (box.onKey && screen.Focus() == &box)
        PressKey(screen, box, "Enter");
}

void TakeInCell(Screen& screen, Grid& grid, int row, int column, const SuggestedRow& taken) {
    TypeCell(screen, grid, row, taken.column > 0 ? taken.column : column, taken.text);
}

std::optional<SuggestedRow> Pick(Screen& screen, EditBox& box, const std::string& typed) {
    RequireTyping(box);
    std::optional<SuggestedRow> picked;
    if (box.onPick && GoTo(screen, box))
        Attempt(screen.title, [&] { picked = box.onPick(typed); });
    return picked;
}

std::optional<SuggestedRow> PickInCell(Screen& screen, Grid& grid, int row, int column,
                                       const std::string& typed) {
    RequireTyping(grid, row, column);
    std::optional<SuggestedRow> picked;
    if (grid.onPick && GoTo(screen, grid))
        Attempt(screen.title, [&] { picked = grid.onPick(row, column, typed); });
    return picked;
}

} // namespace jxc
