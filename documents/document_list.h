// The operations of the document list, grouped by what the user does.
#pragma once

#include <optional>

#include "documents/document_model.h"
#include "documents/frmDj01.h"

namespace jxc {

constexpr int kDocumentTab = 0;
constexpr int kLineTab = 1;
constexpr int kFilterTab = 2;

// Without a type ticked the list goes through the stock documents, as for receipts.
constexpr int kTypeWithoutTick = 1;

// -- list_filters.cpp
// Empties all filters and fills their lists, with the type of the mode ticked. A ScreenError when that type
// is not in use.
void ResetFilters(frmDj01& s, const Parameters& parameters);
// The type that is ticked and chosen.
std::optional<int> TickedType(const frmDj01& s);
// Shapes the filters by the type ticked, without one as receipts' with all types' captions.
void ApplyTickedType(frmDj01& s);
// One of the two lists is always offered; the tabs follow the boxes.
void OfferLists(frmDj01& s);

// -- list_query.cpp
ListQuery BuildQuery(const frmDj01& s);
// The conditions of the filters, in the statement's order.
std::vector<Filter> ListFilters(frmDj01& s);

// -- list_grids.cpp
// Fills the grid that the query is for and empties the other. Without rows, unless `empties`, everything stays as it
// is; the number of rows.
size_t FillGrids(frmDj01& s, const ListQuery& query, bool empties);
void RefillList(frmDj01& s, const KeptPlace& kept);
// The rows as they are now, in the order and with the document selected that they had.
void RefreshList(frmDj01& s);
// The grid in front; null on the filter tab.
Grid* FrontGrid(frmDj01& s);

// -- open_from_list.cpp
// Whether the rows shown are of closed periods, which are read only.
bool ShowsClosedBook(const frmDj01& s);
// Hands a document to frmDj02 and refreshes the list afterwards. With rowFlag -1, and for every action but a
// new document, it is the selected row's; nothing happens without one. `fromType` is the source's type of a
// new document, 0 without a source.
void OpenDocument(frmDj01& s, DocAction action, int type, int fromType, int rowFlag);
// The command of that action on the selected row; a new one is of the type ticked.
void RunAction(frmDj01& s, DocAction action);
// The picker's answer: the document of the selected row.
void PickDocument(frmDj01& s);
void AddConversions(frmDj01& s);
// The menu of a document's row.
std::vector<Command*> MenuOfRow(frmDj01& s, int row);
// The items of the selected row's menu are visible, the others not.
void ShowRowMenu(frmDj01& s);

// -- print_list.cpp
void PrintList(frmDj01& s);
// -- print_batch.cpp
// The documents of the selected rows by their templates, one behind the other, stored as they are. What cannot be printed
// is told at the end. Reads only.
void PrintSelected(frmDj01& s);

} // namespace jxc
