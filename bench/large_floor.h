// The floor of large documents on SQLite: save, approval and reversal of receipts, issues, transfers and
// assemblies, with prepared statements and the rows that they need, row by row, every commit on disk.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "database/sqlite_handles.h"

namespace jxc::bench {

struct LargeLine {
    std::int64_t product;
    double quantity;
    double price;
};

struct LargeDocument {
    int type = 1; // 1, 2, 3 or 31
    std::string number;
    std::string date;
    std::string warehouse;
    std::string warehouse2;
    std::int64_t customer = 0;
    std::int64_t finishedProduct = 0;
    std::vector<LargeLine> lines;
};

class LargeFloor {
  public:
    explicit LargeFloor(const std::string& file); // throws std::runtime_error
    ~LargeFloor();
    LargeFloor(const LargeFloor&) = delete;
    LargeFloor& operator=(const LargeFloor&) = delete;

    // The document's key.
    std::int64_t Save(const LargeDocument& document);
    // Approves, or with `reversal` takes back.
    void Approve(const LargeDocument& document, std::int64_t key, bool reversal);

  private:
    class Statements;
    void PostRow(const LargeDocument& document, sqlite3_stmt* row, bool reversal);
    void PostPrices(const LargeDocument& document, std::int64_t key, bool reversal);
    void PostAccount(const LargeDocument& document, bool reversal);

    SqliteHandle db_; // behind it, what must go first
    std::unique_ptr<Statements> statements_;
};

} // namespace jxc::bench
