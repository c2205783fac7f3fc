// Two cost prices are kept whatever the cost method: the warehouse's (PostStock) and the product's over all
// warehouses, which each receipt moves. The method decides which of them an issue's lines take.

#include <map>

#include "controls/text.h"
#include "documents/approval/stages.h"
#include "session/database/recordset.h"
#include "session/session.h"

namespace jxc {

namespace {

// Writes the prices of a document's products, each once, over the stored ones read together.
void SetOverallPrices(const std::string& key, std::map<std::int64_t, double> prices) {
    Recordset row(
        Conn(),
        "Select * From tJXC_CkTj_tmp Where fCpID In (Select fCpID From tJXC_CkDj02 Where fInvID=" + key + ")",
        Access::Write);
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
    if (session.IsJet())
        Conn().Execute("Update tJXC_CkDj02 a," + table + " b Set a.fInvDJ2=b." + field +
                       " Where a.fCpID=b.fCpID" + join + " And a.fInvID=" + key + condition);
    else
        Conn().Execute("Update tJXC_CkDj02 Set fInvDJ2=b." + field + " From tJXC_CkDj02 a inner Join " +
                       table + " b On a.fCpID=b.fCpID" + join + " Where a.fInvID=" + key + condition);
}

} // namespace

void PostOverallCost(const frmDj02& s, bool reversal) {
    Recordset row(
        Conn(), "select a.fCpID,a.fInvSL,a.fInvDJ,a.fInvHbDl,sum(b.fKcSl) as fKcSl,sum(b.fKcJe) as fKcJe from"
                " (tJXC_CkTj b Left Join tJXC_Ck c On c.fCkName=b.fCkName)"
                " Right Join tJXC_CkDj02 a On a.fCpID=b.fCpID"
                " Where a.fInvID=" +
                    std::to_string(s.oldInvID) +
                    " And (c.fCkType2=0 and c.fCkType3=0)"
                    " Group By a.fCpID,a.fInvSL,a.fInvDJ,a.fInvHbDl"
                    " Order By a.fCpID,a.fInvSL,a.fInvDJ,a.fInvHbDl");
    std::map<std::int64_t, double> prices; // of a product on several lines the last counts
    for (; !row.AtEnd(); row.MoveNext()) {
        const double price = row["fInvDJ"].AsDouble() * row["fInvHbDl"].AsDouble();
        const double quantity = reversal ? -row["fInvSL"].AsDouble() : row["fInvSL"].AsDouble();
        const double stock = AddDecimal(row["fKcSl"].AsDouble(), quantity);
        const double value = AddDecimal(price * quantity, row["fKcJe"].AsDouble());
        prices[row["fCpID"].AsLong()] = stock == 0 ? 0 : value / stock;
    }
    SetOverallPrices(std::to_string(s.oldInvID), std::move(prices));
}

void ReadCostPrice(const frmDj02& s) {
    const std::string key = std::to_string(s.oldInvID);
    if (s.parameters.costMethod == CostMethod::MovingAverage)
        TakePrice("tJXC_CkTj", "fKcDj", " And a.fCkName=b.fCkName", key, " And b.fKcDj>0");
    else
        TakePrice("tJXC_CkTj_tmp", "fKcDj", "", key, " And b.fKcDj>0");
    TakePrice("tJXC_Cp", "fCpPrice0", "", key, " And a.fInvDJ2=0");
}

} // namespace jxc
