// Lines for the document in hand from elsewhere, so that few are typed: from another document, from what is still open of
// an order, from a kit template, or from the stock for a stocktake. Nothing here writes to the database, and a load is
// whole or not at all: whatever fails or is refused, lines and customer stay as they were and a message has told why.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "documents/frmDj02.h"

namespace jxc {

// -- load_panels.cpp: the commands and their panels
void WireLoading(frmDj02& s);
void SetUpLoading(frmDj02& s); // what the type and the Action offer
void ResetLoading(frmDj02& s); // codes and numbers empty, one kit

// -- pick_document_lines.cpp
// Loads the lines of the document of that type with the number in `number`, an order's with its open balance in place of
// the quantities when `balance` is set. An empty number lets the person pick one in the document list, which stays in the
// field. A stock document may stand in the closed book. `caption` names the type in messages.
bool PickDocumentLines(frmDj02& s, bool balance, int type, const std::string& caption, TextBox& number);
bool LoadFromDocument(frmDj02& s); // by the panel's type and number
bool LoadFromOrder(
    frmDj02& s); // by the document's order number; nothing for types without orders of that kind

// -- load_lines.cpp
// The rows of a statement that gives fCpID, fCpCode, fCpName, fCpGG, fCpUnit, fCpFlag, fInvSL, fInvDJ, fInvTaxRate,
// fInvOther1, fInvOther2, fInvSL2 and fKhID. They replace the lines, or, when there are any and the person wants it so, are
// added to them: a product that has a line adds to its quantity. Products that are gone or stopped are left out and named.
// Prices are the source's own, also where it gives a thing away, unless it is `unpriced`: then those of a type with
// discounts follow from the discount field.
enum class Loaded { Nothing, InPlace, Added };
Loaded LoadLines(frmDj02& s, const std::string& sql, bool unpriced = false);
// Runs `work`, and tells a DatabaseError as one that changed nothing; false then.
bool LoadsWhole(const frmDj02& s, const std::function<bool()>& work);
// Names the products that were left out, each with its reason; nothing where there are none.
void TellLeftOut(const frmDj02& s, const std::vector<std::string>& products);
std::string GoneProduct(std::int64_t product); // that reason
// Whether a document may have so many lines; tells it when not.
bool MayHoldLines(const frmDj02& s, int lines);

// -- load_kit.cpp
// The parts of the panel's template for its number of kits, and, in a document that has one, the finished product. An
// empty code lets the person pick a template.
bool LoadFromKit(frmDj02& s);

// -- stocktake_list.cpp
struct StockSigns {
    bool negative = true, zero = true, positive = true;
    bool Hold(double quantity) const { return quantity < 0 ? negative : quantity > 0 ? positive : zero; }
};
// Replaces the lines by the products of the first warehouse and their stock, which is also the count until it is typed:
// option 0 all products, 1 those with a stock row there, 2 those that belong there. False when nothing was listed.
bool StocktakeList(frmDj02& s, int option, const StockSigns& signs);
bool ListForStocktake(frmDj02& s); // by the panel, which closes

} // namespace jxc
