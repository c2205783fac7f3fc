// The operations of the entry screen, grouped by what the user does. Each works on the screen's state; those
// that write to the database say so.
#pragma once

#include <string>

#include "documents/frmDj02.h"

namespace jxc {

// -- set_up_document.cpp: captions, visibility and lists by the type
// Reads type row and parameters and shapes the screen. A ScreenError when the type is not in use.
void SetUpDocument(frmDj02& s);
// Empties everything for the next new document and goes to the date.
void ResetDocument(frmDj02& s);
// Another type for the new document: its row is read, the screen stays as it is.
void ChooseType(frmDj02& s);
// Warehouses and summaries anew, the choice kept.
void RefillWarehouses(frmDj02& s);
void RefillSummaries(frmDj02& s);

// -- load_document.cpp: a stored document into the screen
// Shows "该[单号]已不存在!" when it is gone, "系统数据错误，操作已经取消！" on any error; false then.
bool LoadDocument(frmDj02& s, int sourceType, std::int32_t key);
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
void AppendLine(frmDj02& s);   // by Enter on the last filled row
void CutToMaxRows(frmDj02& s); // after loading; the user is told
void InsertLine(frmDj02& s);
void DeleteLine(frmDj02& s);
void EnterGrid(frmDj02& s);
void LeaveCell(frmDj02& s, int row, int column);
void RefreshGridStock(frmDj02& s); // stock and reference price of all rows
void RefreshRowStock(frmDj02& s, int row);
void RefreshTotals(frmDj02& s);
void SetReturnSign(frmDj02& s);  // after chkTh changed
void SpreadTaxRate(frmDj02& s);  // the rate field into every row
void SpreadDiscount(frmDj02& s); // the discount field into every row, unless it is 0

// -- header_fields.cpp
bool LeaveDate(frmDj02& s); // not before the period; in Action 1 the number follows
void ChooseWarehouse(frmDj02& s, bool second);
void ChooseCurrency(frmDj02& s);
void FormatPayment(frmDj02& s);

// -- kit_panel.cpp: the finished product of assembly and dismantling
void SeekFinishedProduct(frmDj02& s, bool byCode); // by what was typed; not found empties the panel
void LoadFinishedProduct(frmDj02& s, const std::string& stem, std::int32_t key);
void ClearFinishedProduct(frmDj02& s);
void ChangeKitQuantity(frmDj02& s); // the parts follow
double KitQuantity(const frmDj02& s);

// -- card_links.cpp: what lies beside the document
void Dial(const TextBox& number);
void OpenMail(const frmDj02& s);
void OpenWeb(const frmDj02& s);
void OpenProducts(frmDj02& s);
void OpenWarehouses(frmDj02& s);
void OpenSummaries(frmDj02& s);

// -- column_widths.cpp: widths of the grid's columns, kept in the dictionary of printed documents
void LoadColumnWidths(frmDj02& s);
void SaveColumnWidths(frmDj02& s); // writes tJXC_rptListDetail

// -- save_document.cpp: the save command of every Action
void SaveDocument(frmDj02& s);
// -- print_document.cpp
void PrintDocument(frmDj02& s);

} // namespace jxc
