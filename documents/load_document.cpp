// A stored document into the entry screen.

#include <algorithm>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/load_lines.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"
#include "session/lookups/find_by_text.h"
#include "session/lookups/lists.h"
#include "session/session.h"

namespace jxc {

namespace {

// The order that a new document made from a source refers to: the source itself when it is a fitting order,
// the source's own order when the new document is its return.
std::string OrderNumber(const frmDj02& s, int sourceType, const Recordset& header) {
    if (s.InHand() != DocAction::New)
        return header["fHtNo"].AsText();
    if (s.invType != DocType::Assembly && OrderTypeFor(s.invType) == sourceType && sourceType != 0)
        return header["fInvNo"].AsText();
    const bool returnOfSource =
        (sourceType == DocType::Receipt || sourceType == DocType::Issue || sourceType == DocType::Dispatch) &&
        s.invType == -sourceType;
    return returnOfSource ? header["fHtNo"].AsText() : "";
}

// A list shows the stored text, also one that it no longer offers; a new document takes only what is offered.
void ShowText(const frmDj02& s, ListBox& list, const std::string& text) {
    if (text.empty())
        return list.SetIndex(-1);
    int at = ComboIndexByText(list, text);
    if (at < 0 && !list.editable) {
        if (s.InHand() == DocAction::New)
            return list.SetIndex(-1);
        list.items.push_back(text);
        at = static_cast<int>(list.items.size()) - 1;
    }
    list.SetIndex(at);
    list.text = text;
}

void ShowApprover(frmDj02& s, const std::string& approver) {
    s.lblSHR.caption = approver;
    s.lblSHR.visible = s.shpSHR.visible = !approver.empty();
}

void LoadHeader(frmDj02& s, int sourceType, const Recordset& header) {
    const auto text = [&](const char* field) { return header[field].AsText(); };
    s.txtHtNo.text = s.type.fSetDjDd_ ? OrderNumber(s, sourceType, header) : "";
    s.txtNo.text = s.txtNo.tag = text("fInvNo");
    s.dtpInvDate.date = ParseDate(text("fInvDate"));
    ShowText(s, s.cboInvHb, text("fInvHb"));
    ShowRate(s, header["fInvHbDl"].AsDouble());
    s.storedTotal = RoundDecimal(header["fInvJE"].AsDouble(), kAmountDecimals);
    s.txtSum.text = FormatFixed(s.storedTotal, kAmountDecimals);
    ShowText(s, s.cboInvMemo, text("fInvMemo"));
    ShowText(s, s.cboInvJbr, text("fInvJbr"));
    ShowApprover(s, text("fInvSHR"));
    s.chkFlag.value = header["fFlag"].AsLong() == 1;
    s.chkFlag.visible = s.chkFlag.value || s.InHand() == DocAction::Change;
    ShowCustomer(s, header["fKhID"].AsLong());
    s.cboKhAdd.text = s.cboKhAdd.tag = text("fKhAdd");
    ShowText(s, s.cboCkName, text("fCkName"));
    ShowText(s, s.cboCkName2, text("fCkName2"));
}

// The discount of a stored line follows from its price; without one, or without a reference price, the
// field's counts.
double DiscountOf(const frmDj02& s, double price, double reference) {
    return reference == 0 || price == 0 ? Val(s.txtZkl.text) : price / reference;
}

void LoadLine(frmDj02& s, int row, const Recordset& stored) {
    Grid& grid = s.Grid2;
    const auto fill = [&](int column, const char* field) { grid.FillCell(row, column, stored[field]); };
    fill(line::kProduct, "fCpID");
    fill(line::kCode, "fCpCode");
    // The line of a product that is gone is still a line of its document.
    if (s.InHand() != DocAction::New && stored["fCpCode"].AsText().empty() && stored["fCpID"].AsLong() > 0)
        grid.FillCell(row, line::kCode, "(" + stored["fCpID"].AsText() + ") - Error");
    grid.FillCell(row, line::kName, NameAndSpec(stored["fCpName"].AsText(), stored["fCpGG"].AsText()));
    fill(line::kUnit, "fCpUnit");
    fill(line::kQuantity, "fInvSL");
    fill(line::kPrice, "fInvDJ");
    fill(line::kAmount, "fInvJE");
    fill(line::kTaxRate, "fInvTaxRate");
    fill(line::kTax, "fInvTax");
    fill(line::kMemo1, "fInvOther1");
    fill(line::kMemo2, "fInvOther2");
    fill(line::kBalance, "fInvSL2");
    if (s.type.IsStocktake()) {
        fill(line::kStock, "fInvSL2");
        grid.FillCell(row, line::kCounted, stored["fInvSL"].AsDouble() + stored["fInvSL2"].AsDouble());
    }
}

void ShowStoredLines(frmDj02& s, const std::string& stem, std::int32_t key) {
    Grid& grid = s.Grid2;
    Recordset stored(Conn(), LinesStatement(stem, key, 0));
    grid.SetRowCount(0);
    grid.SetRowCount(static_cast<int>(stored.RecordCount()));
    for (int row = 1; !stored.AtEnd(); stored.MoveNext(), ++row)
        LoadLine(s, row, stored);
    const LineFigures figures = ReadLineFigures(s);
    for (int row = 1; row <= grid.RowCount(); ++row)
        CompleteLine(s, row, figures);
    grid.Recalculate();
    grid.selectedRow = grid.RowCount() > 0 ? 1 : 0;
    RefreshTotals(s);
    if (!IsEditing(s.InHand()))
        s.txtSum.text = FormatFixed(s.storedTotal, kAmountDecimals);
}

// The lines of products that are gone: a new document has none of them, and the person is told.
void LeaveOutGone(frmDj02& s) {
    std::vector<std::string> gone;
    for (int row = 1; row <= s.Grid2.RowCount();) {
        if (!s.Grid2.Text(row, line::kCode).empty()) {
            ++row;
            continue;
        }
        const std::string product = GoneProduct(s.Grid2.Cell(row, line::kProduct).AsLong());
        if (std::ranges::find(gone, product) == gone.end())
            gone.push_back(product);
        s.Grid2.RemoveRow(row);
    }
    TellLeftOut(s, gone);
}

// A new document from a source: today's, under a number of its own, not approved, not stopped.
void StartFromSource(frmDj02& s) {
    s.txtNo.text.clear();
    s.txtNo.tag.clear();
    s.dtpInvDate.date = Today();
    s.chkFlag.value = false;
    s.chkFlag.visible = false;
    ShowApprover(s, "");
    if (s.cboCkName2.items.size() == 1)
        s.cboCkName2.SetIndex(0);
    LeaveOutGone(s);
    CutToMaxRows(s);
    if (s.chkTh.value)
        SetReturnSign(s);
    RefreshGridStock(s);
}

} // namespace

void CompleteLine(frmDj02& s, int row, const LineFigures& figures) {
    Grid& grid = s.Grid2;
    const double price = grid.Number(row, line::kPrice);
    const Value book = grid.Cell(row, line::kStock);
    ShowRowFigures(s, row, figures);
    if (s.type.IsStocktake())
        grid.FillCell(row, line::kStock, book);
    if (IsEditing(s.InHand()) && s.type.fSetDjType2 == PriceKind::Discounted)
        grid.FillCell(row, line::kDiscount, DiscountOf(s, price, grid.Number(row, line::kReference)));
}

bool LoadDocument(frmDj02& s, int sourceType, std::int32_t key) {
    const std::string stem = BookStem(sourceType, s.JzState == 1);
    s.txtSsSf.text = "0.00";
    s.txtMemo.text.clear(); // it is printed with its own document
    try {
        // Before the rest is read: a change in between is noticed.
        std::vector<Connection::Expected> together{{StoredHeaderStatement(stem, key)},
                                                   {StoredLinesStatement(stem, key)},
                                                   {LinesStatement(stem, key, 0)}};
        if (s.type.IsKit())
            together.push_back({LinesStatement(stem, key, 1)});
        const ReadAhead ahead(Conn(), together);
        StoredDocument stored = ReadStored(stem, key);
        if (!stored.Exists()) {
            Warn(s.title, RefusalIn(DocState::Gone, s.InHand()));
            return false;
        }
        s.cmdSave.enabled = false; // until what the screen shows is a document again
        const Recordset header(Conn(), StoredHeaderStatement(stem, key));
        if (s.InHand() == DocAction::Change)
            s.txtZkl.text = s.txtZkl.tag =
                "0.00"; // a discount typed for the document before is not this one's
        LoadHeader(s, sourceType, header);
        ShowStoredLines(s, stem, key);
        if (s.type.IsKit() && (s.InHand() != DocAction::New || sourceType == s.invType))
            LoadFinishedProduct(s, stem, key);
        s.oldInvID = key;
        s.cmdSave.enabled = CanBeSaved(StateByApprover(header["fInvSHR"].AsText()), s.InHand());
        if (s.InHand() == DocAction::New)
            StartFromSource(s);
        else
            s.asLoaded = std::move(stored);
        if (s.InHand() == DocAction::Change) {
            s.chkTh.value = s.type.fSetDjBack_; // nor is its mark
            SetReturnSign(s);
        }
        OfferNextActions(s);
        s.asBegun = TypedWork(s);
        return true;
    } catch (const DatabaseError& error) {
        WarnOfFailure(s.title, "系统数据错误，操作已经取消！", CauseOf(error));
        return false;
    }
}

void StepToDocument(frmDj02& s, bool next) {
    const std::string stem = BookStem(s.invType, s.JzState == 1);
    const std::string hit = DbScalar(
        "Select Top 1 fInvID From " + stem + "01 " + " Where fInvType=" + std::to_string(s.invType) +
        (s.InHand() == DocAction::Change ? " And fInvShr=''" : "") + " And fInvNo" + (next ? ">" : "<") +
        InQuotes(s.Number()) + " Order By fInvNo" + (next ? "" : " Desc") + ",fInvID Desc");
    if (hit.empty()) {
        (next ? s.cmdNext : s.cmdPrevious).enabled = false;
        (next ? s.cmdPrevious : s.cmdNext).enabled = true;
        return;
    }
    LoadDocument(s, s.invType, static_cast<std::int32_t>(Val(hit)));
    s.cmdNext.enabled = s.cmdPrevious.enabled = true;
}

} // namespace jxc
