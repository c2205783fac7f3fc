#include "session/lookups/kept_index.h"

#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr size_t kMostReadSingly = 2000; // more changes than these: all is read
constexpr double kBehindAll = 1e300;     // asks for the next stamp alone
constexpr std::chrono::seconds kTrustedWithoutLog{60};

// The company that the session's properties name.
std::string CompanyInUse() {
    return std::to_string(session.SQLData) + "\n" + session.UserPath + "\n" + session.Default;
}

} // namespace

const TextIndex& KeptIndex::UpToDate() {
    if (const std::string company = CompanyInUse(); company != company_) {
        company_ = company;
        place_.clear();
        loaded_ = {};
    }
    if (Conn().HasColumn(kChangeLog, "fStamp"))
        FollowLog();
    else
        FollowWithoutLog();
    return index_;
}

void KeptIndex::Load() {
    place_.clear(); // a failure leaves nothing that would be taken for the company's
    index_.Clear();
    TakeRows(Conn().Query(statement_));
}

void KeptIndex::TakeRows(const Rows& rows) {
    for (size_t row = 0; row < rows.Count(); ++row)
        index_.Set(rows.At(row, 0).AsLong(), {rows.At(row, 1).AsText(), rows.At(row, 2).AsText(),
                                              rows.At(row, 3).AsText(), rows.At(row, 4).AsText()});
}

void KeptIndex::ReadAgain(const std::set<std::int64_t>& keys) {
    const std::vector<std::int64_t> list(keys.begin(), keys.end());
    const Rows rows = Conn().Query(statement_ + " And " + std::string(table_.key) + InKeys(list));
    for (const std::int64_t key : list)
        index_.Remove(key);
    TakeRows(rows);
}

void KeptIndex::FollowLog() {
    const NotedChanges changes = Conn().ChangesSince(table_, place_.empty() ? kBehindAll : next_);
    std::set<std::int64_t> keys;
    for (const auto& change : changes.changed)
        if (!taken_.contains(change))
            keys.insert(change.first);
    // What changes between this question and the reading of the rows is told, and read, once more.
    const bool another = place_.empty() || changes.place != place_ || changes.next < next_;
    if (another || keys.size() > kMostReadSingly) {
        Load();
        place_ = changes.place;
    } else if (!keys.empty()) {
        ReadAgain(keys);
    }
    next_ = changes.next;
    taken_.clear();
    for (const auto& change : changes.changed)
        if (change.second >= next_)
            taken_.insert(change);
}

void KeptIndex::FollowWithoutLog() {
    const auto now = std::chrono::steady_clock::now();
    const auto rows = static_cast<size_t>(
        Conn().Query("Select COUNT(*) From " + std::string(table_.table)).At(0, 0).AsLong());
    if (loaded_ != decltype(loaded_)() && rows == rows_ && now - loaded_ < kTrustedWithoutLog)
        return;
    Load();
    rows_ = rows;
    loaded_ = now;
}

} // namespace jxc
