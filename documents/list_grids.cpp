// Documents and lines into the two grids of the list, with their colours.

#include "controls/grid_routines.h"
#include "database/recordset.h"
#include "documents/document_list.h"
#include "documents/list_columns.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr Color kApproved = Rgb(0xE0, 0xE0, 0xE0);
constexpr Color kStopped = Rgb(0x80, 0x80, 0x80);
constexpr Color kReturn = Rgb(255, 0, 0);
constexpr int kStoppedFlag = 1;

const char* StatusText(const Value& flag) {
    const char* const texts[] = {"", "中止执行", "执行中", "完毕"};
    const std::int64_t status = flag.AsLong();
    return status >= 1 && status <= 3 ? texts[status] : "";
}

std::string DayText(const Value& date) {
    return date.AsText().substr(0, 10);
}

std::string ProductText(const Value& name, const Value& spec) {
    const std::string text = spec.AsText();
    return text.empty() ? name.AsText() : name.AsText() + "/" + text;
}

// Rows into a grid, the fields' places looked up once: a list may be of very many rows.
class GridFiller {
  public:
    GridFiller(Grid& grid, const std::vector<ListColumn>& columns, const Recordset& rows, bool lines)
        : grid_(grid), columns_(columns), rows_(rows), lines_(lines), approver_(rows.OrdinalOf("fInvSHR")),
          type_(rows.OrdinalOf("fInvType")), special_(rows.OrdinalOf(lines ? "fCpGG" : "fFlag")) {
        for (const ListColumn& column : columns)
            ordinals_.push_back(rows.OrdinalOf(column.field));
    }

    void FillRow(int at) {
        for (size_t i = 0; i < columns_.size(); ++i)
            grid_.FillCell(at, static_cast<int>(i) + 1, CellOf(i));
        ColorRow(at);
    }

  private:
    Value CellOf(size_t i) const {
        const Value& field = rows_[ordinals_[i]];
        switch (columns_[i].show) {
        case Show::Day:
            return DayText(field);
        case Show::Status:
            return StatusText(field);
        case Show::Product:
            return ProductText(field, rows_[special_]);
        default:
            return field;
        }
    }
    void ColorRow(int at) {
        const Value& approver = rows_[approver_];
        grid_.SetRowColor(at, 1, approver.AsText().empty() ? kNormalColor : kApproved);
        if (lines_)
            return;
        const bool stopped = rows_[special_].AsLong() == kStoppedFlag;
        grid_.SetRowTextColor(at, stopped ? kStopped : rows_[type_].AsLong() < 0 ? kReturn : kNormalColor);
    }

    Grid& grid_;
    const std::vector<ListColumn>& columns_;
    const Recordset& rows_;
    bool lines_;
    size_t approver_;
    size_t type_;
    size_t special_; // specification of a line, flag of a document
    std::vector<size_t> ordinals_;
};

std::int64_t DocumentOf(const Grid& grid, int row) {
    return grid.Cell(row, grid.ColumnCount()).AsLong();
}

// The row where it was if it is still of the document, else the document's first; none when it is gone.
void SelectAgain(Grid& grid, int row, std::int64_t document) {
    if (row >= 1 && row <= grid.RowCount() && DocumentOf(grid, row) == document)
        grid.selectedRow = row;
    else if (row >= 1)
        GridFindValue(grid, document);
}

} // namespace

size_t FillGrids(frmDj01& s, const ListQuery& query, bool empties) {
    Recordset rows(Conn(), query.sql);
    if (rows.RecordCount() == 0 && !empties)
        return 0;
    for (Grid* grid : {&s.Grid1, &s.Grid2}) {
        grid->Clear();
        ClearSortMark(*grid);
    }
    Grid& grid = GridOf(s, query.lines);
    grid.SetRowCount(static_cast<int>(rows.RecordCount()));
    GridFiller filler(grid, s.columns[query.lines], rows, query.lines);
    for (int at = 1; !rows.AtEnd(); rows.MoveNext(), ++at)
        filler.FillRow(at);
    ShowRowMenu(s);
    return rows.RecordCount();
}

SortAndSelection KeepSortAndSelection(frmDj01& s, bool lines) {
    const Grid& grid = GridOf(s, lines);
    SortAndSelection kept;
    if (grid.sortedColumn > 0)
        kept.sortedField = s.columns[lines][static_cast<size_t>(grid.sortedColumn - 1)].field;
    kept.ascending = grid.sortedAscending;
    kept.row = grid.selectedRow;
    kept.document = kept.row > 0 ? DocumentOf(grid, kept.row) : 0;
    return kept;
}

void RefillList(frmDj01& s, const SortAndSelection& kept) {
    if (s.shown.sql.empty())
        return;
    FillGrids(s, s.shown, true);
    Grid& grid = GridOf(s, s.shown.lines);
    if (const int sorted = ListColumnOf(s, s.shown.lines, kept.sortedField); sorted > 0) {
        GridSort(grid, sorted);
        if (!kept.ascending)
            GridSort(grid, sorted);
    }
    SelectAgain(grid, kept.row, kept.document);
    ShowRowMenu(s);
}

void RefreshList(frmDj01& s) {
    RefillList(s, KeepSortAndSelection(s, s.shown.lines));
}

Grid& GridOf(frmDj01& s, bool lines) {
    return lines ? s.Grid2 : s.Grid1;
}

Grid* FrontGrid(frmDj01& s) {
    return s.SSTab1.index == kDocumentTab ? &s.Grid1 : s.SSTab1.index == kLineTab ? &s.Grid2 : nullptr;
}

} // namespace jxc
