// Two cost prices are kept whatever the cost method: the warehouse's (PostStock) and the product's over all
// warehouses, which each receipt moves. The method decides which of them an issue's lines take.

#include <algorithm>
#include <compare>
#include <map>
#include <vector>

#include "base/text.h"
#include "database/recordset.h"
#include "documents/approval/stages.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

// Stock and value of products over all warehouses but those of consignment and production. A product that is
// in no other has none.
struct OverallStock {
    double quantity = 0;
    double value = 0;
};
std::string OverallStockStatement(const std::vector<std::int64_t>& products) {
    return "select b.fCpID,sum(b.fKcSl) as fKcSl,sum(b.fKcJe) as fKcJe from"
           " tJXC_CkTj b Left Join tJXC_Ck c On c.fCkName=b.fCkName"
           " Where b.fCpID" +
           InKeys(products) +
           " And (c.fCkType2=0 and c.fCkType3=0)"
           " Group By b.fCpID";
}

std::map<std::int64_t, OverallStock> ReadOverallStock(const std::vector<std::int64_t>& products) {
    std::map<std::int64_t, OverallStock> stocks;
    for (Recordset row(Conn(), OverallStockStatement(products)); !row.AtEnd(); row.MoveNext())
        stocks[row["fCpID"].AsLong()] = {row["fKcSl"].AsDouble(), row["fKcJe"].AsDouble()};
    return stocks;
}

std::string OverallPricesStatement(const std::vector<std::int64_t>& products) {
    return "Select * From tJXC_CkTj_tmp Where fCpID" + InKeys(products);
}

// Writes the new prices, each once, over the stored ones of the document's products, read together.
void SetOverallPrices(const std::vector<std::int64_t>& products, std::map<std::int64_t, double> prices) {
    Recordset row(Conn(), OverallPricesStatement(products), Access::Write);
    for (; !row.AtEnd(); row.MoveNext()) {
        const auto price = prices.find(row["fCpID"].AsLong());
        if (price == prices.end())
            continue;
        row.Set("fKcDj", price->second);
        row.Update();
        prices.erase(price);
    }
    for (const auto& [product, price] : prices) {
        row.AddNew();
        row.Set("fCpID", product);
        row.Set("fKcDj", price);
        row.Update();
    }
}

// Sets fInvDJ2 from a table of prices. `join` is the further condition that ties a line to its price row.
void TakePrice(const std::string& table, const std::string& field, const std::string& join,
               const std::string& key, const std::string& condition) {
    Conn().Execute(UpdateText({.table = "tJXC_CkDj02",
                               .field = "fInvDJ2",
                               .second = table,
                               .value = field,
                               .join = "a.fCpID=b.fCpID" + join,
                               .condition = "a.fInvID=" + key + condition}));
}

} // namespace

std::string OverallLinesStatement(const DocumentData& document) {
    return "select fCpID,fInvSL,fInvDJ,fInvHbDl From tJXC_CkDj02 Where fInvID=" +
           std::to_string(document.key);
}

namespace {

struct ReceivedLine {
    std::int64_t product;
    double quantity, price, rate;
    // NOLINTNEXTLINE(modernize-use-nullptr): no null stands here
    auto operator<=>(const ReceivedLine&) const = default;
};

// In their order, so that a product's lines stand together and identical ones side by side.
std::vector<ReceivedLine> LinesReceived(const DocumentData& document) {
    std::vector<ReceivedLine> lines;
    Recordset row(Conn(), OverallLinesStatement(document));
    lines.reserve(row.RecordCount());
    for (; !row.AtEnd(); row.MoveNext())
        lines.push_back({row["fCpID"].AsLong(), row["fInvSL"].AsDouble(), row["fInvDJ"].AsDouble(),
                         row["fInvHbDl"].AsDouble()});
    std::sort(lines.begin(), lines.end());
    return lines;
}

std::vector<std::int64_t> ProductsOf(const std::vector<ReceivedLine>& lines) {
    std::vector<std::int64_t> products;
    for (const ReceivedLine& line : lines)
        if (products.empty() || products.back() != line.product)
            products.push_back(line.product);
    return products;
}

// The price over the stock that the line, which stands `count` times in the document, has already entered.
double OverallPrice(const ReceivedLine& line, int count, const OverallStock& stored, bool reversal) {
    const double price = line.price * line.rate;
    const double quantity = reversal ? -line.quantity : line.quantity;
    const double stock = AddDecimal(stored.quantity * count, quantity);
    const double value = AddDecimal(price * quantity, stored.value * count);
    return stock == 0 ? 0 : value / stock;
}

} // namespace

// Identical lines count as one, over the stock of all of them.
void PostOverallCost(const DocumentData& document, bool reversal) {
    const std::vector<ReceivedLine> lines = LinesReceived(document);
    const std::vector<std::int64_t> products = ProductsOf(lines);
    const ReadAhead ahead(Conn(),
                          {{OverallStockStatement(products)}, {OverallPricesStatement(products), true}});
    const std::map<std::int64_t, OverallStock> stocks = ReadOverallStock(products);
    std::map<std::int64_t, double> prices; // of a product on several lines the last counts
    for (auto line = lines.begin(); line != lines.end();) {
        const auto next = std::upper_bound(line, lines.end(), *line);
        if (const auto stored = stocks.find(line->product); stored != stocks.end())
            prices[line->product] =
                OverallPrice(*line, static_cast<int>(next - line), stored->second, reversal);
        line = next;
    }
    if (!prices.empty())
        SetOverallPrices(products, std::move(prices));
}

void ReadCostPrice(const DocumentData& document) {
    const std::string key = std::to_string(document.key);
    if (document.costMethod == CostMethod::MovingAverage)
        TakePrice("tJXC_CkTj", "fKcDj", " And a.fCkName=b.fCkName", key, " And b.fKcDj>0");
    else
        TakePrice("tJXC_CkTj_tmp", "fKcDj", "", key, " And b.fKcDj>0");
    TakePrice("tJXC_Cp", "fCpPrice0", "", key, " And a.fInvDJ2=0");
}

} // namespace jxc
