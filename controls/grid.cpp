#include "controls/grid.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "controls/bounds.h"
#include "controls/screen.h"

namespace jxc {

namespace {

// Nothing first, then numbers, then texts, as the databases sort.
bool Before(const Value& a, const Value& b) {
    const auto rank = [](const Value& v) { return v.IsNull() ? 0 : v.IsText() ? 2 : 1; };
    if (rank(a) != rank(b))
        return rank(a) < rank(b);
    if (rank(a) == 1)
        return a.AsDouble() < b.AsDouble();
    return rank(a) == 2 && a.AsText() < b.AsText();
}

} // namespace

void Grid::SetColumns(std::vector<GridColumn> columns) {
    columns_ = std::move(columns);
    rows_.clear();
    formulas_.clear();
    selectedRow = 0;
    selectedColumn = 1;
    sortedColumn = 0;
}

void Grid::SetFormula(int column, std::string_view formula) {
    const auto isOf = [&](const Formula& f) { return f.column == column; };
    if (formula.empty()) {
        std::erase_if(formulas_, isOf);
        return;
    }
    Formula wanted{column, std::string(formula), RowFormula(formula)};
    for (const int read : wanted.compiled.Reads())
        if (read > ColumnCount())
            throw FormulaError("公式 " + wanted.text + " 有误：没有第 " + std::to_string(read) + " 列。");
    if (ReadsItself(wanted))
        throw FormulaError("公式 " + wanted.text + " 循环引用。");
    std::erase_if(formulas_, isOf);
    formulas_.push_back(std::move(wanted));
    OrderFormulas();
}

// Straight, or over the formulas of other columns.
bool Grid::ReadsItself(const Formula& wanted) const {
    std::vector<int> reached = wanted.compiled.Reads();
    for (size_t i = 0; i < reached.size(); ++i) {
        if (reached[i] == wanted.column)
            return true;
        for (const Formula& other : formulas_)
            if (other.column == reached[i])
                for (const int read : other.compiled.Reads())
                    if (std::find(reached.begin(), reached.end(), read) == reached.end())
                        reached.push_back(read);
    }
    return false;
}

bool Grid::HasFormula(int column) const {
    return std::any_of(formulas_.begin(), formulas_.end(),
                       [&](const Formula& f) { return f.column == column; });
}

// A formula behind those that it reads; there is no circle among them.
void Grid::OrderFormulas() {
    std::vector<Formula> ordered;
    while (!formulas_.empty()) {
        const auto waits = [&](const Formula& formula) {
            return std::any_of(formula.compiled.Reads().begin(), formula.compiled.Reads().end(),
                               [&](int read) { return HasFormula(read); });
        };
        const auto next = std::find_if_not(formulas_.begin(), formulas_.end(), waits);
        ordered.push_back(std::move(*next));
        formulas_.erase(next);
    }
    formulas_ = std::move(ordered);
}

void Grid::Evaluate(int row, std::optional<int> changed) {
    if (formulas_.empty())
        return;
    std::vector<int> touched;
    if (changed)
        touched.push_back(*changed);
    for (const Formula& formula : formulas_) {
        const auto& reads = formula.compiled.Reads();
        const bool due = !changed || std::any_of(reads.begin(), reads.end(), [&](int read) {
            return std::find(touched.begin(), touched.end(), read) != touched.end();
        });
        if (!due)
            continue;
        double result = formula.compiled.Evaluate([&](int column) { return Number(row, column); });
        if (const GridColumn& settings = Column(formula.column); settings.rounded)
            result = RoundDecimal(result, settings.decimals);
        const Value value = result;
        Value& cell = rows_[static_cast<size_t>(row - 1)].cells[static_cast<size_t>(formula.column - 1)];
        if (cell == value)
            continue;
        cell = value;
        touched.push_back(formula.column);
        if (onCellChange)
            onCellChange(row, formula.column);
    }
}

void Grid::Recalculate() {
    for (int row = 1; row <= RowCount(); ++row)
        Evaluate(row, std::nullopt);
}

int Grid::ColumnOutOfBounds(int row) const {
    for (int column = 1; column <= ColumnCount(); ++column) {
        if (Reaches(Number(row, column), Column(column).below))
            return column;
    }
    return 0;
}

void Grid::SetRowCount(int rows) {
    const size_t before = rows_.size();
    rows_.resize(static_cast<size_t>(rows));
    for (size_t i = before; i < rows_.size(); ++i)
        rows_[i].cells.resize(columns_.size());
    selectedRow = std::min(selectedRow, rows);
    refusedRow = 0;
}

void Grid::InsertRow(int at) {
    Row row;
    row.cells.resize(columns_.size());
    rows_.insert(rows_.begin() + (at - 1), std::move(row));
    refusedRow = 0;
}

void Grid::RemoveRow(int row) {
    CheckPlace(row, 1);
    rows_.erase(rows_.begin() + (row - 1));
    selectedRow = std::min(selectedRow, RowCount());
    refusedRow = 0;
}

void Grid::CheckPlace(int row, int column) const {
    if (row < 1 || row > RowCount() || column < 1 || column > ColumnCount())
        throw ScreenError(name + " 没有第 " + std::to_string(row) + " 行第 " + std::to_string(column) +
                          " 列。");
}

const Value& Grid::Cell(int row, int column) const {
    CheckPlace(row, column);
    return rows_[static_cast<size_t>(row - 1)].cells[static_cast<size_t>(column - 1)];
}

std::string Grid::ShownText(int row, int column) const {
    const Value& cell = Cell(row, column);
    const GridColumn& settings = Column(column);
    if (settings.type == CellType::List) {
        const std::int64_t place = cell.IsNull() ? -1 : cell.AsLong();
        return place < 0 || place >= std::ssize(settings.items) ? ""
                                                                : settings.items[static_cast<size_t>(place)];
    }
    if (cell.IsNull() || settings.type != CellType::Number || cell.AsText().empty())
        return cell.AsText();
    return FormatFixed(cell.AsDouble(), settings.decimals, settings.thousands);
}

void Grid::FillCell(int row, int column, Value value) {
    CheckPlace(row, column);
    rows_[static_cast<size_t>(row - 1)].cells[static_cast<size_t>(column - 1)] = std::move(value);
}

void Grid::MarkRows(const std::vector<int>& rows) {
    for (Row& row : rows_)
        row.marked = false;
    for (const int row : rows) {
        CheckPlace(row, 1);
        rows_[static_cast<size_t>(row - 1)].marked = true;
    }
}

std::vector<int> Grid::SelectedRows() const {
    std::vector<int> marked;
    for (int row = 1; row <= RowCount(); ++row)
        if (rows_[static_cast<size_t>(row - 1)].marked)
            marked.push_back(row);
    if (marked.empty() && selectedRow > 0)
        marked.push_back(selectedRow);
    return marked;
}

void Grid::SetCell(int row, int column, Value value) {
    if (Cell(row, column) == value)
        return;
    FillCell(row, column, std::move(value));
    if (onCellChange)
        onCellChange(row, column);
    Evaluate(row, column);
}

void Grid::SetRowColor(int row, int fromColumn, Color color) {
    CheckPlace(row, fromColumn);
    rows_[static_cast<size_t>(row - 1)].color = color;
    rows_[static_cast<size_t>(row - 1)].colorFrom = fromColumn;
}

Color Grid::BackColor(int row, int column) const {
    CheckPlace(row, column);
    const Row& held = rows_[static_cast<size_t>(row - 1)];
    const Color ofRow = column >= held.colorFrom ? held.color : kNormalColor;
    return ofRow == kNormalColor ? Column(column).backColor : ofRow;
}

void Grid::SetRowTextColor(int row, Color color) {
    CheckPlace(row, 1);
    rows_[static_cast<size_t>(row - 1)].textColor = color;
}

Color Grid::TextColor(int row) const {
    CheckPlace(row, 1);
    return rows_[static_cast<size_t>(row - 1)].textColor;
}

void Grid::Sort(int column, bool ascending) {
    const auto at = static_cast<size_t>(column - 1);
    // A row that moves takes its cells along where they lie in memory: by them the selected one is known.
    const Value* selected =
        selectedRow > 0 ? rows_[static_cast<size_t>(selectedRow - 1)].cells.data() : nullptr;
    std::stable_sort(rows_.begin(), rows_.end(), [&](const Row& a, const Row& b) {
        return ascending ? Before(a.cells[at], b.cells[at]) : Before(b.cells[at], a.cells[at]);
    });
    for (int row = 1; selected && row <= RowCount(); ++row)
        if (rows_[static_cast<size_t>(row - 1)].cells.data() == selected)
            selectedRow = row;
    sortedColumn = column;
    sortedAscending = ascending;
}

} // namespace jxc
