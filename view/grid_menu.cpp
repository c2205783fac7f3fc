#include "view/grid_menu.h"

#include <stdexcept>

#include <locale.h>

#include <xlsxwriter.h>

#include "base/text.h"
#include "controls/view.h"
#include "session/session.h"
#include "view/cell_texts.h"
#include "view/grid_paper.h"
#include "view/page_printer.h"
#include "view/paper_preview.h"
#include "view/qt_text.h"
#include "view/save_dialog.h"

namespace jxc {

namespace {

std::vector<int> VisibleColumns(const Grid& grid, int first, int last) {
    std::vector<int> columns;
    for (int column = first; column <= last; ++column)
        if (!grid.Column(column).hidden)
            columns.push_back(column);
    return columns;
}

// A cell as programs read it: a number without separators, a text that no spreadsheet runs.
std::string PlainText(const Grid& grid, int row, int column) {
    std::string text = grid.ShownText(row, column);
    if (!grid.Cell(row, column).IsNumber() || grid.Column(column).type == CellType::List)
        return HarmlessText(text);
    if (grid.Column(column).type == CellType::Number)
        std::erase(text, ',');
    return text;
}

bool Shows(const Grid& grid, int row, int column, const std::string& text) {
    return row <= grid.RowCount() &&
           (grid.ShownText(row, column) == text || OriginalText(PlainText(grid, row, column)) == text);
}

// The library prints numbers in the language in use; a file has its decimal point.
class DecimalPoint {
  public:
    DecimalPoint() : numbers_(newlocale(LC_NUMERIC_MASK, "C", nullptr)), before_(uselocale(numbers_)) {}
    ~DecimalPoint() {
        uselocale(before_);
        freelocale(numbers_);
    }
    DecimalPoint(const DecimalPoint&) = delete;
    DecimalPoint& operator=(const DecimalPoint&) = delete;

