// What the stock of the sample company must be: documents added up in memory, one after the other, by plain arithmetic. It
// shares nothing with the program but what a document is.
#pragma once

#include <map>
#include <random>
#include <string>
#include <utility>

#include "tests/support/clerk.h"

namespace jxc::test {

// The counters of a product in a warehouse, as sums since the period began.
struct Stock {
    double opening = 0, openingValue = 0, received = 0, receivedValue = 0, issued = 0, issuedValue = 0,
           moved = 0, counted = 0;
    double Quantity() const { return opening + received - issued + moved + counted; }
    bool operator==(const Stock&) const = default;
};

class StockModel {
  public:
    using Place = std::pair<std::string, std::string>; // warehouse and product code

    // Sign 1 approves the document, -1 takes that back.
    void Post(const DocumentInput& document, int sign);
    // The next period: what there is becomes what it opens with, at its price.
    void Close();

    const std::map<Place, Stock>& All() const { return at_; }
    Stock At(const std::string& warehouse, const std::string& code) const;
    // Of goods opened with and received; without any, the product's cost price.
    double Price(const std::string& warehouse, const std::string& code) const;
    double AccountTotal() const { return account_; }
    // What a customer bought of a product in the period: quantity and value, by card code and product code.
    const std::map<Place, std::pair<double, double>>& Bought() const { return bought_; }

  private:
    void PostLine(const DocumentInput& document, const LineInput& input, int sign);

    std::map<Place, Stock> at_;
    std::map<Place, std::pair<double, double>> bought_;
    double account_ = 0;
};

// Documents of all stock types that make sense on the sample company, one after the other.
class RandomTrade {
  public:
    explicit RandomTrade(unsigned seed) : random_(seed) {}

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
    DocumentInput Document();

  private:
    std::mt19937 random_;
};

// JXC_SEED, or one of chance, which is printed.
unsigned SeedOfRun();

// The counters, prices and values in tJXC_CkTj, or a closed month of tJXC_CkTj_Bak, against the model. A place that has
// not moved may have a row or none.
void CompareStock(const StockModel& model, const std::string& rows = "tJXC_CkTj a");

} // namespace jxc::test
