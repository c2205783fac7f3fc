// Stock as running counters, one row per warehouse and product (tJXC_CkTj): opening, received, issued,
// transferred and counted quantities with their values, and the stock, price and value that follow from them.
// A reversal repeats the same arithmetic with negated quantities, so every counter returns to what it was.

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <list>
#include <map>
#include <memory_resource>
#include <set>
#include <unordered_map>
#include <vector>

#include "base/text.h"
#include "database/recordset.h"
#include "database/row_inserter.h"
#include "documents/approval/stages.h"
#include "documents/figure_bounds.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

// The figures of a stock row that postings move or that follow from them.
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
const std::vector<std::string> kFigureNames = {"fQcSl", "fRkSl", "fCkSl", "fDkSl", "fPdSl", "fKcSL",
                                               "fQcJe", "fRkJe", "fCkJe", "fCkCb", "fKcDj", "fKcJE"};
// The columns behind the figures: of a stored row that is read, of a new one.
constexpr size_t kProduct = kFieldCount;
constexpr size_t kWarehouse = kFieldCount + 1;

// The counters that a statistics class moves; kFieldCount where it has none.
struct Counters {
    Field quantity;
    Field value;
    Field cost;
};
constexpr Counters kCounters[] = {
    {kQcSl, kQcJe, kFieldCount},       // Statistics::Opening
    {kRkSl, kRkJe, kFieldCount},       // Receipt
    {kCkSl, kCkJe, kCkCb},             // Issue: outgoing quantities count positive
    {kDkSl, kFieldCount, kFieldCount}, // Transfer
    {kPdSl, kFieldCount, kFieldCount}, // Stocktake
};

// A document's line with the cost price of its product, by the places in the statement that reads it.
enum LineColumn { kLineProduct, kLineWarehouse, kQuantity, kPrice, kCost, kRate, kDirection, kCostPrice };
constexpr const char* kLines =
    "Select a.fCpID,a.fCkName,a.fInvSL,a.fInvDJ,a.fInvDJ2,a.fInvHbDl,a.fInvInOut,b.fCpPrice0"
    " From tJXC_CkDj02 a Left Join tJXC_Cp b On a.fCpID=b.fCpID Where a.fInvID=";

// The stock rows of a document's products in one warehouse: read at once, moved line by line, written once
// each.
class WarehouseStock {
  public:
    WarehouseStock(const std::string& name, const std::vector<std::int64_t>& products)
        : name_(name), stored_(Conn(), StoredRows(name, products), Access::Write) {
        figures_.reserve(stored_.RecordCount());
        for (; !stored_.AtEnd(); stored_.MoveNext()) {
            Figures& figures = figures_[stored_[kProduct].AsLong()];
            ofStored_.push_back(&figures);
            for (size_t field = 0; field < kFieldCount; ++field)
                figures[field] = stored_[field].AsDouble();
        }
    }

    const std::string& Name() const { return name_; }

    static std::string StoredRows(const std::string& warehouse, const std::vector<std::int64_t>& products) {
        return "Select " + JoinedByCommas(kFigureNames) +
               ",fCpID From tJXC_CkTj Where fCkName=" + InQuotes(warehouse) + " And fCpID" + InKeys(products);
    }

    // The figures of a product, those of a new row when it has none here.
    Figures& Of(std::int64_t product) {
        const auto [place, isNew] = figures_.try_emplace(product);
        if (isNew)
            newProducts_.push_back(product);
        return place->second;
    }

    // Of stored rows what the class moves and what follows from it.
    void Write(const Counters& counters) {
        for (size_t row = 0; row < stored_.RecordCount(); ++row) {
            stored_.MoveTo(row);
            const Figures& figures = *ofStored_[row];
            for (Field field : {counters.quantity, counters.value, counters.cost, kKcSL, kKcDj, kKcJE})
                if (field != kFieldCount)
                    stored_.Set(field, figures[field]);
            stored_.Update();
        }
        if (!newProducts_.empty())
            InsertNewRows();
    }

  private:
    void InsertNewRows() {
        std::vector<std::string> fields = kFigureNames;
        fields.insert(fields.end(), {"fCpID", "fCkName"});
        RowInserter rows(Conn(), "tJXC_CkTj", fields);
        rows.Set(kWarehouse, name_);
        for (std::int64_t product : newProducts_) {
            const Figures& figures = figures_[product];
            for (size_t field = 0; field < kFieldCount; ++field)
                rows.Set(field, figures[field]);
            rows.Set(kProduct, product);
            rows.Insert();
        }
    }

    std::string name_;
    Recordset stored_;
    std::pmr::monotonic_buffer_resource memory_; // of the figures, which come and go together
    std::pmr::unordered_map<std::int64_t, Figures> figures_{&memory_}; // by product
    std::vector<const Figures*> ofStored_;                             // by the place of the stored row
    std::vector<std::int64_t> newProducts_;
};

