// A grid: columns with captions, types and formulas, rows of values, colours, a selected cell. Rows and
// columns count from 1. Numbers are kept as numbers and shown with the column's decimals and thousands
// separators.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/cell_block.h"
#include "controls/control.h"
#include "controls/row_formula.h"

namespace jxc {

// A cell of a List column holds the place of one of the column's items, from 0; it is typed by the item's beginning.
enum class CellType { Text, Number, Check, List };
enum class Alignment { Left, Right, Center };

// Red, green and blue as 0x00BBGGRR, the order in which the highlight colours are given; -1 is the normal
// colour.
using Color = int;
constexpr Color kNormalColor = -1;
constexpr Color Rgb(int red, int green, int blue) {
    return red | green << 8 | blue << 16;
}

struct GridColumn {
    std::string caption = {};
    CellType type = CellType::Text;
    int decimals = 2;
    bool thousands = true;
    double width = 8; // in characters
    bool hidden = false;
    bool locked = false; // against typing
    Alignment alignment = Alignment::Left;
    std::vector<std::string> items = {}; // of a List
    Color textColor = kNormalColor;
    Color backColor = kNormalColor; // of its cells, where their row has none
    int maxBytes = 0;               // typed text is cut to this many bytes, 0 for no limit
    double below = 0;     // what is typed may not make a figure of the column this large, 0 for no bound
    bool rounded = false; // the formula's result has the column's decimals, as it is shown
};

struct Grid : Control {
    Grid(Place place, std::string name) : Control(place, std::move(name), ControlKind::Grid) {}

    // Columns. Setting them empties the grid and drops formulas.
    void SetColumns(std::vector<GridColumn> columns);
    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    GridColumn& Column(int column) { return columns_.at(static_cast<size_t>(column - 1)); }
    const GridColumn& Column(int column) const { return columns_.at(static_cast<size_t>(column - 1)); }
    // "" removes the formula. A formula that reads itself, straight or over others, is a FormulaError, which
    // changes nothing.
    void SetFormula(int column, std::string_view formula);
    bool HasFormula(int column) const;
    // Works the formulas out anew for every row.
    void Recalculate();
    // The first column of the row whose figure reaches its bound or is none; 0 when all are below.
    int ColumnOutOfBounds(int row) const;

    // Rows.
    int RowCount() const { return static_cast<int>(rows_.size()); }
    void SetRowCount(int rows);
    void InsertRow(int at); // an empty row that becomes row `at`
    void RemoveRow(int row);
    void Clear() { SetRowCount(0); }

    const Value& Cell(int row, int column) const;
    double Number(int row, int column) const { return Cell(row, column).AsDouble(); }
    std::string Text(int row, int column) const { return Cell(row, column).AsText(); }
    // The cell as shown: numbers with decimals and separators, an empty cell as "".
    std::string ShownText(int row, int column) const;
    // Sets a cell and works out the row's formulas that depend on it. onCellChange is told of each cell that
    // changed.
    void SetCell(int row, int column, Value value);
    // Fills a cell without formulas or events: for loading; Recalculate afterwards if formulas are set.
    void FillCell(int row, int column, Value value);

    void SetRowColor(int row, int fromColumn, Color color);
    Color BackColor(int row, int column) const;
    // The colour of a row's texts, before that of their columns.
    void SetRowTextColor(int row, Color color);
    Color TextColor(int row) const;

    // Sorts by a column's values: nothing before numbers before texts; equal rows keep their order. Colours
    // and selection stay with their rows.
    void Sort(int column, bool ascending);
    // The column of the last sort, and its direction; 0 when the rows are as filled.
    int sortedColumn = 0;
    bool sortedAscending = true;

    int selectedRow = 0; // 0 for none
    int selectedColumn = 1;
    // A person may select several rows beside the one in hand. Marks stay with their rows; SelectedRows tells the marked
    // ones from above, without any the one in hand.
    bool manyRows = false;
    void MarkRows(const std::vector<int>& rows); // and no other
    std::vector<int> SelectedRows() const;
    // The columns that Enter leads through while rows are typed; empty for all that take typing.
    std::vector<int> enterColumns;
    bool readOnly = false; // no typing at all
    // The row in which a typed text was not taken and is gone: Enter stays in it while it is blank, or while the
    // cursor waits in a cell that takes no typing, until something is taken there, the person goes elsewhere or the
    // rows are others. 0 for none.
    int refusedRow = 0;
    bool CanType(int column) const { return !readOnly && !Column(column).locked && !HasFormula(column); }

    std::function<void(int row, int column)> onCellChange;
    std::function<void(int row, int column)> onCellLeave; // a person leaves a cell that was typed into
    std::function<void()> onEnterKey;                     // Enter on the last row
    // What is suggested for a text being typed into a cell, and picked for it: see EditBox. None for a column without.
    std::function<Suggestions(int row, int column, const std::string& typed)> onSuggest;
    std::function<std::optional<SuggestedRow>(int row, int column, const std::string& typed)> onPick;
    // Takes a block of cells whole or not at all; without it a view types a pasted block cell by cell.
    std::function<void(const CellBlock& block)> onPaste;
    std::function<void(int column)> onHeading;
    std::function<void(int row)> onSelect;
    std::function<void(int row)> onDoubleClick;
    // The items that the right button offers on a row, in their order; none for no menu. They act on the
    // selected row.
    std::function<std::vector<Command*>(int row)> rowMenu;

  private:
    struct Row {
        std::vector<Value> cells;
        Color color = kNormalColor;
        int colorFrom = 1;
        Color textColor = kNormalColor;
        bool marked = false;
    };
    struct Formula {
        int column;
        std::string text;
        RowFormula compiled;
    };
    void CheckPlace(int row, int column) const;
    bool ReadsItself(const Formula& wanted) const;
    void OrderFormulas();
    // Evaluates the row's formulas in dependency order, all of them or those that `changed` reaches.
    void Evaluate(int row, std::optional<int> changed);

    std::vector<GridColumn> columns_;
    std::vector<Row> rows_;
    std::vector<Formula> formulas_; // in dependency order
};

} // namespace jxc
