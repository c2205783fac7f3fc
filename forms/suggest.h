// Fields that suggest while a person types: products, cards, and the items of a list.
#pragma once

#include <optional>
#include <string>

#include "controls/grid.h"

namespace jxc {

// What taking a suggested product puts into a field.
enum class ProductPart { Code, Name, BarCode };

// The products that the text finds, with code, name and specification, stock and price. `warehouse` is whose stock is
// shown, "" for all together; `priceField` the price, "" for the retail price.
[[nodiscard]] Suggestions ProductRows(const std::string& typed, ProductPart part,
                                      const std::string& warehouse = "", const std::string& priceField = "");

// One product picked with the picker, found by code or by name; nothing when none was. Its code goes into the column.
std::optional<SuggestedRow> PickProduct(const std::string& typed, bool byName, int column = 0);

// Has a field suggest products while it is typed into and, but for the fields of a query, pick one with the picker.
void SuggestProductsIn(EditBox& box, ProductPart part, bool picks = true);

// The columns of a grid in which products are typed, and whose stock and which price are shown beside them.
struct ProductColumns {
    int code, name;
    std::function<std::string()> warehouse, priceField;
};
// Has a grid suggest products there, and pick one with the picker. Either way a code is put in, also for a name: many
// products may have it.
void SuggestProductsIn(Grid& grid, const ProductColumns& columns);

// Has a field suggest cards; taking one puts in its name, or what CustomerRow makes of it, which tells exactly which.
enum class CardPart { Name, Row };
void SuggestCardsIn(EditBox& box, CardPart part = CardPart::Name);

// Has a field suggest warehouses, also those no longer in use.
enum class WarehousePart { Code, Name };
void SuggestWarehousesIn(EditBox& box, WarehousePart part);
// Has an editable list suggest those of its items that the text finds.
void SuggestItemsIn(ListBox& list);

// The first item of which a part reads so, or begins its words so in pinyin, after `from` and round again; -1 for none.
[[nodiscard]] int ItemFoundBy(const ListBox& list, const std::string& typed, int from);

} // namespace jxc
