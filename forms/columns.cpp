#include "forms/columns.h"

#include "base/text.h"
#include "controls/grid_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

CellType TypeOf(const Column& column) {
    return column.figure == Figure::Tick     ? CellType::Check
           : column.figure == Figure::Choice ? CellType::List
           : column.IsNumber()               ? CellType::Number
                                             : CellType::Text;
}

GridColumn Shown(const Column& column) {
    return {.caption = column.caption,
            .type = TypeOf(column),
            .decimals = DecimalsOf(column),
            .width = column.width,
            .locked = !column.typed,
            .alignment = column.IsNumber() ? Alignment::Right : Alignment::Left,
            .items = column.items,
            .maxBytes = column.maxBytes};
}

bool IsWanted(const Column& column) {
    return column.IsUsed() && column.selected && (!column.when || column.when()) &&
           (!column.shownWhen || column.shownWhen());
}

// One column to be filled, its place among the rows' fields looked up once: a list may be of very many rows.
struct Source {
    const Column* column;
    int place;
    size_t ordinal;

    Value CellOf(const Recordset& row) const {
        if (column->made)
            return column->made(row);
        if (column->figure == Figure::Day)
            return row[ordinal].AsText().substr(0, 10);
        return row[ordinal];
    }
};

std::vector<Source> SourcesOf(const std::vector<Column>& columns, const Recordset& rows) {
    std::vector<Source> sources;
    int place = 0;
    for (const Column& column : columns) {
        ++place;
        if (!column.when || column.when())
            sources.push_back({&column, place, column.made ? 0 : rows.OrdinalOf(column.field)});
    }
    return sources;
}

} // namespace

Column When(std::function<bool()> condition, Column column) {
    column.when = std::move(condition);
    return column;
}

Column ShownWhen(std::function<bool()> condition, Column column) {
    column.shownWhen = std::move(condition);
    return column;
}

Value ProductText(const Recordset& row) {
    const std::string spec = row["fCpGG"].AsText();
    return row["fCpName"].AsText() + (spec.empty() ? "" : "/" + spec);
}

int DecimalsOf(const Column& column) {
    switch (column.figure) {
    case Figure::Quantity:
        return session.DeciSl;
    case Figure::Price:
        return session.DeciDj;
    case Figure::Number:
        return column.decimals;
    default:
        return 2;
    }
}

Columns::Columns(Grid& grid, std::vector<Column> columns) : grid_(grid), columns_(std::move(columns)) {}

int Columns::Place(const std::string& field) const {
    int place = 0;
    for (const Column& column : columns_) {
        ++place;
        if (column.field == field)
            return place;
    }
    return 0;
}

std::string Columns::FieldList() const {
    std::vector<std::string> fields;
    for (const Column& column : columns_)
        fields.push_back(column.field);
    return JoinedByCommas(fields);
}

void Columns::SetUp() {
    std::vector<GridColumn> shown;
    for (const Column& column : columns_)
        shown.push_back(Shown(column));
    grid_.SetColumns(std::move(shown));
    grid_.readOnly = std::ranges::none_of(columns_, [](const Column& column) { return column.typed; });
    ShowWanted();
}

void Columns::SetUp(std::vector<Column> columns) {
    columns_ = std::move(columns);
    SetUp();
}

void Columns::ShowWanted() {
    int place = 0;
    for (const Column& column : columns_)
        grid_.Column(++place).hidden = !IsWanted(column);
}

int Columns::Fill(Recordset& rows) {
    grid_.Clear();
    ClearSortMark(grid_);
    grid_.SetRowCount(static_cast<int>(rows.RecordCount()));
    const std::vector<Source> sources = SourcesOf(columns_, rows);
    int filled = 0;
    for (; !rows.AtEnd(); rows.MoveNext()) {
        if (takes && !takes(rows))
            continue;
        ++filled;
        for (const Source& source : sources)
            grid_.FillCell(filled, source.place, source.CellOf(rows));
        if (onRow)
            onRow(filled, rows);
    }
    grid_.SetRowCount(filled);
    return filled;
}

namespace {

bool HasKey(const Grid& grid, int row, const Value& key) {
    return EqualsNoCase(grid.Text(row, grid.ColumnCount()), key.AsText());
}

} // namespace

int RowOfKey(const Grid& grid, const Value& key) {
    for (int row = 1; row <= grid.RowCount() && !key.IsNull(); ++row)
        if (HasKey(grid, row, key))
            return row;
    return 0;
}

KeptPlace KeepPlace(const Columns& list) {
    const Grid& grid = list.InGrid();
    KeptPlace kept;
    if (grid.sortedColumn > 0)
        kept.sortedField = list.All()[static_cast<size_t>(grid.sortedColumn - 1)].field;
    kept.ascending = grid.sortedAscending;
    kept.row = grid.selectedRow;
    if (kept.row > 0)
        kept.key = grid.Cell(kept.row, grid.ColumnCount());
    return kept;
}

void RestorePlace(Columns& list, const KeptPlace& kept) {
    Grid& grid = list.InGrid();
    if (const int sorted = list.Place(kept.sortedField); sorted > 0) {
        GridSort(grid, sorted);
        if (!kept.ascending)
            GridSort(grid, sorted);
    }
    const bool stands = kept.row >= 1 && kept.row <= grid.RowCount() && HasKey(grid, kept.row, kept.key);
    grid.selectedRow = stands ? kept.row : RowOfKey(grid, kept.key);
}

} // namespace jxc