  private:
    locale_t numbers_;
    locale_t before_;
};

// What the library does not take it would leave out.
void Check(lxw_error error, const QString& file) {
    if (error != LXW_NO_ERROR)
        throw std::runtime_error("无法写入 " + S(file) + "：" + lxw_strerror(error));
}

lxw_error WriteCell(lxw_worksheet* sheet, int row, int column, const Value& value, lxw_format* format) {
    const auto at = static_cast<lxw_row_t>(row);
    const auto to = static_cast<lxw_col_t>(column);
    if (value.IsNumber())
        return worksheet_write_number(sheet, at, to, value.AsDouble(), format);
    return value.IsNull() ? LXW_NO_ERROR
                          : worksheet_write_string(sheet, at, to, value.AsText().c_str(), nullptr);
}

lxw_format* NumberFormat(lxw_workbook* book, const GridColumn& column) {
    if (column.type != CellType::Number)
        return nullptr;
    std::string pattern = column.thousands ? "#,##0" : "0";
    if (column.decimals > 0)
        pattern += "." + std::string(static_cast<size_t>(column.decimals), '0');
    lxw_format* format = workbook_add_format(book);
    format_set_num_format(format, pattern.c_str());
    return format;
}

GridPrintJob JobOf(const Grid& grid, const std::string& title) {
    return {session.CompanyFieldList, &grid, "", title, ""};
}

} // namespace

CellRange WholeGrid(const Grid& grid) {
    return {1, 1, grid.RowCount(), grid.ColumnCount()};
}

std::string CopiedText(const Grid& grid, const CellRange& range, bool captions) {
    const std::vector<int> columns = VisibleColumns(grid, range.firstColumn, range.lastColumn);
    std::string text;
    const auto add = [&](const auto& cell) {
        for (size_t i = 0; i < columns.size(); ++i)
            text.append(i > 0 ? "\t" : "").append(Quoted(cell(columns[i]), '\t'));
        text += "\n";
    };
    if (captions)
        add([&](int column) { return HarmlessText(grid.Column(column).caption); });
    for (int row = range.firstRow; row <= range.lastRow; ++row)
        add([&](int column) { return PlainText(grid, row, column); });
    return text;
}

CellBlock PastedCells(const std::string& text) {
    CellBlock block = ReadCells(text);
    for (std::vector<std::string>& row : block)
        for (std::string& cell : row)
            cell = OriginalText(cell);
    return block;
}

void PasteCells(const Grid& grid, const CellBlock& block,
                const std::function<bool(int, int, const std::string&)>& type) {
    int row = grid.selectedRow;
    const int first = grid.selectedColumn;
    for (const std::vector<std::string>& cells : block) {
        const std::vector<int> columns = VisibleColumns(grid, first, grid.ColumnCount());
        for (size_t i = 0; i < std::min(columns.size(), cells.size()); ++i) {
            const std::string& cell = cells[i];
            const bool passed =
                cell.empty() || !grid.CanType(columns[i]) || Shows(grid, row, columns[i], cell);
            if (!passed && !type(row, columns[i], cell))
                return;
        }
        ++row;
    }
}

void SaveAsCsv(const Grid& grid, const QString& file) {
    const std::vector<int> columns = VisibleColumns(grid, 1, grid.ColumnCount());
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        throw std::runtime_error("无法写入 " + S(file) + "：" + S(out.errorString()));
    std::string text = "\xEF\xBB\xBF";
    const auto add = [&](const auto& cell) {
        for (size_t i = 0; i < columns.size(); ++i)
            text.append(i > 0 ? "," : "").append(Quoted(HarmlessWithin(cell(columns[i])), ','));
        text += "\r\n";
    };
    add([&](int column) { return HarmlessText(grid.Column(column).caption); });
    for (int row = 1; row <= grid.RowCount(); ++row)
        add([&](int column) { return PlainText(grid, row, column); });
    out.write(text.data(), static_cast<qint64>(text.size()));
    if (!out.commit())
        throw std::runtime_error("无法写入 " + S(file) + "：" + S(out.errorString()));
}

void SaveAsXlsx(const Grid& grid, const std::string& title, const QString& file) {
    const DecimalPoint decimalPoint;
    const std::vector<int> columns = VisibleColumns(grid, 1, grid.ColumnCount());
    lxw_error refused = LXW_NO_ERROR; // the first; the book is closed all the same
    lxw_workbook* book = workbook_new(S(file).c_str());
    lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
    lxw_format* bold = workbook_add_format(book);
    format_set_bold(bold);
    worksheet_write_string(sheet, 0, 0, title.c_str(), bold);
    for (size_t i = 0; i < columns.size(); ++i) {
        const GridColumn& column = grid.Column(columns[i]);
        const int to = static_cast<int>(i);
        worksheet_set_column(sheet, static_cast<lxw_col_t>(to), static_cast<lxw_col_t>(to), column.width + 2,
                             nullptr);
        worksheet_write_string(sheet, 1, static_cast<lxw_col_t>(to), column.caption.c_str(), bold);
        lxw_format* format = NumberFormat(book, column);
        for (int row = 1; row <= grid.RowCount(); ++row)
            if (const lxw_error error = WriteCell(sheet, row + 1, to, grid.Cell(row, columns[i]), format);
                refused == LXW_NO_ERROR)
                refused = error;
    }
    worksheet_freeze_panes(sheet, 2, 0);
    Check(workbook_close(book), file);
    Check(refused, file);
}

void SaveAsPdf(const Grid& grid, const std::string& title, const QString& file) {
    WritePdf(GridPaper(JobOf(grid, title)), file);
}

void AddGridCommands(QMenu& menu, QWidget& window, const Grid& grid, const std::string& title,
                     CellRange selected) {
    if (grid.RowCount() == 0)
        return;
    menu.addAction("复制选定(&C)",
                   [&grid, selected] { CurrentView().SetClipboard(CopiedText(grid, selected, false)); });
    menu.addAction("复制全部(&L)",
                   [&grid] { CurrentView().SetClipboard(CopiedText(grid, WholeGrid(grid), true)); });
    menu.addSeparator();
    menu.addAction("打印预览(&V)...",
                   [&window, &grid, title] { PreviewPaper(GridPaper(JobOf(grid, title)), title, &window); });
    menu.addAction("存为 PDF(&F)...", [&window, &grid, title] {
        SaveTo(window, title, "存为 PDF", ".pdf", [&](const QString& file) { SaveAsPdf(grid, title, file); });
    });
    menu.addAction("存为 Excel(&X)...", [&window, &grid, title] {
        SaveTo(window, title, "存为 Excel", ".xlsx",
               [&](const QString& file) { SaveAsXlsx(grid, title, file); });
    });
    menu.addAction("存为 CSV(&T)...", [&window, &grid, title] {
        SaveTo(window, title, "存为 CSV", ".csv", [&](const QString& file) { SaveAsCsv(grid, file); });
    });
}

} // namespace jxc
