// Lines pasted from a spreadsheet. Everything is read and checked before the first line is written.

#include <map>
#include <set>

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr size_t kProblemsTold = 8;

// What of a pasted row goes into a line.
struct PastedLine {
    int source; // its place in the block, from 1
    std::string code;
    std::vector<std::pair<int, Value>> figures; // the columns that are typed, in their order
};

// What does not fit, row by row.
class Problems {
  public:
    void Add(int row, const std::string& text) { problems_.emplace(row, text); }
    bool None() const { return problems_.empty(); }
    // Tells them, if there are any.
    bool Told(const frmDj02& s) const {
        if (problems_.empty())
            return false;
        std::string text = "粘贴的内容有 " + std::to_string(problems_.size()) + " 处不符，未粘贴任何内容：\n";
        size_t told = 0;
        for (const auto& [row, problem] : problems_)
            if (++told <= kProblemsTold)
                text += "\n第 " + std::to_string(row) + " 行：" + problem;
        Warn(s.title, text + (told > kProblemsTold ? "\n……" : ""));
        return true;
    }

  private:
    std::multimap<int, std::string> problems_; // by the row of the block
};

// The grid's column of each cell of a pasted row, 0 for one that is not typed.
std::vector<int> ColumnsOf(const frmDj02& s, size_t width) {
    const Grid& grid = s.Grid2;
    const std::vector<int> order{line::kCode, s.type.IsStocktake() ? line::kCounted : line::kQuantity,
                                 line::kPrice, line::kMemo1, line::kMemo2};
    std::vector<int> typed;
    for (const int column : order)
        if (!grid.Column(column).hidden && grid.CanType(column))
            typed.push_back(column);
    std::vector<int> shown;
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        if (!grid.Column(column).hidden)
            shown.push_back(column);
    if (width != shown.size())
        return typed;
    for (int& column : shown)
        if (std::find(typed.begin(), typed.end(), column) == typed.end())
            column = 0; // worked out, or found by the code
    return shown;
}

// The codes of the block that are products in use, upper case.
std::set<std::string> KnownCodes(const std::vector<PastedLine>& lines) {
    std::string codes;
    for (const PastedLine& line : lines)
        codes += (codes.empty() ? "" : ",") + InQuotes(line.code);
    std::set<std::string> known;
    Recordset row(Conn(), "Select fCpCode From tJXC_Cp Where fCpFlag<>1 And fCpCode In (" + codes + ")");
    for (; !row.AtEnd(); row.MoveNext())
        known.insert(UpperCase(row["fCpCode"].AsText()));
    return known;
}

PastedLine ReadLine(const Grid& grid, int source, const std::vector<std::string>& cells,
                    const std::vector<int>& columns, Problems& problems) {
    PastedLine read{source, "", {}};
    if (cells.size() > columns.size())
        problems.Add(source, "有 " + std::to_string(cells.size()) + " 列，最多 " +
                                 std::to_string(columns.size()) + " 列");
    for (size_t i = 0; i < std::min(cells.size(), columns.size()); ++i) {
        if (columns[i] == line::kCode)
            read.code = Trim(cells[i]);
        if (columns[i] == 0 || columns[i] == line::kCode || Trim(cells[i]).empty())
            continue;
        try {
            read.figures.emplace_back(columns[i], TypedValue(grid.Column(columns[i]), cells[i]));
        } catch (const GestureRefused& refused) {
            problems.Add(source, refused.what() + std::string("（") + cells[i] + "）");
        }
    }
    return read;
}

// A block that brings quantities brings one for each line; a column of codes alone waits for theirs.
void CheckQuantities(const frmDj02& s, const std::vector<PastedLine>& lines, Problems& problems) {
    const bool counts = s.type.IsStocktake();
    const int column = counts ? line::kCounted : line::kQuantity;
    for (const PastedLine& line : lines) {
        const auto given = std::find_if(line.figures.begin(), line.figures.end(),
                                        [&](const auto& figure) { return figure.first == column; });
        if (given == line.figures.end() || (!counts && given->second.AsDouble() == 0))
            problems.Add(line.source, "没有“" + s.Grid2.Column(column).caption + "”");
    }
}

void CheckCodes(const frmDj02& s, const std::vector<PastedLine>& lines, Problems& problems) {
    const std::set<std::string> known = KnownCodes(lines);
    std::set<std::string> used;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        used.insert(UpperCase(s.Grid2.Text(row, line::kCode)));
    for (const PastedLine& line : lines) {
        if (line.code.empty())
            problems.Add(line.source, "没有产品编码");
        else if (!known.contains(UpperCase(line.code)))
            problems.Add(line.source, "没有产品“" + line.code + "”");
        else if (!used.insert(UpperCase(line.code)).second)
            problems.Add(line.source, "产品“" + line.code + "”已有输入");
    }
}

