// Stock as running counters, one row per warehouse and product (tJXC_CkTj): opening, received, issued,
// transferred and counted quantities with their values, and the stock, price and value that follow from them.
// A reversal repeats the same arithmetic with negated quantities, so every counter returns to what it was.

#include <iterator>

#include "controls/text.h"
#include "documents/approval/stages.h"
#include "session/database/recordset.h"
#include "session/database/routines.h"
#include "session/session.h"

namespace jxc {

namespace {

// The counters of a statistics class, "" where it has none.
struct Counters {
    const char* quantity;
    const char* value;
    const char* cost;
};

constexpr Counters kCounters[] = {
    {"fQcSl", "fQcJe", ""},      // 0 opening
    {"fRkSl", "fRkJe", ""},      // 1 receipt
    {"fCkSl", "fCkJe", "fCkCb"}, // 2 issue: outgoing quantities count positive
    {"fDkSl", "", ""},           // 3 transfer
    {"fPdSl", "", ""},           // 4 stocktake
};

// One stock row in hand: its fields as read, and as changed.
class StockRow {
  public:
    StockRow(const std::string& warehouse, std::int64_t product)
        : row_(Conn(),
               "Select * From tJXC_CkTj Where fCkName=" + InQuotes(warehouse) +
                   " And fCpID=" + std::to_string(product),
               Access::Write),
          isNew_(row_.AtEnd()) {
        if (!isNew_)
            return;
        row_.AddNew();
        row_.Set("fCpID", product);
        row_.Set("fCkName", warehouse);
        for (const char* field : {"fQcSl", "fRkSl", "fCkSl", "fDkSl", "fPdSl", "fKcSL", "fQcJe", "fRkJe",
                                  "fCkJe", "fCkCb", "fKcJE"})
            row_.Set(field, 0.0);
    }

    double Get(const std::string& field) const {
        const auto changed = changed_.find(field);
        if (changed != changed_.end())
            return changed->second;
        return isNew_ ? 0 : row_[field].AsDouble();
    }
    void Set(const std::string& field, double number) { changed_[field] = number; }
    void Add(const std::string& field, double amount) { Set(field, AddDecimal(Get(field), amount)); }
    void Update() {
        for (const auto& [field, number] : changed_)
            row_.Set(field, number);
        row_.Update();
    }

  private:
    Recordset row_;
    bool isNew_;
    std::map<std::string, double> changed_;
};

// Stock, price and value follow from the counters. Without goods received the product's cost price serves.
void DeriveStock(StockRow& row, const Value& costPrice) {
    const double received = AddDecimal(row.Get("fQcSl"), row.Get("fRkSl"));
    double stock = AddDecimal(received, -row.Get("fCkSl"));
    stock = AddDecimal(stock, row.Get("fDkSl"));
    stock = AddDecimal(stock, row.Get("fPdSl"));
    if (received == 0 && costPrice.IsNull())
        throw DatabaseError("产品资料已不存在，没有成本价。");
    const double price =
        received == 0 ? costPrice.AsDouble() : AddDecimal(row.Get("fQcJe"), row.Get("fRkJe")) / received;
    row.Set("fKcSL", stock);
    row.Set("fKcDj", price);
    row.Set("fKcJE", stock * price);
}

void PostLine(const Recordset& line, const Counters& counters, bool reversal) {
    double quantity = line["fInvSL"].AsDouble();
    if (reversal)
        quantity = -quantity;
    if (line["fInvInOut"].AsLong() != 1)
        quantity = -quantity;
    if (LowerCase(counters.quantity) == "fcksl")
        quantity = -quantity;
    StockRow row(line["fCkName"].AsText(), line["fCpID"].AsLong());
    row.Add(counters.quantity, quantity);
    if (*counters.value)
        row.Add(counters.value, quantity * line["fInvDJ"].AsDouble() * line["fInvHbDl"].AsDouble());
    if (*counters.cost)
        row.Add(counters.cost, quantity * line["fInvDJ2"].AsDouble());
    DeriveStock(row, line["fCpPrice0"]);
    row.Update();
}

} // namespace

void PostStock(const frmDj02& s, bool reversal) {
    const int statistics = s.type.fSetTjType;
    if (statistics < 0 || s.type.fSetCrType1 == -1 || statistics >= static_cast<int>(std::size(kCounters)))
        return;
    Recordset lines(
        Conn(),
        "Select a.fCpID,a.fCkName,a.fInvSL,a.fInvDJ,a.fInvDJ2,a.fInvHbDl,a.fInv1,b.fCpPrice0,fInvInOut"
        " From tJXC_CkDj02 a Left Join tJXC_Cp b On a.fCpID=b.fCpID"
        " Where a.fInvID=" +
            std::to_string(s.oldInvID) + " Order By a.fCpID,a.fCkName");
    for (; !lines.AtEnd(); lines.MoveNext())
        PostLine(lines, kCounters[statistics], reversal);
}

} // namespace jxc
