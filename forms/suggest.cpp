#include "forms/suggest.h"

#include "base/folding.h"
#include "base/text.h"
#include "database/recordset.h"
#include "session/lookups/card_index.h"
#include "session/lookups/find_by_text.h"
#include "session/lookups/pinyin.h"
#include "session/lookups/product_index.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr const char* kRetailPrice = "fCpPrice3";
constexpr size_t kMostItems = 12;

// A search by a quote finds nothing; it is told when the field is left. And nothing is asked of a company beside a
// transaction that is at work, whose statements it would be among.
bool MaySearch(const std::string& typed) {
    return typed.find('\'') == std::string::npos && !Conn().InTransaction();
}

bool Holds(const std::string& folded, const std::string& sought) {
    if (folded.find(sought) != std::string::npos)
        return true;
    const auto beginsWithIt = [&](const std::string& initials) { return initials.starts_with(sought); };
    if (std::ranges::any_of(PinyinInitials(folded), beginsWithIt))
        return true;
    const size_t name = folded.find_first_not_of("-0123456789 "); // a type's stands behind its number
    return name != std::string::npos &&
           std::ranges::any_of(PinyinInitials(folded.substr(name)), beginsWithIt);
}

Suggestions ItemRows(const ListBox& list, const std::string& typed) {
    Suggestions found{.columns = {{list.caption}}, .rows = {}};
    const std::string sought = Trim(FoldText(typed));
    for (int i = 0; i < static_cast<int>(list.items.size()) && !sought.empty(); ++i) {
        const std::string item = Trim(list.VisibleText(i));
        if (!Holds(FoldText(item), sought))
            continue;
        found.more = found.rows.size() == kMostItems;
        if (found.more)
            break;
        found.rows.push_back({{item}, item});
    }
    return found;
}

Suggestions CardRows(const std::string& typed, CardPart part) {
    Suggestions shown{.columns = {{"编号"}, {"名称"}, {"联系人"}}, .rows = {}};
    if (!MaySearch(typed))
        return shown;
    const CardSuggestions found = SuggestCards(typed);
    shown.more = found.more;
    for (const SuggestedCard& card : found.rows)
        shown.rows.push_back({{card.code, card.name, card.contact},
                              part == CardPart::Row ? CustomerRow(card.name, card.id) : card.name});
    return shown;
}

// There are so few that each key reads them.
Suggestions WarehouseRows(const std::string& typed, WarehousePart part) {
    Suggestions shown{.columns = {{"编码"}, {"名称"}}, .rows = {}};
    const std::string sought = Trim(FoldText(typed));
    if (sought.empty() || !MaySearch(typed))
        return shown;
    for (Recordset row(Conn(), "Select fCkCode,fCkName from tJXC_Ck Order By fCkCode"); !row.AtEnd();
         row.MoveNext()) {
        const std::string code = row[size_t{0}].AsText(), name = row[1].AsText();
        if (!Holds(FoldText(code), sought) && !Holds(FoldText(name), sought))
            continue;
        shown.more = shown.rows.size() == kMostItems;
        if (shown.more)
            break;
        shown.rows.push_back({{code, name}, part == WarehousePart::Code ? code : name});
    }
    return shown;
}

const std::string& TextOf(const SuggestedProduct& product, ProductPart part) {
    return part == ProductPart::Code   ? product.code
           : part == ProductPart::Name ? product.name
                                       : product.barCode;
}

} // namespace

Suggestions ProductRows(const std::string& typed, ProductPart part, const std::string& warehouse,
                        const std::string& priceField) {
    Suggestions shown{.columns = {{"编码"}, {"品名规格"}, {"库存数", true}, {"单价", true}}, .rows = {}};
    if (!MaySearch(typed))
        return shown;
    const ProductSuggestions found =
        SuggestProducts(typed, warehouse, priceField.empty() ? kRetailPrice : priceField);
    shown.more = found.more;
    for (const SuggestedProduct& product : found.rows)
        shown.rows.push_back({{product.code, NameAndSpec(product.name, product.spec),
                               FormatFixed(product.stock, session.DeciSl, true) + product.unit,
                               FormatFixed(product.price, session.DeciDj, true)},
                              TextOf(product, part)});
    if (part == ProductPart::BarCode)
        std::erase_if(shown.rows, [](const SuggestedRow& row) { return row.text.empty(); });
    return shown;
}

std::optional<SuggestedRow> PickProduct(const std::string& typed, bool byName, int column) {
    const std::string code = PickProductCode(typed, byName);
    return code.empty() ? std::nullopt : std::optional(SuggestedRow{{}, code, column});
}

void SuggestProductsIn(EditBox& box, ProductPart part, bool picks) {
    box.onSuggest = [part](const std::string& typed) { return ProductRows(typed, part); };
    if (picks && part == ProductPart::Code)
        box.onPick = [](const std::string& typed) { return PickProduct(typed, false); };
}

void SuggestProductsIn(Grid& grid, const ProductColumns& columns) {
    const auto namesProduct = [columns](int column) {
        return column == columns.code || column == columns.name;
    };
    grid.onSuggest = [columns, namesProduct](int, int column, const std::string& typed) {
        if (!namesProduct(column))
            return Suggestions();
        Suggestions found = ProductRows(typed, ProductPart::Code, columns.warehouse(), columns.priceField());
        for (SuggestedRow& row : found.rows)
            row.column = columns.code;
        return found;
    };
    grid.onPick = [columns, namesProduct](int, int column, const std::string& typed) {
        return namesProduct(column) ? PickProduct(typed, column == columns.name, columns.code) : std::nullopt;
    };
}

// A query's field may be shorter than a name, and asks for all that begin so.
void SuggestCardsIn(EditBox& box, CardPart part) {
    box.onSuggest = [&box, part](const std::string& typed) {
        Suggestions found = CardRows(typed, part);
        if (const auto* line = dynamic_cast<const TextBox*>(&box);
            line && line->maxBytes > 0 && part == CardPart::Name)
            for (SuggestedRow& row : found.rows)
                row.text = TruncateToBytes(row.text, line->maxBytes);
        return found;
    };
}

void SuggestWarehousesIn(EditBox& box, WarehousePart part) {
    box.onSuggest = [part](const std::string& typed) { return WarehouseRows(typed, part); };
}

void SuggestItemsIn(ListBox& list) {
    list.onSuggest = [&list](const std::string& typed) { return ItemRows(list, typed); };
}

int ItemFoundBy(const ListBox& list, const std::string& typed, int from) {
    const std::string sought = Trim(FoldText(typed));
    const int count = static_cast<int>(list.items.size());
    for (int step = 0; step < count && !sought.empty(); ++step)
        if (const int at = (std::max(from, 0) + step) % count;
            Holds(FoldText(Trim(list.VisibleText(at))), sought))
            return at;
    return -1;
}

} // namespace jxc
