// Stock as running counters, one row per warehouse and product (tJXC_CkTj): opening, received, issued,
// transferred and counted quantities with their values, and the stock, price and value that follow from them.
// A reversal repeats the same arithmetic with negated quantities, so every counter returns to what it was.

#include <array>
#include <iterator>
#include <list>
#include <optional>
#include <unordered_map>
#include <vector>

#include "controls/text.h"
#include "documents/approval/stages.h"
#include "session/database/recordset.h"
#include "session/session.h"

namespace jxc {

namespace {

// The fields of a stock row that postings move or that follow from them, in the order in which Figures holds
// them.
constexpr const char* kFields[] = {"fQcSl", "fRkSl", "fCkSl", "fDkSl", "fPdSl", "fKcSL",
                                   "fQcJe", "fRkJe", "fCkJe", "fCkCb", "fKcDj", "fKcJE"};
enum Field {
    kQcSl,
    kRkSl,
    kCkSl,
    kDkSl,
    kPdSl,
    kKcSL,
    kQcJe,
    kRkJe,
    kCkJe,
    kCkCb,
    kKcDj,
    kKcJE,
    kFieldCount
};
using Figures = std::array<double, kFieldCount>;

// One stock row in hand: where it is stored, and its figures.
struct StockRow {
    std::string warehouse;
    std::int64_t product = 0;
    std::optional<size_t> stored; // its place among the stored rows
    bool touched = false;
    Figures figures{};
    Figures before{}; // as stored
};

// The counters that a statistics class moves; kFieldCount where it has none.
struct Counters {
    Field quantity;
    Field value;
    Field cost;
};
constexpr Counters kCounters[] = {
    {kQcSl, kQcJe, kFieldCount},       // 0 opening
    {kRkSl, kRkJe, kFieldCount},       // 1 receipt
    {kCkSl, kCkJe, kCkCb},             // 2 issue: outgoing quantities count positive
    {kDkSl, kFieldCount, kFieldCount}, // 3 transfer
    {kPdSl, kFieldCount, kFieldCount}, // 4 stocktake
};

// The stock rows of a document: read at once, moved line by line, written once each.
class StockRows {
  public:
    explicit StockRows(const std::string& key)
        : stored_(Conn(),
                  "Select * From tJXC_CkTj Where fCpID In (Select fCpID From tJXC_CkDj02 Where fInvID=" +
                      key + ") And fCkName In (Select fCkName From tJXC_CkDj02 Where fInvID=" + key + ")",
                  Access::Write) {
        for (size_t row = 0; !stored_.AtEnd(); stored_.MoveNext(), ++row) {
            StockRow& held = Hold(stored_["fCkName"].Text(), stored_["fCpID"].AsLong());
            held.stored = row;
            for (size_t field = 0; field < kFieldCount; ++field)
                held.before[field] = held.figures[field] = stored_[kFields[field]].AsDouble();
        }
    }

    // The row of a product in a warehouse, a new one with nothing in it when there is none.
    StockRow& Touch(const std::string& warehouse, std::int64_t product) {
        StockRow& row = Hold(warehouse, product);
        if (!row.touched)
            touched_.push_back(&row);
        row.touched = true;
        return row;
    }

    void Write() {
        for (const StockRow* row : touched_)
            WriteRow(*row);
    }

  private:
    using Products = std::unordered_map<std::int64_t, StockRow>;
    struct Warehouse {
        std::string name;
        Products products;
    };

    // A document has one warehouse or two; their names compare without regard to case.
    Products& ProductsOf(const std::string& warehouse) {
        for (Warehouse& known : warehouses_)
            if (known.name == warehouse || EqualsNoCase(known.name, warehouse))
                return known.products;
        return warehouses_.emplace_back(Warehouse{warehouse, {}}).products;
    }

    StockRow& Hold(const std::string& warehouse, std::int64_t product) {
        const auto [found, isNew] = ProductsOf(warehouse).try_emplace(product);
        if (isNew)
            found->second.warehouse = warehouse, found->second.product = product;
        return found->second;
    }

    void WriteRow(const StockRow& row) {
        if (row.stored) {
            stored_.MoveTo(*row.stored);
        } else {
            stored_.AddNew();
            stored_.Set("fCpID", row.product);
            stored_.Set("fCkName", row.warehouse);
        }
        for (size_t field = 0; field < kFieldCount; ++field)
            if (!row.stored || row.figures[field] != row.before[field])
                stored_.Set(kFields[field], row.figures[field]);
        stored_.Update();
    }

    Recordset stored_;
    std::list<Warehouse> warehouses_; // rows keep their place when another warehouse comes
    std::vector<StockRow*> touched_;
};

// Stock, price and value follow from the counters. Without goods received the product's cost price serves.
void DeriveStock(Figures& figures, const Value& costPrice) {
    const double received = AddDecimal(figures[kQcSl], figures[kRkSl]);
    double stock = AddDecimal(received, -figures[kCkSl]);
    stock = AddDecimal(stock, figures[kDkSl]);
    stock = AddDecimal(stock, figures[kPdSl]);
    if (received == 0 && costPrice.IsNull())
        throw DatabaseError("产品资料已不存在，没有成本价。");
    figures[kKcSL] = stock;
    figures[kKcDj] =
        received == 0 ? costPrice.AsDouble() : AddDecimal(figures[kQcJe], figures[kRkJe]) / received;
    figures[kKcJE] = stock * figures[kKcDj];
}

void PostLine(const Recordset& line, const Counters& counters, bool reversal, StockRows& rows) {
    double quantity = line["fInvSL"].AsDouble();
    if (reversal)
        quantity = -quantity;
    if (line["fInvInOut"].AsLong() != 1)
        quantity = -quantity;
    if (counters.quantity == kCkSl)
        quantity = -quantity;
    Figures& figures = rows.Touch(line["fCkName"].Text(), line["fCpID"].AsLong()).figures;
    const auto add = [&](Field field, double amount) {
        if (field != kFieldCount)
            figures[field] = AddDecimal(figures[field], amount);
    };
    add(counters.quantity, quantity);
    add(counters.value, quantity * line["fInvDJ"].AsDouble() * line["fInvHbDl"].AsDouble());
    add(counters.cost, quantity * line["fInvDJ2"].AsDouble());
    DeriveStock(figures, line["fCpPrice0"]);
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
    StockRows rows(std::to_string(s.oldInvID));
    for (; !lines.AtEnd(); lines.MoveNext())
        PostLine(lines, kCounters[statistics], reversal, rows);
    rows.Write();
}

} // namespace jxc