// The warehouses of a document, one or two; their names compare without regard to case.
class DocumentStock {
  public:
    // Of the lines, ordered by product, which are left at their first.
    explicit DocumentStock(Recordset& lines) {
        std::vector<std::pair<std::string, std::vector<std::int64_t>>> products;
        for (; !lines.AtEnd(); lines.MoveNext()) {
            const std::string& name = lines[kLineWarehouse].Text();
            auto here = std::find_if(products.begin(), products.end(),
                                     [&](const auto& known) { return IsSame(known.first, name); });
            if (here == products.end())
                here = products.insert(products.end(), {name, {}});
            const std::int64_t product = lines[kLineProduct].AsLong();
            if (here->second.empty() || here->second.back() != product)
                here->second.push_back(product);
        }
        lines.MoveTo(0);
        std::vector<Connection::Expected> together;
        for (const auto& [name, keys] : products)
            together.push_back({WarehouseStock::StoredRows(name, keys), true});
        const ReadAhead ahead(Conn(), together);
        for (const auto& [name, keys] : products)
            warehouses_.emplace_back(name, keys);
    }

    WarehouseStock& In(const std::string& warehouse) {
        return *std::find_if(warehouses_.begin(), warehouses_.end(),
                             [&](const WarehouseStock& known) { return IsSame(known.Name(), warehouse); });
    }

    void Write(const Counters& counters) {
        for (WarehouseStock& warehouse : warehouses_)
            warehouse.Write(counters);
    }

  private:
    static bool IsSame(const std::string& a, const std::string& b) { return a == b || EqualsNoCase(a, b); }

    std::list<WarehouseStock> warehouses_;
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
    if (!std::isfinite(figures[kKcJE]))
        throw DatabaseError("库存金额不是有效的数。");
}

void PostLine(const Recordset& line, const Counters& counters, bool reversal, DocumentStock& stock) {
    double quantity = line[kQuantity].AsDouble();
    if (reversal)
        quantity = -quantity;
    if (line[kDirection].AsLong() != Direction::In)
        quantity = -quantity;
    if (counters.quantity == kCkSl)
        quantity = -quantity;
    Figures& figures = stock.In(line[kLineWarehouse].Text()).Of(line[kLineProduct].AsLong());
    const auto add = [&](Field field, double amount, double bound) {
        if (field == kFieldCount)
            return;
        figures[field] = AddDecimal(figures[field], amount);
        // Beyond its bound a sum loses digits, and a reversal would not give back what the approval added.
        if (!std::isfinite(amount) || (!reversal && Reaches(figures[field], bound)))
            throw DatabaseError("产品 " + line[kLineProduct].AsText() + " 在“" + line[kLineWarehouse].Text() +
                                "”的累计数超出范围。");
    };
    if (!reversal && !(line[kRate].AsDouble() > 0))
        throw DatabaseError("单据的汇率不是正数。");
    add(counters.quantity, quantity, below::kQuantitySum);
    add(counters.value, quantity * line[kPrice].AsDouble() * line[kRate].AsDouble(), below::kAmountSum);
    add(counters.cost, quantity * line[kCost].AsDouble(), below::kAmountSum);
    DeriveStock(figures, line[kCostPrice]);
}

// A rest of stock that bears the value of goods long gone has a cost that no later document makes good.
void RequireDerivedInBounds(const Recordset& line, DocumentStock& stock) {
    const Figures& figures = stock.In(line[kLineWarehouse].Text()).Of(line[kLineProduct].AsLong());
    if (Reaches(figures[kKcDj], below::kUnitCost) || Reaches(figures[kKcJE], below::kAmountSum))
        throw DatabaseError("产品 " + line[kLineProduct].AsText() + " 在“" + line[kLineWarehouse].Text() +
                            "”的成本价或库存金额超出范围。");
}

bool MovesStock(const TypeRow& type) {
    return type.fSetTjType >= Statistics::Opening && type.fSetCrType1 != kNoChoice &&
           type.fSetTjType < static_cast<int>(std::size(kCounters));
}

std::string PostedLinesStatement(const DocumentData& document) {
    return kLines + std::to_string(document.key) + " Order By a.fCpID,a.fCkName,a.fInv1,a.fRowID";
}

} // namespace

// The lines were loaded as they are stored, or nothing is posted: their products are known.
std::vector<Connection::Expected> StockStatements(const DocumentData& document,
                                                  const StoredDocument& asLoaded) {
    if (!MovesStock(document.type))
        return {};
    std::map<std::string, std::set<std::int64_t>> products;
    const std::vector<Value>& cells = asLoaded.lines;
    for (size_t line = 0; line < cells.size(); line += StoredDocument::kLineCells)
        products[cells[line + StoredDocument::kWarehouse].AsText()].insert(
            cells[line + StoredDocument::kProduct].AsLong());
    std::vector<Connection::Expected> statements{{PostedLinesStatement(document)}};
    for (const auto& [warehouse, keys] : products)
        statements.push_back({WarehouseStock::StoredRows(warehouse, {keys.begin(), keys.end()}), true});
    return statements;
}

void PostStock(const DocumentData& document, bool reversal) {
    if (!MovesStock(document.type))
        return;
    const int statistics = document.type.fSetTjType;
    Recordset lines(Conn(), PostedLinesStatement(document));
    DocumentStock stock(lines);
    for (; !lines.AtEnd(); lines.MoveNext())
        PostLine(lines, kCounters[statistics], reversal, stock);
    if (!reversal) // which must always be possible
        for (lines.MoveTo(0); !lines.AtEnd(); lines.MoveNext())
            RequireDerivedInBounds(lines, stock);
    stock.Write(kCounters[statistics]);
}

} // namespace jxc
