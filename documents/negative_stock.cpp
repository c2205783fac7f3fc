// Tells beforehand what a document would take from stock that is not there. It warns and never refuses: goods are often
// sold from the shelf before their receipt is entered.

#include <map>
#include <utility>
#include <vector>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/document_model.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr size_t kRowsTold = 10;

using Place = std::pair<std::string, std::int64_t>; // warehouse and product
// What a document adds to the stock at each place; negative for what it takes.
using Moves = std::map<Place, double>;

// Openings and counts say what the stock is.
bool TakesGoods(const TypeRow& type) {
    return type.fSetCrType1 != kNoChoice &&
           (type.fSetTjType == Statistics::Receipt || type.fSetTjType == Statistics::Issue ||
            type.fSetTjType == Statistics::Transfer);
}

// Both sides of a transfer; of a kit the parts on the one, the finished product on the other.
Moves MovesOf(const DocumentData& document) {
    const TypeRow& type = document.type;
    Moves moves;
    const auto add = [&moves](Place place, int direction, double quantity) {
        double& moved = moves[std::move(place)];
        moved = AddDecimal(moved, direction == Direction::In ? quantity : -quantity);
    };
    for (const DocumentLine& line : document.lines) {
        add({document.warehouse, line.product}, DirectionOfFirstRow(type), line.quantity);
        if (type.HasSecondWarehouse() && !type.IsKit())
            add({document.warehouse2, line.product}, DirectionOfSecondRow(type), line.quantity);
    }
    if (type.IsKit())
        add({document.warehouse2, document.finishedProduct}, DirectionOfSecondRow(type),
            document.kitQuantity);
    std::erase_if(moves, [](const auto& move) { return move.second >= 0; });
    return moves;
}

// A product and its stock in every warehouse that has had it.
struct Known {
    std::string name; // the code, or the name of one without
    std::vector<std::pair<std::string, double>> stock;

    double In(const std::string& warehouse) const {
        for (const auto& [known, quantity] : stock)
            if (EqualsNoCase(known, warehouse))
                return quantity;
        return 0;
    }
};

std::map<std::int64_t, Known> KnownOf(const Moves& moves) {
    std::vector<std::int64_t> products;
    for (const auto& [place, quantity] : moves)
        products.push_back(place.second);
    std::map<std::int64_t, Known> known;
    for (Recordset row(Conn(), "Select b.fCpID,b.fCpCode,b.fCpName,a.fCkName,a.fKcSl From tJXC_Cp b"
                               " Left Join tJXC_CkTj a On a.fCpID=b.fCpID Where b.fCpID" +
                                   InKeys(products));
         !row.AtEnd(); row.MoveNext()) {
        Known& product = known[row["fCpID"].AsLong()];
        product.name = row["fCpCode"].AsText().empty() ? row["fCpName"].AsText() : row["fCpCode"].AsText();
        if (!row["fCkName"].IsNull())
            product.stock.emplace_back(row["fCkName"].AsText(), row["fKcSl"].AsDouble());
    }
    return known;
}

// "" when the stock suffices.
std::string NegativeStockText(const DocumentData& document) {
    const Moves moves = TakesGoods(document.type) ? MovesOf(document) : Moves{};
    if (moves.empty())
        return "";
    const std::map<std::int64_t, Known> known = KnownOf(moves);
    std::string rows;
    size_t found = 0;
    for (const auto& [place, moved] : moves) {
        const auto product = known.find(place.second);
        if (product == known.end())
            continue; // the approval tells of a product that is gone
        const double stock = product->second.In(place.first);
        const double after = AddDecimal(stock, moved);
        if (after < 0 && ++found <= kRowsTold)
            rows += product->second.name + "（" + place.first + "）：库存 " + Value(stock).AsText() +
                    "，单据后 " + Value(after).AsText() + "\n";
    }
    if (found > kRowsTold)
        rows += "…… 等 " + std::to_string(found) + " 项\n";
    return rows.empty() ? "" : "以下产品的库存将为负数：\n\n" + rows + "\n继续？";
}

} // namespace

bool GoesOnWithNegativeStock(const frmDj02& s, const DocumentData& document) {
    if (!s.parameters.warnsOfNegativeStock)
        return true;
    const std::string text = NegativeStockText(document);
    return text.empty() || AskOkCancel(s.title, text);
}

} // namespace jxc
