// The columns of a list as one table: what each is called, what it shows and when. The grid's set-up, its filling and the
// company's choice of columns follow from it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/grid.h"
#include "database/recordset.h"

namespace jxc {

// How a column shows its field. Quantities and prices have the company's decimals, money has two; a day is its first
// ten characters; a key is never shown.
enum class Figure { Text, Day, Number, Quantity, Price, Money, Tick, Choice, Key };

struct Column {
    std::string caption; // "" for a column that the company does not use
    std::string field;   // of the rows; names the column in the company's dictionary
    double width = 8;    // in characters
    Figure figure = Figure::Text;
    std::function<Value(const Recordset&)> made = {}; // what the cell shows in place of the field
    std::function<bool()> when = {};                  // filled and shown only then
    std::function<bool()> shownWhen = {};             // always filled, but shown only then
    std::vector<std::string> items = {}; // of a Choice, whose cell holds the place of one, from 0
    int decimals = 2;                    // of a Number
    int maxBytes = 0;                    // of what is typed
    bool typed = false;                  // takes typing; otherwise it is locked
    bool ownCaption = false;             // the company's dictionary does not rename it
    bool selected = true;                // the company wants to see it

    bool IsNumber() const {
        return figure == Figure::Number || figure == Figure::Quantity || figure == Figure::Price ||
               figure == Figure::Money;
    }
    bool IsUsed() const { return figure != Figure::Key && !caption.empty(); }
};

// The same column, filled and shown only when the condition holds; or filled always and shown then.
Column When(std::function<bool()> condition, Column column);
Column ShownWhen(std::function<bool()> condition, Column column);

// "name/specification" of the row's product.
Value ProductText(const Recordset& row);

// By the session's decimals, which LoadPeriodSettings reads.
int DecimalsOf(const Column& column);

class Columns {
  public:
    explicit Columns(Grid& grid, std::vector<Column> columns = {});

    Grid& InGrid() const { return grid_; }
    const std::vector<Column>& All() const { return columns_; }
    // The place of a field's first column in the grid, from 1; 0 when it has none.
    int Place(const std::string& field) const;
    // The fields in their order, "a,b,c".
    std::string FieldList() const;

    // Gives the grid the columns; it has no rows then. With an argument these are the columns from now on.
    void SetUp();
    void SetUp(std::vector<Column> columns);
    // Shows and hides the columns as their conditions say now.
    void ShowWanted();
    // Fills the grid with the rows, in their order, and takes its sort mark away. The number of rows filled.
    int Fill(Recordset& rows);

    // Of a fill: rows that are not taken are left out; each row taken can be coloured.
    std::function<bool(const Recordset&)> takes;
    std::function<void(int row, const Recordset&)> onRow;

  private:
    Grid& grid_;
    std::vector<Column> columns_;
};

// How a list was sorted and which of its rows was selected, by the key in its last column, to be found again when it is
// filled anew.
struct KeptPlace {
    std::string sortedField; // "" when the rows are in their own order
    bool ascending = true;
    int row = 0;
    Value key;
};
// The first row whose last column holds the key; 0 when none does, or for no key.
int RowOfKey(const Grid& grid, const Value& key);
KeptPlace KeepPlace(const Columns& list);
// The row where it was if it still has the key, else the first with it; none when it is gone.
void RestorePlace(Columns& list, const KeptPlace& kept);

} // namespace jxc
