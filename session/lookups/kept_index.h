// An index of a table of the open company that follows what anybody changes in it. It outlives the connection, which is
// opened for each call of a host: the next call to the same company reads what has changed since.
#pragma once

#include <chrono>
#include <functional>
#include <set>
#include <string>
#include <utility>

#include "database/change_log.h"
#include "database/connection.h"
#include "session/lookups/text_index.h"

namespace jxc {

class KeptIndex {
  public:
    // `statement` gives key, code, bar code, name and specification of the rows to be found, in this order; it ends in
    // a condition, to which one on the keys is added.
    KeptIndex(const NotedTable& table, std::string statement)
        : table_(table), statement_(std::move(statement)) {}

    // The index as the company stands now. One small select where nothing has changed; the changed rows alone are
    // read again, all of them the first time. A user who may not read the log of changes gets an index that follows
    // the number of rows at once, and all else after a minute.
    const TextIndex& UpToDate();

  private:
    void Load();
    void ReadAgain(const std::set<std::int64_t>& keys);
    void TakeRows(const Rows& rows);
    void FollowLog();
    void FollowWithoutLog();

    const NotedTable& table_;
    const std::string statement_;
    TextIndex index_;
    std::string company_, place_; // of which the index is
    double next_ = 0;
    std::set<std::pair<std::int64_t, double>> taken_; // of the changes that will be told again
    size_t rows_ = 0;                                 // without a log: of the table when it was loaded
    std::chrono::steady_clock::time_point loaded_;
};

} // namespace jxc
