// What a person can do with any grid: copy, preview and print, save as PDF, XLSX and CSV.
#pragma once

#include <functional>

#include <QMenu>
#include <QString>

#include "controls/grid.h"

namespace jxc {

// A block of cells, rows and columns from 1, both ends included.
struct CellRange {
    int firstRow = 1;
    int firstColumn = 1;
    int lastRow = 0;
    int lastColumn = 0;
};

CellRange WholeGrid(const Grid& grid);
// The visible cells as a spreadsheet takes them: tabs between columns, a line per row; with the captions
// above. Texts are quoted and made harmless as cell_texts.h tells; PasteCells takes that off again.
std::string CopiedText(const Grid& grid, const CellRange& range, bool captions);

// The cells of a copied text, as they were before they were made harmless.
CellBlock PastedCells(const std::string& text);
// Types a copied block into the cells from the selected one on. Columns that take no
// typing, empty texts, and cells that already show the text, are passed over: a name typed again behind its
// code would look for another product. `type` returns false for a text that is not taken; that ends it.
void PasteCells(const Grid& grid, const CellBlock& block,
                const std::function<bool(int row, int column, const std::string& text)>& type);

// Each writes the visible columns with their captions; a file that cannot be written is a std::runtime_error.
void SaveAsCsv(const Grid& grid, const QString& file); // UTF-8 with its mark, so that spreadsheets know it
void SaveAsXlsx(const Grid& grid, const std::string& title, const QString& file);
void SaveAsPdf(const Grid& grid, const std::string& title, const QString& file);

// Adds these commands to a menu.
void AddGridCommands(QMenu& menu, QWidget& window, const Grid& grid, const std::string& title,
                     CellRange selected);

} // namespace jxc
