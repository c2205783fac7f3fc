// Two companies that hold the same: one for the system, one for the floor. After the same receipts they must
// again hold the same, which shows that both did the same work.
#pragma once

#include <string>

#include "bench/options.h"
#include "bench/receipt.h"

namespace jxc::bench {

enum class EngineKind { Sqlite, Postgres };

class CompanyPair {
  public:
    // Makes the sample company, approving on saving and with a history of so many documents, and its copy.
    // Throws DatabaseError.
    CompanyPair(const Options& options, EngineKind kind, int documents);
    ~CompanyPair(); // removes both
    CompanyPair(const CompanyPair&) = delete;
    CompanyPair& operator=(const CompanyPair&) = delete;

    // As the command line names companies.
    const std::string& System() const { return system_; }
    const std::string& Floor() const { return floor_; }
    const Trade& Master() const { return trade_; }

    // Where the two differ in what has been written since FirstDay(); "" when they are equal.
    std::string Difference() const;

  private:
    void Copy() const;
    void Remove() const;

    Options options_;
    EngineKind kind_;
    std::string systemName_, floorName_; // of the files or databases
    std::string system_, floor_;
    Trade trade_;
};

} // namespace jxc::bench
