// The operations of the entry screen, grouped by what the user does. Each works on the screen's state; those
// that write to the database say so.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "database/connection.h"
#include "documents/document_data.h"
#include "documents/frmDj02.h"
#include "session/components.h"
#include "session/lookups/find_by_text.h"

namespace jxc {

// -- set_up_document.cpp: captions, visibility and lists by the type
// Whether a received or paid amount may be entered with a document of the type: at the moment of approval.
bool OffersPayment(const frmDj02& s, const TypeRow& type);
// Reads type row and parameters and shapes the screen. A ScreenError when the type is not in use.
void SetUpDocument(frmDj02& s);
// Empties everything for the next new document and goes to the date.
void ResetDocument(frmDj02& s);
// Warehouses anew, the choice kept.
void RefillWarehouses(frmDj02& s);

// -- document_in_hand.cpp
// Shows and enables the commands that take the stored document in hand further.
void OfferNextActions(frmDj02& s);
// Opens the document in hand for another action, read anew. Refused with the table's text when its state forbids that by
// now; it is shown as it is then.
void TurnTo(frmDj02& s, DocAction action);
// A new document as the one in hand, which may stand in the closed book: of today, with a number of its own, without order,
// approver and payment.
void CopyDocument(frmDj02& s);

// -- choose_type.cpp
// Another type for the new document: its row is read, the screen stays as it is; title, sign and automatic number
// follow. A type whose documents have another shape is refused, with a message that says where to begin one.
void ChooseType(frmDj02& s);

// -- unsaved_work.cpp
// What a person can type into the document, as one text: two documents with the same text are alike. The number
// that a new document got by itself is not part of it, nor are rows without a product.
std::string TypedWork(const frmDj02& s);

// -- load_document.cpp: a stored document into the screen
// Shows "该[单号]已不存在!" when it is gone, "系统数据错误，操作已经取消！" on any error; false then.
bool LoadDocument(frmDj02& s, int sourceType, std::int32_t key);
struct LineFigures;
// What a line that came from elsewhere has of today: stock, reference price and, in a new or changed document priced at a
// discount, the discount that follows from its price. The book quantity of a stocktake stays.
void CompleteLine(frmDj02& s, int row, const LineFigures& figures);
// The document before or after the one shown; no hit disables that direction.
void StepToDocument(frmDj02& s, bool next);

// -- customer_panel.cpp
void SeekCustomer(frmDj02& s);                  // by the text in txtKhSeek
void RefreshCustomer(frmDj02& s);               // after a choice: card fields, kind check, addresses
void ShowCustomer(frmDj02& s, std::int64_t id); // of a loaded document, without checks
void ClearCardFields(frmDj02& s);
void SaveAddress(frmDj02& s);   // writes tJXC_KhAdd
void DeleteAddress(frmDj02& s); // writes tJXC_KhAdd

// -- line_entry.cpp
void AppendLine(frmDj02& s); // by Enter on the last filled row
// Whether the last row waits for its product.
bool EndsBlank(const Grid& grid);
// Puts the cursor where typing takes nothing away: into a blank row at the end, which is made, or, in a document
// that holds all the rows it may, into a cell that takes no typing.
void GoBelowTheLines(frmDj02& s);
void CutToMaxRows(frmDj02& s); // after loading; the user is told
// A row of a product that was read, with its stock, prices and the rates of the head, as a typed one becomes.
void FillProduct(frmDj02& s, int row, const ProductSought& found, std::int32_t id);
void InsertLine(frmDj02& s);
void DeleteLine(frmDj02& s);
void EnterGrid(frmDj02& s);
void LeaveCell(frmDj02& s, int row, int column);
void RefreshGridStock(frmDj02& s); // stock and reference price of all rows
// Today's stock and reference price of the products in all rows, read at once; one that is gone has neither.
struct LineFigures {
    std::map<std::int64_t, double> stock, reference;
};
LineFigures ReadLineFigures(const frmDj02& s);
LineFigures ReadFiguresOf(const frmDj02& s,
                          const std::vector<std::int64_t>& products); // the same of other rows
void ShowRowFigures(frmDj02& s, int row, const LineFigures& figures);
void RefreshTotals(frmDj02& s);
void SetReturnSign(frmDj02& s);  // as chkTh says
void TurnReturnMark(frmDj02& s); // by a person: without the mark nothing is returned
// The rate field, or the discount field unless it is 0, into every row. False when it is out of bounds: a message
// has told so, and the field keeps the focus.
[[nodiscard]] bool SpreadTaxRate(frmDj02& s);
[[nodiscard]] bool SpreadDiscount(frmDj02& s);

// The warehouse whose stock the lines show; "" when the document has none.
std::string StockWarehouse(const frmDj02& s);

// -- paste_lines.cpp
// Lines from a spreadsheet, in the order code, quantity, price, memo; a block as wide as the grid is its own, column by
// column. One column elsewhere goes down the lines that are there. Existing lines are never overwritten, and the
// block is taken whole or not at all: a message names the rows that do not fit.
void PasteLines(frmDj02& s, const CellBlock& block);
// A line of the product, its stock and prices read; 0 when the code names none. Part of line entry.
std::int32_t FillLineByCode(frmDj02& s, int row, const std::string& code);
std::vector<Connection::Expected> LineStatements(const frmDj02& s, const std::string& code); // that it reads

// -- header_fields.cpp
void MakeNumber(frmDj02& s); // the automatic number by date and rule; one too long for the field is told
[[nodiscard]] bool LeaveDate(frmDj02& s); // not before the period; in Action 1 the number follows
void ChooseWarehouse(frmDj02& s, bool second);
void ChooseCurrency(frmDj02& s);
std::string RateStatement(const std::string& currency); // with which it reads the rate
void ShowRate(frmDj02& s, double rate);
void LeaveRate(frmDj02& s);                   // a rate that is none is told, and the one before comes back
[[nodiscard]] bool FormatPayment(frmDj02& s); // false when it is out of bounds: a message has told so

// -- kit_panel.cpp: the finished product of assembly and dismantling
void LoadFinishedProduct(frmDj02& s, const std::string& stem, std::int32_t key);
[[nodiscard]] bool ChangeKitQuantity(frmDj02& s); // the parts follow; false when it is out of bounds
double KitQuantity(const frmDj02& s);

// -- card_links.cpp: what lies beside the document
void Dial(const TextBox& number);
void OpenMail(const frmDj02& s);
void OpenWeb(const frmDj02& s);
void OpenProducts(frmDj02& s);
void OpenWarehouses(frmDj02& s);
void OpenSummaries(frmDj02& s);
void OpenCards(frmDj02& s);
bool HasCardsScreen();

// -- column_widths.cpp: widths of the grid's columns, kept in the dictionary of printed documents
std::string ColumnWidthsStatement();
void LoadColumnWidths(frmDj02& s);
void SaveColumnWidths(frmDj02& s); // writes tJXC_rptListDetail

// -- save_document.cpp: the save command of every Action
void SaveDocument(frmDj02& s);
// -- approve_on_screen.cpp: the save command of Approve and Reverse
// Approves the document, or with `reversal` takes the approval back. With `prompted` it asks first and tells the end.
// A refusal or failure is told.
void RunApproval(frmDj02& s, const DocumentData& document, bool reversal, bool prompted);
void ReverseApproval(frmDj02& s, const DocumentData& document);
// -- negative_stock.cpp
// Where the company wants it, tells of products whose stock the document would make negative, and asks. True when there are
// none or the person goes on. Reads the stock; not to be called in a transaction.
[[nodiscard]] bool GoesOnWithNegativeStock(const frmDj02& s, const DocumentData& document);
// -- last_trades.cpp
// Shows the last trades of the line's product; one that is taken gives the line its price.
void ShowLastTrades(frmDj02& s);
// -- data_of_screen.cpp
// The document as it stands on the screen, read once for a command: texts become numbers here and nowhere else.
DocumentData DataOf(const frmDj02& s);
// -- print_document.cpp
void PrintDocument(frmDj02& s);
// The stored document by its designed template; `atOnce` on the printer that was used last. One without lines is told.
void PrintDesigned(frmDj02& s, bool atOnce = false);
// What it hands to the printer; nothing for a document without lines. From the closed book if it was loaded from there and
// `closedToo` says so.
std::optional<TemplatePrintJob> DesignedJob(frmDj02& s, bool closedToo);

} // namespace jxc
