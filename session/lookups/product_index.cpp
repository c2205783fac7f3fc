#include "session/lookups/product_index.h"

#include <map>

#include "session/lookups/database_routines.h"
#include "session/lookups/find_by_text.h"
#include "session/lookups/kept_index.h"
#include "session/session.h"

namespace jxc {

namespace {

KeptIndex& TheIndex() {
    static KeptIndex index(kNotedProducts,
                           "Select fCpID,fCpCode,fCpBarCode,fCpName,fCpGG From tJXC_Cp Where fCpFlag<>1");
    return index;
}

} // namespace

ProductSuggestions SuggestProducts(const std::string& typed, const std::string& warehouse,
                                   const std::string& priceField, size_t most) {
    const TextIndex::Hits hits = TheIndex().UpToDate().Find(typed, most);
    ProductSuggestions found;
    found.more = hits.count > hits.ids.size();
    if (hits.ids.empty())
        return found;
    const std::string price = priceField.empty() ? "0" : priceField;
    const std::string statement = "Select fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpBarCode," + price +
                                  " From tJXC_Cp Where fCpID" + InKeys(hits.ids);
    const ReadAhead ahead(Conn(), {{statement}, {StockQtysStatement(warehouse, hits.ids)}});
    const Rows rows = Conn().Query(statement);
    const std::map<std::int64_t, double> stock = GetStockQtys(warehouse, hits.ids);
    std::map<std::int64_t, size_t> rowOf;
    for (size_t row = 0; row < rows.Count(); ++row)
        rowOf[rows.At(row, 0).AsLong()] = row;
    for (const std::int64_t id : hits.ids) {
        const auto known = rowOf.find(id);
        if (known == rowOf.end())
            continue;
        const auto text = [&](size_t column) { return rows.At(known->second, column).AsText(); };
        const auto lies = stock.find(id);
        found.rows.push_back({id, text(1), text(2), text(3), text(4), text(5),
                              lies == stock.end() ? 0 : lies->second, rows.At(known->second, 6).AsDouble()});
    }
    return found;
}

} // namespace jxc
