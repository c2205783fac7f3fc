// Rows of a statement as lines of the document in hand. Everything is read before the first line is touched, the products'
// stock and prices with one statement each, however many lines there are.

#include <algorithm>
#include <cmath>
#include <map>

#include "base/text.h"
#include "controls/bounds.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/kept_lines.h"
#include "documents/load_lines.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr size_t kProductsTold = 8;
constexpr int kResidueDecimals = 9; // far behind those that a quantity has

struct LineToLoad {
    std::int64_t product;
    std::string code, name, unit;
    double quantity, balance, price, taxRate;
    std::string memo1, memo2;
};

struct LinesToLoad {
    std::vector<LineToLoad> lines;
    std::int64_t customer = 0;        // of the first row
    std::vector<std::string> leftOut; // products, and why
    bool unpriced = false;
};

// A return takes positive figures, as when they are typed.
double SignedAsTyped(const frmDj02& s, double quantity) {
    return s.chkTh.value && !s.type.IsStocktake() ? -std::fabs(quantity) : quantity;
}

LineToLoad ReadLine(const frmDj02& s, const Recordset& row) {
    return {.product = row["fCpID"].AsLong(),
            .code = row["fCpCode"].AsText(),
            .name = NameAndSpec(row["fCpName"].AsText(), row["fCpGG"].AsText()),
            .unit = row["fCpUnit"].AsText(),
            .quantity = SignedAsTyped(s, RoundDecimal(row["fInvSL"].AsDouble(), kResidueDecimals)),
            .balance = row["fInvSL2"].AsDouble(),
            .price = row["fInvDJ"].AsDouble(),
            .taxRate = row["fInvTaxRate"].AsDouble(),
            .memo1 = row["fInvOther1"].AsText(),
            .memo2 = row["fInvOther2"].AsText()};
}

// Why a new line cannot be of the product; "" when it can.
std::string WhyLeftOut(const Recordset& row) {
    const std::string code = row["fCpCode"].AsText();
    if (code.empty())
        return GoneProduct(row["fCpID"].AsLong());
    return row["fCpFlag"].AsLong() == 1 ? "产品“" + code + "”已停用" : "";
}

LinesToLoad ReadLines(const frmDj02& s, const std::string& sql) {
    LinesToLoad read;
    Recordset row(Conn(), sql);
    if (!row.AtEnd())
        read.customer = row["fKhID"].AsLong();
    for (; !row.AtEnd(); row.MoveNext()) {
        const std::string why = WhyLeftOut(row);
        if (why.empty())
            read.lines.push_back(ReadLine(s, row));
        else if (std::ranges::find(read.leftOut, why) == read.leftOut.end())
            read.leftOut.push_back(why);
    }
    return read;
}

// How many of the rows stay: all but a blank one at the end, or none; nothing when the person rather loads nothing.
std::optional<int> RowsThatStay(const frmDj02& s) {
    const int filled = s.Grid2.RowCount() - (EndsBlank(s.Grid2) ? 1 : 0);
    if (filled == 0)
        return 0;
    const BoxButton wish =
        CurrentView().ShowBox({.title = s.title,
                               .text = "表中已有产品记录，[是]-追加调入；[否]-调入前清空原数据记录？",
                               .icon = BoxIcon::Question,
                               .buttons = {BoxButton::Yes, BoxButton::No, BoxButton::Cancel}});
    if (wish == BoxButton::Cancel)
        return std::nullopt;
    return wish == BoxButton::Yes ? filled : 0;
}

// The row of each line: behind those that stay or, when any do, that of its product.
std::vector<int> RowsFor(const Grid& grid, const std::vector<LineToLoad>& lines, int staying) {
    std::map<std::string, int> rowOf;
    for (int row = 1; row <= staying; ++row)
        rowOf.emplace(UpperCase(grid.Text(row, line::kCode)), row);
    int last = staying;
    std::vector<int> rows;
    for (const LineToLoad& from : lines) {
        const auto [found, added] = rowOf.emplace(UpperCase(from.code), last + 1);
        const bool addsToIt = staying > 0 && !added;
        rows.push_back(addsToIt ? found->second : ++last);
    }
    return rows;
}

void FillLine(frmDj02& s, int row, const LineToLoad& from) {
    Grid& grid = s.Grid2;
    grid.FillCell(row, line::kProduct, from.product);
    grid.FillCell(row, line::kCode, from.code);
    grid.FillCell(row, line::kName, from.name);
    grid.FillCell(row, line::kUnit, from.unit);
    grid.FillCell(row, line::kQuantity, from.quantity);
    grid.FillCell(row, line::kPrice, from.price);
    grid.FillCell(row, line::kTaxRate, from.taxRate);
    grid.FillCell(row, line::kMemo1, from.memo1);
    grid.FillCell(row, line::kMemo2, from.memo2);
    grid.FillCell(row, line::kBalance, from.balance);
    if (s.type.IsStocktake()) {
        grid.FillCell(row, line::kStock, from.balance);
        grid.FillCell(row, line::kCounted, AddDecimal(from.quantity, from.balance));
    }
}

void AddToLine(frmDj02& s, int row, double quantity) {
    const int column =
        s.type.IsStocktake() ? line::kCounted : line::kQuantity; // the difference follows the count
    s.Grid2.FillCell(row, column, AddDecimal(s.Grid2.Number(row, column), quantity));
}

