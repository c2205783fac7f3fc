// What a document is: columns, arithmetic, signs and directions, all following from its type's row. A
// document is a header and its lines in one book. A type with a second warehouse stores each line twice, in
// opposite directions: that is how a transfer moves goods. Returns carry negative quantities under the
// directions of the forward document, so no posting needs a branch for them.
#pragma once

#include <string>
#include <vector>

#include "controls/grid.h"
#include "documents/document_state.h"
#include "settings/parameters.h"
#include "settings/type_row.h"

namespace jxc {

// The columns of the entry grid, by place. A formula's letter is the place in the alphabet.
namespace line {
constexpr int kCode = 1;      // A
constexpr int kName = 2;      // B
constexpr int kUnit = 3;      // C
constexpr int kStock = 4;     // D: stock, or book quantity of a stocktake
constexpr int kCounted = 5;   // E
constexpr int kQuantity = 6;  // F: or difference of a stocktake
constexpr int kReference = 7; // G
constexpr int kDiscount = 8;  // H
constexpr int kPrice = 9;     // I
constexpr int kAmount = 10;   // J
constexpr int kTaxRate = 11;  // K
constexpr int kTax = 12;      // L
constexpr int kMemo1 = 13;    // M
constexpr int kMemo2 = 14;    // N
constexpr int kBalance = 15;  // O
constexpr int kProduct = 16;  // P: fCpID
} // namespace line

// The grid of a document of the type, with captions, decimals, locks and formulas; it has no rows then.
void SetUpLineGrid(Grid& grid, const TypeRow& type, const Parameters& parameters, DocAction action);

// The caption of a column of figures that people enter or that follow from those.
std::string FigureCaption(const TypeRow& type, int column);

// The sum of the line amounts, as shown.
double DocumentTotal(const Grid& grid);
// The sum of quantity times reference price.
double ReferenceTotal(const Grid& grid);

// fInvInOut of a line's first and second row: a Direction, or kNoChoice. Of a kit document the first is a part's
// row, the second the finished product's.
int DirectionOfFirstRow(const TypeRow& type);
int DirectionOfSecondRow(const TypeRow& type);

// "fCpPrice0" to "fCpPrice3" of the price kinds that are a product's, "" of others.
std::string PriceField(int priceKind);
// Of the type's lines: that of the price that a line gets, or else of the one shown beside it.
std::string LinePriceField(const TypeRow& type);

// Captions that follow from the type.
std::string CustomerCaption(const TypeRow& type); // "供应商", "销售商" or "客户"
std::string AddressCaption(const TypeRow& type);  // "发货地址" or "送货地址"
std::string PaymentCaption(const TypeRow& type);  // "实收金额", "实付金额" or ""
std::string FirstWarehouseCaption(const TypeRow& type);
std::string SecondWarehouseCaption(const TypeRow& type);

// The type of the orders that documents of this type refer to, 0 for none.
int OrderTypeFor(int type);

} // namespace jxc
