#include "controls/gestures.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "controls/bounds.h"
#include "controls/view.h"

namespace jxc {

namespace {

// Runs a screen's own routine; what it throws is shown to the person, who stays on the screen.
template <typename Routine>
void Guarded(Screen& screen, const Routine& routine) {
    try {
        routine();
    } catch (const GestureRefused&) {
        throw;
    } catch (const std::exception& error) {
        WarnOfError(screen.title, error);
    }
}

void RequireUsable(const Control& control) {
    if (!control.IsShown())
        throw GestureRefused(control.name + " 不可见。");
    if (!control.IsUsable())
        throw GestureRefused(control.name + " 不可用。");
}

void RequireRow(const Grid& grid, int row) {
    if (row < 1 || row > grid.RowCount())
        throw GestureRefused(grid.name + " 没有第 " + std::to_string(row) + " 行。");
}

void RequireColumn(const Grid& grid, int column) {
    if (column < 1 || column > grid.ColumnCount())
        throw GestureRefused(grid.name + " 没有第 " + std::to_string(column) + " 列。");
}

// Types the whole new text key by key over the selected old one. When a key is refused the old text comes
// back.
void ReplaceText(EditBox& box, const std::string& text) {
    const std::string before = box.text;
    box.SelectAll();
    if (text.empty()) {
        box.PressKey(8);
        return;
    }
    if (!box.onKeyPress) { // nobody looks at the single keys
        std::string typed = text;
        std::erase_if(typed, [](char c) { return static_cast<unsigned char>(c) < ' '; });
        box.Insert(typed);
        if (box.onChange)
            box.onChange();
        return;
    }
    for (const char32_t point : ToCodePoints(text))
        if (!box.PressKey(static_cast<int>(point))) {
            box.text = before;
            box.SelectAll();
            if (box.onChange)
                box.onChange();
            throw GestureRefused(box.name + " 不接受该输入。");
        }
}

// Ends a visit to the control; a routine may have sent the focus elsewhere meanwhile.
void LeaveIf(Screen& screen, const Control& control) {
    if (screen.Focus() == &control)
        LeaveFocus(screen);
}

// The column that Enter leads to from `column` within a row, from the row's start with 0; 0 for none.
int ColumnAfter(const Grid& grid, int column) {
    const auto& order = grid.enterColumns;
    for (int next = column + 1; order.empty() && next <= grid.ColumnCount(); ++next)
        if (grid.CanType(next) && !grid.Column(next).hidden)
            return next;
    auto from = std::find(order.begin(), order.end(), column);
    if (from == order.end()) // a column beside the way: on to the next one to its right
        from = std::find_if(order.begin(), order.end(), [&](int next) { return next > column; });
    else
        ++from;
    for (; from != order.end(); ++from)
        if (grid.CanType(*from) && !grid.Column(*from).hidden)
            return *from;
    return 0;
}

// A tick is set by 1 or true and taken away by 0, false or nothing.
Value TypedTick(const GridColumn& column, const std::string& text) {
    const std::string typed = LowerCase(Trim(text));
    if (typed == "1" || typed == "true")
        return 1;
    if (typed == "0" || typed == "false" || typed.empty())
        return 0;
    throw GestureRefused("“" + column.caption + "”只能是 1 或 0。");
}

// The item that reads so, or the first that begins so.
Value TypedItem(const GridColumn& column, const std::string& text) {
    const std::string typed = Trim(text);
    if (typed.empty())
        return {};
    auto found = std::ranges::find(column.items, typed);
    if (found == column.items.end())
        found = std::ranges::find_if(column.items,
                                     [&](const std::string& item) { return item.starts_with(typed); });
    if (found == column.items.end())
        throw GestureRefused("“" + column.caption + "”没有“" + typed + "”这一项。");
    return static_cast<std::int64_t>(found - column.items.begin());
}

GestureRefused NoNumber(const GridColumn& column) {
    return GestureRefused("“" + column.caption + "”只能输入数字。");
}

void RequireBelow(const GridColumn& column, double figure) {
    if (Reaches(figure, column.below))
        throw GestureRefused(BoundText(column.caption, column.below));
}

} // namespace

Value TypedValue(const GridColumn& column, const std::string& text) {
    if (column.type == CellType::Text)
        return column.maxBytes > 0 ? TruncateToBytes(text, column.maxBytes) : text;
    if (column.type == CellType::Check)
        return TypedTick(column, text);
    if (column.type == CellType::List)
        return TypedItem(column, text);
    if (Trim(text).empty())
        return {};
    const std::string digits = WithoutThousands(text);
    if (!IsNumericText(digits))
        throw NoNumber(column);
    const double number = Val(digits);
    RequireBelow(column, number);
    if (!std::isfinite(number))
        throw NoNumber(column);
    if (RoundDecimal(number, column.decimals) != number)
        throw GestureRefused("“" + column.caption + "”最多 " + std::to_string(column.decimals) + " 位小数。");
    return number;
}

bool LeaveFocus(Screen& screen) {
    Control* held = screen.Focus();
    if (!held)
        return true;
    bool left = true;
    screen.MoveFocus(nullptr);
    if (held->onLeave)
        Guarded(screen, [&] { left = held->onLeave(); });
    if (!left && !screen.Focus())
        screen.MoveFocus(held);
    return left && !screen.Focus();
}

bool GoTo(Screen& screen, Control& control) {
    RequireUsable(control);
    if (screen.Focus() == &control)
        return true;
    if (!LeaveFocus(screen) || !control.IsUsable() || !screen.IsOpen())
        return false;
    screen.MoveFocus(&control);
    if (control.onEnter)
        Guarded(screen, control.onEnter);
    return screen.Focus() == &control;
}

bool TypeText(Screen& screen, EditBox& box, const std::string& text) {
    if (const auto* list = dynamic_cast<ListBox*>(&box); box.locked || (list && !list->editable))
        throw GestureRefused(box.name + " 不能输入。");
    if (!GoTo(screen, box))
        return false;
    ReplaceText(box, text);
    if (auto* list = dynamic_cast<ListBox*>(&box))
        list->SetText(list->text);
    return true;
}

void EnterText(Screen& screen, EditBox& box, const std::string& text) {
    if (TypeText(screen, box, text))
        LeaveFocus(screen);
}

bool TypeKey(Screen& screen, EditBox& box, int keyCode) {
    if (box.locked || !GoTo(screen, box))
        return false;
    bool taken = false;
    Guarded(screen, [&] {
        taken = box.PressKey(keyCode);
        if (auto* list = dynamic_cast<ListBox*>(&box))
            list->SetText(list->text);
    });
    return taken;
}

void PickDate(Screen& screen, DateBox& box, std::optional<Date> date) {
    if (!GoTo(screen, box))
        return;
    box.date = date;
    if (box.onChange)
        Guarded(screen, box.onChange);
}

void EnterDate(Screen& screen, DateBox& box, std::optional<Date> date) {
    PickDate(screen, box, date);
    LeaveIf(screen, box);
}

void Tick(Screen& screen, Toggle& toggle, bool on) {
    auto* option = dynamic_cast<OptionButton*>(&toggle);
    if (option && !on)
        throw GestureRefused(toggle.name + " 只能选中。");
    if (!GoTo(screen, toggle))
        return;
    Guarded(screen, [&] {
        if (option)
            option->Choose();
        else
            static_cast<CheckBox&>(toggle).Change(on);
    });
}

void SetToggle(Screen& screen, Toggle& toggle, bool on) {
    Tick(screen, toggle, on);
    LeaveIf(screen, toggle);
}

void PickItem(Screen& screen, ListBox& list, int index) {
    if (index < -1 || index >= static_cast<int>(list.items.size()))
        throw GestureRefused(list.name + " 没有第 " + std::to_string(index) + " 项。");
    if (!GoTo(screen, list))
        return;
    Guarded(screen, [&] { list.Choose(index); });
}

void ChooseItem(Screen& screen, ListBox& list, int index) {
    PickItem(screen, list, index);
    LeaveIf(screen, list);
}

int ItemWithText(const ListBox& list, const std::string& text) {
    const std::string wanted = Trim(text);
    for (int i = 0; i < static_cast<int>(list.items.size()); ++i)
        if (Trim(list.VisibleText(i)) == wanted)
            return i;
    return -1;
}

void ChooseTab(Screen& screen, Tabs& tabs, int index) {
    if (index < 0 || index >= static_cast<int>(tabs.captions.size()))
        throw GestureRefused(tabs.name + " 没有第 " + std::to_string(index) + " 页。");
    if (tabs.disabledTabs.contains(index))
        throw GestureRefused(tabs.name + " 的“" + tabs.captions[static_cast<size_t>(index)] + "”不可用。");
    if (!GoTo(screen, tabs))
        return;
    tabs.index = index;
    if (tabs.onChange)
        Guarded(screen, tabs.onChange);
}

void Click(Screen& screen, Command& command) {
    if (!GoTo(screen, command))
        return;
    if (command.onClick)
        Guarded(screen, command.onClick);
    if (screen.Focus() == &command)
        LeaveFocus(screen);
}

void DoubleClickLabel(Screen& screen, Label& label) {
    RequireUsable(label);
    if (label.onDoubleClick)
        Guarded(screen, label.onDoubleClick);
}

void RightClickLabel(Screen& screen, Label& label) {
    RequireUsable(label);
    if (label.onRightClick)
        Guarded(screen, label.onRightClick);
}

void PressKey(Screen& screen, Control& control, const std::string& key) {
    if (!GoTo(screen, control))
        return;
    auto* grid = dynamic_cast<Grid*>(&control);
    if (grid && key == "Enter" && grid->onEnterKey)
        Guarded(screen, grid->onEnterKey);
    else if (control.onKey)
        Guarded(screen, [&] { control.onKey(key); });
}

void TypeCell(Screen& screen, Grid& grid, int row, int column, const std::string& text) {
    RequireColumn(grid, column);
    RequireUsable(grid);
    if (grid.Column(column).hidden)
        throw GestureRefused("“" + grid.Column(column).caption + "”不可见。");
    if (!grid.CanType(column))
        throw GestureRefused("“" + grid.Column(column).caption + "”不能输入。");
    const Value typed = TypedValue(grid.Column(column), text);
    const bool appends = row == grid.RowCount() + 1 && grid.onEnterKey;
    if (!appends)
        RequireRow(grid, row);
    if (!GoTo(screen, grid))
        return;
    if (appends) {
        grid.selectedRow = grid.RowCount();
        Guarded(screen, grid.onEnterKey);
        RequireRow(grid, row);
    }
    grid.selectedRow = row;
    grid.selectedColumn = column;
    grid.refusedRow = 0;
    const Value before = grid.Cell(row, column);
    Guarded(screen, [&] {
        grid.SetCell(row, column, typed);
        if (const int beyond = grid.ColumnOutOfBounds(row); beyond > 0) {
            const double figure = grid.Number(row, beyond);
            grid.SetCell(row, column, before);
            RequireBelow(grid.Column(beyond), figure);
        }
        if (grid.onCellLeave)
            grid.onCellLeave(row, column);
    });
}

bool HoldsEnter(const Grid& grid) {
    const int row = grid.selectedRow;
    if (row < 1 || grid.refusedRow != row)
        return false;
    const int first = ColumnAfter(grid, 0);
    return !grid.CanType(grid.selectedColumn) || (first > 0 && grid.Text(row, first).empty());
}

bool StepByEnter(Screen& screen, Grid& grid) {
    const int first = ColumnAfter(grid, 0);
    const int row = grid.selectedRow;
    if (first == 0 || row < 1)
        return false;
    const bool blank = grid.Text(row, first).empty();
    if (HoldsEnter(grid))
        return true;
    const int next = blank ? 0 : ColumnAfter(grid, grid.selectedColumn);
    if (next != 0) {
        grid.selectedColumn = next;
        return true;
    }
    if (row == grid.RowCount() && !blank && grid.onEnterKey)
        Guarded(screen, grid.onEnterKey);
    if (row == grid.RowCount())
        return false;
    grid.selectedRow = row + 1;
    grid.selectedColumn = first;
    return true;
}

void PasteBlock(Screen& screen, Grid& grid, const CellBlock& block) {
    if (grid.readOnly || !grid.onPaste)
        throw GestureRefused(grid.name + " 不能粘贴。");
    if (!block.empty() && GoTo(screen, grid))
        Guarded(screen, [&] { grid.onPaste(block); });
}

void SelectRow(Screen& screen, Grid& grid, int row) {
    RequireRow(grid, row);
    if (!GoTo(screen, grid))
        return;
    grid.selectedRow = row;
    if (grid.manyRows)
        grid.MarkRows({});
    if (grid.refusedRow != row)
        grid.refusedRow = 0;
    if (grid.onSelect)
        Guarded(screen, [&] { grid.onSelect(row); });
}

void SelectRows(Screen& screen, Grid& grid, const std::vector<int>& rows) {
    if (!grid.manyRows || rows.empty())
        throw GestureRefused(grid.name + " 不能选择多行。");
    for (const int row : rows)
        RequireRow(grid, row);
    SelectRow(screen, grid, rows.front());
    if (screen.Focus() == &grid)
        grid.MarkRows(rows);
}

void DoubleClickRow(Screen& screen, Grid& grid, int row) {
    SelectRow(screen, grid, row);
    if (grid.onDoubleClick)
        Guarded(screen, [&] { grid.onDoubleClick(row); });
}

void ClickHeading(Screen& screen, Grid& grid, int column) {
    RequireColumn(grid, column);
    if (!GoTo(screen, grid))
        return;
    if (grid.onHeading)
        Guarded(screen, [&] { grid.onHeading(column); });
}

void SelectNode(Screen& screen, Tree& tree, int node) {
    if (node < 0 || node >= static_cast<int>(tree.nodes.size()))
        throw GestureRefused(tree.name + " 没有该节点。");
    if (!GoTo(screen, tree))
        return;
    tree.selected = node;
    if (tree.onSelect)
        Guarded(screen, [&] { tree.onSelect(node); });
}

void DoubleClickNode(Screen& screen, Tree& tree, int node) {
    SelectNode(screen, tree, node);
    if (tree.onDoubleClick)
        Guarded(screen, [&] { tree.onDoubleClick(node); });
}

void DropNode(Screen& screen, Tree& tree, int node, int onto) {
    const auto known = [&](int at) { return at >= 0 && at < static_cast<int>(tree.nodes.size()); };
    if (!known(node) || !known(onto))
        throw GestureRefused(tree.name + " 没有该节点。");
    if (!GoTo(screen, tree))
        return;
    if (tree.onDrop)
        Guarded(screen, [&] { tree.onDrop(node, onto); });
}

} // namespace jxc
