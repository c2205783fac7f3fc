// Products suggested while the code or name of a line is typed, and picked for it.

#include "documents/document_entry.h"
#include "forms/suggest.h"

namespace jxc {

namespace {

// The price that the line would get, or else the one that it would show beside it.
std::string PriceShown(const TypeRow& type) {
    const std::string price = PriceField(type.fSetDjType2);
    return price.empty() ? PriceField(type.fSetDjType1) : price;
}

bool NamesProduct(int column) {
    return column == line::kCode || column == line::kName;
}

} // namespace

Suggestions SuggestProduct(const frmDj02& s, int column, const std::string& typed) {
    if (!NamesProduct(column))
        return {};
    Suggestions found = ProductRows(typed, ProductPart::Code, StockWarehouse(s), PriceShown(s.type));
    for (SuggestedRow& row : found.rows)
        row.column = line::kCode; // also for a name: many products may have it
    return found;
}

std::optional<SuggestedRow> PickProductOfLine(int column, const std::string& typed) {
    if (!NamesProduct(column))
        return std::nullopt;
    return PickProduct(typed, column == line::kName, line::kCode);
}

} // namespace jxc