// A line's figures, its discount from its price; of a thing given away there is none.
void CompleteLoaded(frmDj02& s, int row, const LineFigures& figures, bool unpriced) {
    const bool isFree = !unpriced && s.Grid2.Number(row, line::kPrice) == 0;
    CompleteLine(s, row, figures);
    if (isFree && s.type.fSetDjType2 == PriceKind::Discounted)
        s.Grid2.FillCell(row, line::kDiscount, 0.0);
}

void FillLines(frmDj02& s, const LinesToLoad& read, const std::vector<int>& rows, int staying,
               const LineFigures& figures) {
    const std::vector<LineToLoad>& lines = read.lines;
    Grid& grid = s.Grid2;
    grid.SetRowCount(staying);
    grid.SetRowCount(std::max(staying, *std::ranges::max_element(rows)));
    int filled = staying;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (rows[i] <= filled) {
            AddToLine(s, rows[i], lines[i].quantity);
            continue;
        }
        filled = rows[i];
        FillLine(s, filled, lines[i]);
        CompleteLoaded(s, filled, figures, read.unpriced);
    }
    grid.Recalculate();
}

// What the cells would refuse, "" when there is nothing.
std::string FigureRefused(const Grid& grid, const std::vector<int>& rows) {
    for (const int row : rows)
        if (const int beyond = grid.ColumnOutOfBounds(row); beyond > 0)
            return "第 " + std::to_string(row) + " 行" +
                   BoundText(grid.Column(beyond).caption, grid.Column(beyond).below) + "未调入任何内容。";
    return "";
}

void TakeCustomer(frmDj02& s, std::int64_t customer) {
    const bool unset = s.CustomerId() == 0 && s.txtKhSeek.tag.empty();
    if (customer > 0 && unset && s.type.HasCustomer())
        ShowCustomer(s, customer);
}

// A discount field that says nothing takes that of the lines, so that the next ones are alike.
void TakeDiscount(frmDj02& s, const std::vector<int>& rows) {
    if (s.type.fSetDjType2 != PriceKind::Discounted)
        return;
    for (const int row : rows)
        if (const double discount = RoundDecimal(s.Grid2.Number(row, line::kDiscount), 4);
            Val(s.txtZkl.text) == 0 && discount != 0)
            s.txtZkl.text = s.txtZkl.tag = NumberText(discount);
}

// The lines in their rows, or, with a message, everything as it was.
bool FillWhole(frmDj02& s, const LinesToLoad& read, const std::vector<int>& rows, int staying) {
    std::vector<std::int64_t> products;
    for (const LineToLoad& from : read.lines)
        products.push_back(from.product);
    const LineFigures figures = ReadFiguresOf(s, products);
    KeptLines before(s.Grid2);
    std::string refusal;
    try {
        FillLines(s, read, rows, staying, figures);
        refusal = FigureRefused(s.Grid2, rows);
        if (refusal.empty() && staying == 0)
            TakeCustomer(s, read.customer);
    } catch (...) {
        before.PutBack();
        throw;
    }
    if (refusal.empty())
        return true;
    before.PutBack();
    Warn(s.title, refusal);
    return false;
}

} // namespace

bool LoadsWhole(const frmDj02& s, const std::function<bool()>& work) {
    try {
        return work();
    } catch (const DatabaseError& error) {
        WarnOfFailure(s.title, "系统数据错误，操作已经取消！", CauseOf(error));
        return false;
    }
}

std::string GoneProduct(std::int64_t product) {
    return "产品 (" + std::to_string(product) + ") 已不存在";
}

void TellLeftOut(const frmDj02& s, const std::vector<std::string>& products) {
    if (products.empty())
        return;
    std::string text = "有 " + std::to_string(products.size()) + " 种产品未调入：\n";
    for (size_t i = 0; i < std::min(products.size(), kProductsTold); ++i)
        text += "\n" + products[i];
    Warn(s.title, text + (products.size() > kProductsTold ? "\n……" : ""));
}

bool MayHoldLines(const frmDj02& s, int lines) {
    const int most = s.parameters.maxRows;
    if (most == 0 || lines <= most)
        return true;
    Inform(s.title, "单据最多 " + std::to_string(most) + " 行，调入后有 " + std::to_string(lines) +
                        " 行：未调入任何内容！");
    return false;
}

Loaded LoadLines(frmDj02& s, const std::string& sql, bool unpriced) {
    const std::optional<int> staying = RowsThatStay(s);
    if (!staying)
        return Loaded::Nothing;
    LinesToLoad read = ReadLines(s, sql);
    read.unpriced = unpriced;
    if (unpriced) // a price of the product's card is taken as it is shown, as typing its code takes it
        for (LineToLoad& from : read.lines)
            from.price = RoundDecimal(from.price, session.DeciDj);
    if (read.lines.empty()) {
        if (read.leftOut.empty())
            Warn(s.title, "没有可调入的产品记录！");
        else
            TellLeftOut(s, read.leftOut);
        return Loaded::Nothing;
    }
    const std::vector<int> rows = RowsFor(s.Grid2, read.lines, *staying);
    if (!MayHoldLines(s, std::max(*staying, *std::ranges::max_element(rows))) ||
        !FillWhole(s, read, rows, *staying))
        return Loaded::Nothing;
    TakeDiscount(s, rows);
    s.Grid2.selectedRow = rows.front();
    s.Grid2.selectedColumn = s.type.IsStocktake() ? line::kCounted : line::kQuantity;
    RefreshTotals(s);
    TellLeftOut(s, read.leftOut);
    return *staying > 0 ? Loaded::Added : Loaded::InPlace;
}

} // namespace jxc
