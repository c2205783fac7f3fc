// The two grids of the document list.

#include <span>

#include "documents/document_list.h"
#include "session/database/recordset.h"
#include "session/grid_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

enum class Show { Text, Day, Status, Product, Quantity, Price, Amount, Hidden };

struct ListColumn {
    const char* caption;
    const char* field;
    double width;
    Show show = Show::Text;
};

constexpr ListColumn kDocumentColumns[] = {{"日期", "fInvDate", 10, Show::Day},
                                           {"单号", "fInvNo", 15},
                                           {"客户", "CompName", 24},
                                           {"仓库", "fCkName", 10},
                                           {"仓库2", "fCkName2", 10},
                                           {"订单号", "fHtNo", 15},
                                           {"摘要", "fInvMemo", 12},
                                           {"状态", "fFlag", 8, Show::Status},
                                           {"登录人", "fInvDLR", 8},
                                           {"经办人", "fInvJbr", 8},
                                           {"审核人", "fInvSHR", 8},
                                           {"fInvType", "fInvType", 0, Show::Hidden},
                                           {"fInvID", "fInvID", 0, Show::Hidden}};

constexpr int kMemo1 = 13;
constexpr int kMemo2 = 14;
constexpr ListColumn kLineColumns[] = {{"日期", "fInvDate", 10, Show::Day},
                                       {"单据类", "fSetName", 10},
                                       {"单号", "fInvNo", 15},
                                       {"客户", "CompName", 24},
                                       {"仓库", "fCkName", 10},
                                       {"编码", "fCpCode", 12},
                                       {"品名规格", "fCpName", 30, Show::Product},
                                       {"单位", "fCpUnit", 6},
                                       {"数量", "fInvSL", 9, Show::Quantity},
                                       {"单价", "fInvDJ", 10, Show::Price},
                                       {"金额", "fInvJE", 12, Show::Amount},
                                       {"税额", "fInvTax", 10, Show::Amount},
                                       {"", "fInvOther1", 14},
                                       {"", "fInvOther2", 14},
                                       {"登录人", "fInvDLR", 8},
                                       {"经办人", "fInvJbr", 8},
                                       {"审核人", "fInvSHR", 8},
                                       {"fInvType", "fInvType", 0, Show::Hidden},
                                       {"fInvID", "fInvID", 0, Show::Hidden}};

constexpr Color kApproved = Rgb(0xE0, 0xE0, 0xE0);
constexpr Color kStopped = Rgb(0x80, 0x80, 0x80);
constexpr Color kReturn = Rgb(255, 0, 0);
constexpr int kStoppedFlag = 1;

std::span<const ListColumn> ColumnsOf(bool lines) {
    return lines ? std::span<const ListColumn>(kLineColumns) : std::span<const ListColumn>(kDocumentColumns);
}

Grid& GridOf(frmDj01& s, bool lines) {
    return lines ? s.Grid2 : s.Grid1;
}

void SetUpGrid(Grid& grid, std::span<const ListColumn> columns, const Parameters& parameters) {
    std::vector<GridColumn> shown;
    for (const ListColumn& column : columns) {
        const bool number =
            column.show == Show::Quantity || column.show == Show::Price || column.show == Show::Amount;
        shown.push_back({.caption = column.caption,
                         .type = number ? CellType::Number : CellType::Text,
                         .decimals = column.show == Show::Quantity ? parameters.quantityDecimals
                                     : column.show == Show::Price  ? parameters.priceDecimals
                                                                   : 2,
                         .width = column.width,
                         .hidden = column.show == Show::Hidden,
                         .locked = true,
                         .alignment = number ? Alignment::Right : Alignment::Left});
    }
    grid.SetColumns(std::move(shown));
    grid.readOnly = true;
}

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
    GridFiller(Grid& grid, std::span<const ListColumn> columns, const Recordset& rows, bool lines)
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
    std::span<const ListColumn> columns_;
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

void SetUpListGrids(frmDj01& s, const Parameters& parameters) {
    SetUpGrid(s.Grid1, kDocumentColumns, parameters);
    SetUpGrid(s.Grid2, kLineColumns, parameters);
    const std::string* const memos[] = {&parameters.memo1, &parameters.memo2};
    for (const int column : {kMemo1, kMemo2}) {
        s.Grid2.Column(column).caption = *memos[column - kMemo1];
        s.Grid2.Column(column).hidden = memos[column - kMemo1]->empty();
    }
}

void FillGrids(frmDj01& s, const ListQuery& query) {
    Recordset rows(Conn(), query.sql);
    for (Grid* grid : {&s.Grid1, &s.Grid2}) {
        grid->Clear();
        ClearSortMark(*grid);
    }
    Grid& grid = GridOf(s, query.lines);
    grid.SetRowCount(static_cast<int>(rows.RecordCount()));
    GridFiller filler(grid, ColumnsOf(query.lines), rows, query.lines);
    for (int at = 1; !rows.AtEnd(); rows.MoveNext(), ++at)
        filler.FillRow(at);
    ShowRowMenu(s);
}

void RefreshList(frmDj01& s) {
    if (s.shown.sql.empty())
        return;
    Grid& grid = GridOf(s, s.shown.lines);
    const int row = grid.selectedRow;
    const std::int64_t document = row > 0 ? DocumentOf(grid, row) : 0;
    const int sorted = grid.sortedColumn;
    const bool ascending = grid.sortedAscending;
    FillGrids(s, s.shown);
    if (sorted > 0) {
        GridSort(grid, sorted);
        if (!ascending)
            GridSort(grid, sorted);
    }
    SelectAgain(grid, row, document);
    ShowRowMenu(s);
}

Grid* FrontGrid(frmDj01& s) {
    return s.SSTab1.index == kDocumentTab ? &s.Grid1 : s.SSTab1.index == kLineTab ? &s.Grid2 : nullptr;
}

} // namespace jxc