int FilledRows(const Grid& grid) {
    int rows = grid.RowCount();
    while (rows > 0 && grid.Text(rows, line::kCode).empty())
        --rows;
    return rows;
}

void WriteLines(frmDj02& s, const std::vector<PastedLine>& lines, Problems& problems) {
    Grid& grid = s.Grid2;
    const int before = FilledRows(grid);
    grid.SetRowCount(before);
    grid.SetRowCount(before + static_cast<int>(lines.size()));
    std::vector<Connection::Expected> together;
    for (const PastedLine& line : lines)
        for (const Connection::Expected& select : LineStatements(s, line.code))
            together.push_back(select);
    const ReadAhead ahead(Conn(), together);
    int row = before;
    for (const PastedLine& line : lines) {
        try {
            if (FillLineByCode(s, ++row, line.code) == 0) // gone since the codes were looked up
                problems.Add(line.source, "没有产品“" + line.code + "”");
        } catch (...) {
            grid.SetRowCount(before); // whole or not at all
            throw;
        }
        for (const auto& [column, value] : line.figures)
            grid.SetCell(row, column, value);
        if (const int beyond = grid.ColumnOutOfBounds(row); beyond > 0)
            problems.Add(line.source, "“" + grid.Column(beyond).caption + "”太大");
    }
    if (problems.Told(s))
        grid.SetRowCount(before);
    else if (s.chkTh.value)
        SetReturnSign(s);
    GoBelowTheLines(s);
}

// One column of figures or memos goes down from the selected cell.
void PasteDown(frmDj02& s, const CellBlock& block) {
    Grid& grid = s.Grid2;
    const int column = grid.selectedColumn;
    const int first = grid.selectedRow;
    Problems problems;
    std::vector<Value> values;
    for (size_t i = 0; i < block.size(); ++i) {
        const int row = first + static_cast<int>(i);
        const int source = static_cast<int>(i) + 1;
        try {
            if (row > grid.RowCount() || grid.Text(row, line::kCode).empty())
                problems.Add(source, "这里没有产品");
            values.push_back(TypedValue(grid.Column(column), block[i][0]));
        } catch (const GestureRefused& refused) {
            problems.Add(source, refused.what() + std::string("（") + block[i][0] + "）");
        }
    }
    if (problems.Told(s))
        return;
    std::vector<Value> before;
    for (size_t i = 0; i < values.size(); ++i) {
        const int row = first + static_cast<int>(i);
        before.push_back(grid.Cell(row, column));
        grid.SetCell(row, column, values[i]);
        if (const int beyond = grid.ColumnOutOfBounds(row); beyond > 0)
            problems.Add(static_cast<int>(i) + 1, "“" + grid.Column(beyond).caption + "”太大");
    }
    if (problems.Told(s))
        for (size_t i = 0; i < before.size(); ++i)
            grid.SetCell(first + static_cast<int>(i), column, before[i]);
    else if (s.chkTh.value)
        SetReturnSign(s);
}

} // namespace

void PasteLines(frmDj02& s, const CellBlock& block) {
    Grid& grid = s.Grid2;
    size_t width = 0;
    for (const auto& cells : block)
        width = std::max(width, cells.size());
    const bool beside = grid.selectedColumn != line::kCode && grid.selectedColumn != line::kName;
    if (width == 1 && beside && grid.selectedRow > 0 && grid.CanType(grid.selectedColumn)) {
        PasteDown(s, block);
        return RefreshTotals(s);
    }
    const std::vector<int> columns = ColumnsOf(s, width);
    Problems problems;
    std::vector<PastedLine> lines;
    for (size_t i = 0; i < block.size(); ++i) {
        if (i == 0 && block[0][0] == grid.Column(line::kCode).caption)
            continue; // copied with its captions
        lines.push_back(ReadLine(grid, static_cast<int>(i) + 1, block[i], columns, problems));
    }
    if (!lines.empty())
        CheckCodes(s, lines, problems);
    if (width > 1 && problems.None())
        CheckQuantities(s, lines, problems);
    const size_t most = static_cast<size_t>(s.parameters.maxRows);
    if (most > 0 && static_cast<size_t>(FilledRows(grid)) + lines.size() > most)
        problems.Add(static_cast<int>(lines.size()), "单据最多 " + std::to_string(most) + " 行");
    if (lines.empty() || problems.Told(s))
        return;
    WriteLines(s, lines, problems);
    RefreshTotals(s);
}

} // namespace jxc
