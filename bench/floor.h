// The floor: save and approval of a receipt written by hand on an engine's own interface, with the statements
// that the rows need and nothing else. It checks, numbers, writes and locks what the system does, each of the
// two steps in one transaction; it knows one kind of document only.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "bench/receipt.h"

namespace jxc::bench {

class Floor {
  public:
    virtual ~Floor() = default;
    // Throws std::runtime_error.
    virtual void SaveAndApprove(const Receipt& receipt) = 0;
    // Statements run so far, transaction commands among them.
    virtual size_t StatementCount() const = 0;
    virtual std::string EngineVersion() const = 0;
};

// Statements run in process on the file: write-ahead log, every commit on disk (synchronous FULL).
std::unique_ptr<Floor> NewSqliteFloor(const std::string& file, const Trade& trade);
// Each statement is one round trip to the server, every commit on disk (synchronous_commit on).
std::unique_ptr<Floor> NewPostgresFloor(const std::string& uri, const Trade& trade);

} // namespace jxc::bench
