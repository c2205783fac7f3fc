// The largest figures of a document. A bar code that ends up in the quantity cell is no quantity; and as long as
// all figures stay below these bounds, the fifteen digits that both engines hold exactly are enough for every
// sum, so that a reversal takes away just what the approval added.
//
// Quantities have up to six decimals in use, values four: 99,999,999.999999 and 9,999,999,999.9999 leave one
// digit for their sums.
#pragma once

#include <optional>
#include <string>

#include "controls/bounds.h"
#include "documents/document_data.h"

namespace jxc {

namespace below {
constexpr double kQuantity = 1e8;
constexpr double kPrice = 1e8;   // in document currency
constexpr double kRate = 1e5;    // home currency for one unit of the document's
constexpr double kAmount = 1e10; // of a line, a document or a payment, in either currency
constexpr double kTaxRate = 1;   // a fraction
constexpr double kDiscount = 100;
// The counters that documents add up to.
constexpr double kQuantitySum = 1e9;
constexpr double kAmountSum = 1e11;
// What follows from them: a price in home currency, less the digits that dividing by a rest of stock adds.
constexpr double kUnitCost = 1e10;
} // namespace below

// Why a document's figures cannot be stored, and which it is: of a line also its place from 1 and its column of the entry
// grid.
struct FigureRefusal {
    enum class Figure { Rate, KitQuantity, OfLine, Total };
    std::string text;
    Figure figure;
    int line = 0;
    int column = 0;
};
// The first figure of the document that cannot be stored; nothing when all can.
[[nodiscard]] std::optional<FigureRefusal> FigureOutOfBounds(const DocumentData& document);

} // namespace jxc
