// Fields that suggest while a person types: products, cards, and the items of a list.
#pragma once

#include <optional>
#include <string>

#include "controls/control.h"

namespace jxc {

// What taking a suggested product puts into a field.
enum class ProductPart { Code, Name };

// The products that the text finds, with code, name and specification, stock and price. `warehouse` is whose stock is
// shown, "" for all together; `priceField` the price, "" for the retail price.
[[nodiscard]] Suggestions ProductRows(const std::string& typed, ProductPart part,
                                      const std::string& warehouse = "", const std::string& priceField = "");

// One product picked with the picker, found by code or by name; nothing when none was. Its code goes into the column.
std::optional<SuggestedRow> PickProduct(const std::string& typed, bool byName, int column = 0);

// Has a field suggest products while it is typed into and, but for the picker's own fields, pick one with the picker.
void SuggestProductsIn(EditBox& box, ProductPart part, bool picks = true);
// Has it suggest cards; taking one puts in its code, or its name where it has none or with `byName`.
void SuggestCardsIn(EditBox& box, bool byName = false);
// Has an editable list suggest those of its items that the text finds.
void SuggestItemsIn(ListBox& list);

// The first item of which a part reads so, or begins its words so in pinyin, after `from` and round again; -1 for none.
[[nodiscard]] int ItemFoundBy(const ListBox& list, const std::string& typed, int from);

} // namespace jxc
