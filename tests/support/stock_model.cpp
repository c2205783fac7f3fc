#include "tests/support/stock_model.h"

#include <cmath>
#include <cstdlib>
#include <iostream>

#include "base/text.h"
#include "session/session.h"

namespace jxc::test {

namespace {

const std::map<std::string, double> kCostPrice{
    {"CPU002", 620}, {"MEM002", 172}, {"CPF004", 6.5}, {"MB001", 365}};

// Receipts owe, issues and settlements claim; both enter positive, returns negative.
double Account(const DocumentInput& document) {
    const int type = std::abs(document.type);
    if (type != 1 && type != 2 && type != 7)
        return 0;
    double total = 0;
    for (const LineInput& input : document.lines)
        total += (document.type < 0 ? -1 : 1) * RoundDecimal(input.quantity * input.price, 2);
    return total;
}

bool IsSale(int type) {
    return std::abs(type) == 2 || std::abs(type) == 7;
}

} // namespace

void StockModel::Post(const DocumentInput& document, int sign) {
    for (const LineInput& input : document.lines)
        PostLine(document, input, sign);
    if (!document.product.empty())
        at_[{document.warehouse2, document.product}].moved +=
            sign * document.pieces * (document.type == 32 ? -1 : 1);
    account_ += sign * Account(document);
}

void StockModel::Close() {
    std::map<Place, Stock> next;
    for (const auto& [place, stock] : at_)
        if (stock != Stock{})
            next[place] = {.opening = stock.Quantity(),
                           .openingValue = stock.Quantity() * Price(place.first, place.second)};
    at_ = std::move(next);
    bought_.clear();
}

Stock StockModel::At(const std::string& warehouse, const std::string& code) const {
    const auto found = at_.find({warehouse, code});
    return found == at_.end() ? Stock{} : found->second;
}

double StockModel::Price(const std::string& warehouse, const std::string& code) const {
    const Stock stock = At(warehouse, code);
    const double quantity = stock.opening + stock.received;
    return std::fabs(quantity) < 1e-9 ? kCostPrice.at(code)
                                      : (stock.openingValue + stock.receivedValue) / quantity;
}

void StockModel::PostLine(const DocumentInput& document, const LineInput& input, int sign) {
    Stock& first = at_[{document.warehouse, input.code}];
    const double quantity = sign * (document.type < 0 ? -input.quantity : input.quantity);
    if (IsSale(document.type)) {
        auto& [pieces, value] = bought_[{document.customer, input.code}];
        pieces += quantity,
            value += sign * (document.type < 0 ? -1 : 1) * RoundDecimal(input.quantity * input.price, 2);
    }
    switch (std::abs(document.type)) {
    case 0:
        first.opening += quantity, first.openingValue += quantity * input.price;
        break;
    case 1:
        first.received += quantity, first.receivedValue += quantity * input.price;
        break;
    case 2:
    case 7:
        first.issued += quantity, first.issuedValue += quantity * input.price;
        break;
    case 4:
        first.counted += quantity;
        break;
    case 32: // the parts come in
        first.moved += quantity;
        break;
    default: // 3, 6, 31: out of the first warehouse
        first.moved -= quantity;
        if (document.product.empty())
            at_[{document.warehouse2, input.code}].moved += quantity;
    }
}

DocumentInput RandomTrade::Document() {
    static const int types[] = {0, 1, 1, 1, -1, 2, 2, -2, 3, 4, 6, -6, 7, -7, 31, 32};
    DocumentInput document = TypicalDocument(types[Below(std::size(types))]);
    static const std::map<int, std::pair<const char*, const char*>> warehouses{{3, {"总部仓", "零售门市"}},
                                                                               {6, {"总部仓", "代销仓"}},
                                                                               {7, {"代销仓", ""}},
                                                                               {31, {"生产仓", "总部仓"}},
                                                                               {32, {"生产仓", "总部仓"}}};
    const auto found = warehouses.find(std::abs(document.type));
    document.warehouse = found == warehouses.end() ? "总部仓" : found->second.first;
    document.warehouse2 = found == warehouses.end() ? "" : found->second.second;
    static const char* const codes[] = {"CPU002", "MEM002", "CPF004"};
    document.lines.clear();
    const int first = Below(3);
    for (int i = 0; i <= Below(3); ++i)
        document.lines.push_back({codes[(first + i) % 3], 1.0 + Below(30), 0.25 * (1 + Below(4000))});
    return document;
}

unsigned SeedOfRun() {
    const char* given = std::getenv("JXC_SEED");
    const unsigned seed =
        given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device{}();
    std::cout << "JXC_SEED=" << seed << std::endl;
    return seed;
}

void CompareStock(const StockModel& model, const std::string& from) {
    const Rows rows =
        Conn().Query("select a.*,b.fCpCode from " + from + " Inner Join tJXC_Cp b On a.fCpID=b.fCpID");
    std::map<std::string, size_t> column;
    for (size_t i = 0; i < rows.names.size(); ++i)
        column[LowerCase(rows.names[i])] = i;
    std::map<StockModel::Place, size_t> found;
    for (size_t row = 0; row < rows.Count(); ++row)
        found[{rows.At(row, column["fckname"]).AsText(), rows.At(row, column["fcpcode"]).AsText()}] = row;
    for (const auto& [place, row] : found)
        if (!model.All().contains(place)) {
            ASSERT_NEAR(rows.At(row, column["fkcsl"]).AsDouble(), 0, 1e-9)
                << place.first << " " << place.second;
        }
    for (const auto& [place, stock] : model.All()) {
        if (!found.contains(place)) {
            ASSERT_NEAR(stock.Quantity(), 0, 1e-9) << place.first << " " << place.second;
            ASSERT_NEAR(stock.opening + stock.received, 0, 1e-9) << place.first << " " << place.second;
            continue;
        }
        const auto near = [&, &place = place](const char* name, double expected) {
            ASSERT_NEAR(rows.At(found[place], column[name]).AsDouble(), expected,
                        1e-7 * std::max(1.0, std::fabs(expected)))
                << place.first << " " << place.second << " " << name;
        };
        near("fqcsl", stock.opening), near("fqcje", stock.openingValue), near("frksl", stock.received);
        near("frkje", stock.receivedValue), near("fcksl", stock.issued), near("fckje", stock.issuedValue);
        near("fdksl", stock.moved), near("fpdsl", stock.counted), near("fkcsl", stock.Quantity());
        near("fkcdj", model.Price(place.first, place.second));
        near("fkcje", stock.Quantity() * model.Price(place.first, place.second));
    }
}

} // namespace jxc::test
