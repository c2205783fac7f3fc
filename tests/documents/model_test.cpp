// Random documents of all stock types, entered, approved, reversed and deleted in any order, against a naive
// model in memory. After each step stock, prices, accounts and balances must agree. The seed is printed;
// JXC_SEED repeats a run.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>

#include "base/text.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

struct Stock {
    double opening = 0, openingValue = 0, received = 0, receivedValue = 0, issued = 0, issuedValue = 0,
           moved = 0, counted = 0;
    double Quantity() const { return opening + received - issued + moved + counted; }
};

const std::map<std::string, double> kCostPrice{
    {"CPU002", 620}, {"MEM002", 172}, {"CPF004", 6.5}, {"MB001", 365}};

// Stock by warehouse and product, kept by plain addition.
class Model {
  public:
    void Post(const DocumentInput& document, int sign) {
        for (const LineInput& input : document.lines)
            PostLine(document, input, sign);
        if (!document.product.empty())
            at_[{document.warehouse2, document.product}].moved +=
                sign * document.pieces * (document.type == 32 ? -1 : 1);
        account_ += sign * Account(document);
    }
    const std::map<std::pair<std::string, std::string>, Stock>& All() const { return at_; }
    Stock At(const std::string& warehouse, const std::string& code) const {
        const auto found = at_.find({warehouse, code});
        return found == at_.end() ? Stock{} : found->second;
    }
    double Price(const std::string& warehouse, const std::string& code) const {
        const Stock stock = At(warehouse, code);
        const double quantity = stock.opening + stock.received;
        return std::fabs(quantity) < 1e-9 ? kCostPrice.at(code)
                                          : (stock.openingValue + stock.receivedValue) / quantity;
    }
    double AccountTotal() const { return account_; }

  private:
    void PostLine(const DocumentInput& document, const LineInput& input, int sign) {
        Stock& first = at_[{document.warehouse, input.code}];
        const double quantity = sign * (document.type < 0 ? -input.quantity : input.quantity);
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
    // Receipts owe, issues and settlements claim; both enter positive, returns negative.
    static double Account(const DocumentInput& document) {
        const int type = std::abs(document.type);
        if (type != 1 && type != 2 && type != 7)
            return 0;
        double total = 0;
        for (const LineInput& input : document.lines)
            total += (document.type < 0 ? -1 : 1) * RoundDecimal(input.quantity * input.price, 2);
        return total;
    }

    std::map<std::pair<std::string, std::string>, Stock> at_;
    double account_ = 0;
};

class RandomTrade {
  public:
    explicit RandomTrade(unsigned seed) : random_(seed) {}

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    DocumentInput Document() {
        static const int types[] = {0, 1, 1, 1, -1, 2, 2, -2, 3, 4, 6, -6, 7, -7, 31, 32};
        DocumentInput document = TypicalDocument(types[Below(std::size(types))]);
        static const std::map<int, std::pair<const char*, const char*>> warehouses{
            {3, {"总部仓", "零售门市"}},
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

  private:
    std::mt19937 random_;
};

void CompareWithBooks(const Model& model) {
    Rows rows = Conn().Query("select a.*,b.fCpCode from tJXC_CkTj a Inner Join tJXC_Cp b On a.fCpID=b.fCpID");
    std::map<std::string, size_t> column;
    for (size_t i = 0; i < rows.names.size(); ++i)
        column[LowerCase(rows.names[i])] = i;
    std::map<std::pair<std::string, std::string>, size_t> found;
    for (size_t row = 0; row < rows.Count(); ++row)
        found[{rows.At(row, column["fckname"]).AsText(), rows.At(row, column["fcpcode"]).AsText()}] = row;
    for (const auto& [place, stock] : model.All()) {
        ASSERT_TRUE(found.contains(place)) << place.first << " " << place.second;
        const auto field = [&, &place = place](const char* name) {
            return rows.At(found[place], column[name]).AsDouble();
        };
        const auto near = [&, &place = place](const char* name, double expected) {
            ASSERT_NEAR(field(name), expected, 1e-7 * std::max(1.0, std::fabs(expected)))
                << place.first << " " << place.second << " " << name;
        };
        near("fqcsl", stock.opening), near("fqcje", stock.openingValue), near("frksl", stock.received);
        near("frkje", stock.receivedValue), near("fcksl", stock.issued), near("fckje", stock.issuedValue);
        near("fdksl", stock.moved), near("fpdsl", stock.counted), near("fkcsl", stock.Quantity());
        near("fkcdj", model.Price(place.first, place.second));
        near("fkcje", stock.Quantity() * model.Price(place.first, place.second));
    }
    ASSERT_NEAR(Val(One("select sum(fMoneyA) from tAccountDetail")), model.AccountTotal(), 1e-6);
}

class ModelOfStock : public OnOpenCompany {};
ON_BOTH_ENGINES(ModelOfStock);

TEST_P(ModelOfStock, AgreesAfterEveryStep) {
    const char* given = std::getenv("JXC_SEED");
    const unsigned seed =
        given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device{}();
    std::cout << "JXC_SEED=" << seed << std::endl;
    SCOPED_TRACE("JXC_SEED=" + std::to_string(seed));
    RandomTrade trade(seed);
    Model model;
    std::vector<std::pair<DocumentInput, int>> approved;
    for (int step = 0; step < 60; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        if (!approved.empty() && trade.Below(4) == 0) {
            const size_t at = static_cast<size_t>(trade.Below(static_cast<int>(approved.size())));
            const auto [document, key] = approved[at];
            ASSERT_TRUE(clerk->Reverse(document.type, key)) << clerk->LastBox();
            model.Post(document, -1);
            ASSERT_TRUE(clerk->Delete(document.type, key)) << clerk->LastBox();
            approved.erase(approved.begin() + static_cast<long>(at));
        } else {
            DocumentInput document = trade.Document();
            if (document.type == 4) // the clerk types counts, the model wants differences
                for (LineInput& input : document.lines)
                    input.quantity += model.At(document.warehouse, input.code).Quantity();
            const int key = clerk->Save(document);
            ASSERT_GT(key, 0) << "type " << document.type << ": " << clerk->LastBox();
            ASSERT_TRUE(clerk->Approve(document.type, key)) << clerk->LastBox();
            if (document.type == 4)
                for (LineInput& input : document.lines)
                    input.quantity -= model.At(document.warehouse, input.code).Quantity();
            if (!document.product.empty())
                document.pieces = 2;
            model.Post(document, 1);
            approved.emplace_back(document, key);
        }
        CompareWithBooks(model);
        if (HasFatalFailure())
            return;
    }
}

} // namespace

} // namespace jxc::test
