// What a person does to a control, event by event: the focus leaves one control and enters the next, keys
// pass the filter, cells are entered and left. Views, scripts and tests all come through here, so they meet
// the same rules.
//
// A gesture that a person could not make (a control that is hidden, disabled or of another kind, a row that
// is not there, a text that the keys refuse) throws GestureRefused and changes nothing. An error inside a
// screen's own routines is shown in a message box and leaves the screen open.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "controls/grid.h"
#include "controls/screen.h"
#include "controls/tree.h"

namespace jxc {

class GestureRefused : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Moves the focus as Tab or a mouse click would. False when the control that has it keeps it, or the new
// one's screen sent it elsewhere; a message has told the person then.
bool GoTo(Screen& screen, Control& control);
// Takes the focus away from every control; false when the one that has it keeps it.
bool LeaveFocus(Screen& screen);

// Types one character into the box that has the focus: its code point, 8 for backspace, 22 for a paste. False
// when the keys refuse it.
bool TypeKey(Screen& screen, EditBox& box, int keyCode);
// Enter the control, change it, and stay there.
void PickDate(Screen& screen, DateBox& box, std::optional<Date> date);
void Tick(Screen& screen, Toggle& toggle, bool on);
void PickItem(Screen& screen, ListBox& list, int index);

// Replaces the whole text key by key and stays. False when the box could not be entered.
bool TypeText(Screen& screen, EditBox& box, const std::string& text);

// What is suggested while the text is typed, into a box or a cell; no columns where nothing is. It changes nothing, and a
// search that fails suggests nothing: the one behind Enter tells why.
Suggestions Suggest(const EditBox& box, const std::string& typed);
Suggestions SuggestInCell(const Grid& grid, int row, int column, const std::string& typed);
// Takes a suggestion: its text is typed (TakeText), and Enter pressed.
void TakeText(Screen& screen, EditBox& box, const SuggestedRow& taken);
void TakeSuggestion(Screen& screen, EditBox& box, const SuggestedRow& taken);
void TakeInCell(Screen& screen, Grid& grid, int row, int column, const SuggestedRow& taken);
// Lets the person pick what belongs into the box or cell; nothing when nothing was picked. Taking it is the caller's.
std::optional<SuggestedRow> Pick(Screen& screen, EditBox& box, const std::string& typed);
std::optional<SuggestedRow> PickInCell(Screen& screen, Grid& grid, int row, int column,
                                       const std::string& typed);

// The same, and leave the control again. EnterText replaces the whole text key by key.
void EnterText(Screen& screen, EditBox& box, const std::string& text);
void EnterDate(Screen& screen, DateBox& box, std::optional<Date> date);
void SetToggle(Screen& screen, Toggle& toggle, bool on);
void ChooseItem(Screen& screen, ListBox& list, int index);
// The list's item whose visible part is `text`, -1 when there is none.
int ItemWithText(const ListBox& list, const std::string& text);
void ChooseTab(Screen& screen, Tabs& tabs, int index);
void Click(Screen& screen, Command& command);
// On a field's caption; the focus stays where it is.
void DoubleClickLabel(Screen& screen, Label& label);
void RightClickLabel(Screen& screen, Label& label);
// Presses a named key in a control: "Enter", "Delete", "F5" ...
void PressKey(Screen& screen, Control& control, const std::string& key);

// Goes to the cell, types, leaves it. A row one past the last is appended by Enter on the last row where the
// screen does so. A figure beyond its column's bound, typed or worked out from what was typed, refuses the
// gesture; a typed text that found nothing holds the cursor instead: see HoldsEnter.
void TypeCell(Screen& screen, Grid& grid, int row, int column, const std::string& text);
// Whether something typed in the selected row was not taken, so that no Enter behind it goes on: see
// Grid::refusedRow.
bool HoldsEnter(const Grid& grid);
// Enter in the selected cell, which has been left: selects the cell where a person types next, in the order of
// the grid's enterColumns; behind the last row's last one, the screen's new row. False when there is none: the
// focus then goes to the next control.
bool StepByEnter(Screen& screen, Grid& grid);
// The value that typing `text` into a cell of the column gives.
Value TypedValue(const GridColumn& column, const std::string& text);
// Pastes a block of cells into a grid that takes blocks.
void PasteBlock(Screen& screen, Grid& grid, const CellBlock& block);
void SelectRow(Screen& screen, Grid& grid, int row);
// Several rows of a grid that takes them; the first comes in hand.
void SelectRows(Screen& screen, Grid& grid, const std::vector<int>& rows);
void DoubleClickRow(Screen& screen, Grid& grid, int row);
void ClickHeading(Screen& screen, Grid& grid, int column);
void SelectNode(Screen& screen, Tree& tree, int node);
void DoubleClickNode(Screen& screen, Tree& tree, int node);
void DropNode(Screen& screen, Tree& tree, int node, int onto);

} // namespace jxc
