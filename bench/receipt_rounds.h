// The measurement on one engine. Each round writes one day's receipts four times: by the system and by the
// floor, into an empty book and into a full one. The four blocks of a round follow each other closely and in
// changing order, so what slows the machine down for a while touches all of them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bench/company_pair.h"
#include "bench/entry_road.h"
#include "bench/floor.h"

namespace jxc::bench {

// Documents per second, a figure for each round.
struct Rates {
    std::vector<double> system, floor;
    double systemStatements = 0, floorStatements = 0; // for one document
};

// A book that was empty or full at the start, with both writers.
class Book {
  public:
    Book(const Options& options, EngineKind kind, int documents);

    // Lets both write some receipts that count for nothing but the number of statements.
    void WarmUp();
    void WriteBySystem(int day);
    void WriteByFloor(int day);

    const Rates& Measured() const { return rates_; }
    std::string EngineVersion() const { return floor_->EngineVersion(); }
    // Where system and floor have not written the same; "" when they have.
    std::string Difference() const { return companies_.Difference(); }

  private:
    std::vector<Receipt> ReceiptsOfDay(int day, int count) const;

    int documents_; // in a block
    CompanyPair companies_;
    EntryRoad system_;
    std::unique_ptr<Floor> floor_;
    Rates rates_;
};

class ReceiptRounds {
  public:
    // Makes and fills the companies, which takes a while, and warms up. Throws std::runtime_error.
    ReceiptRounds(const Options& options, EngineKind kind);

    // The seconds that the system needed for its block on the empty book.
    double WriteRound();

    const Book& Empty() const { return empty_; }
    const Book& Full() const { return full_; }

  private:
    int documents_;
    int day_ = 0; // the warm-up's
    Book empty_;
    Book full_;
};

} // namespace jxc::bench
