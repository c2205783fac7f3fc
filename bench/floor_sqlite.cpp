#include <stdexcept>

#include "bench/floor.h"
#include "bench/floor_procedure.h"
#include "database/sqlite_handles.h"

namespace jxc::bench {

namespace {

class SqliteRow {
  public:
    explicit SqliteRow(sqlite3_stmt* statement) : statement_(statement) {}
    double Number(int column) const { return sqlite3_column_double(statement_, column); }
    std::int64_t Whole(int column) const { return sqlite3_column_int64(statement_, column); }
    std::string Text(int column) const {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
        return text ? text : "";
    }

  private:
    sqlite3_stmt* statement_;
};

// The page cache is as large as the system's.
constexpr const char* kSettings = "pragma synchronous = full;"
                                  "pragma temp_store = memory;"
                                  "pragma cache_size = -65536;"
                                  "pragma journal_mode = wal";

class SqliteApi {
  public:
    explicit SqliteApi(const std::string& file)
        : db_(OpenSqlite(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX)) {
        if (sqlite3_errcode(db_.get()) != SQLITE_OK ||
            sqlite3_exec(db_.get(), kSettings, nullptr, nullptr, nullptr) != SQLITE_OK)
            Fail();
        for (const char* text : kStepTexts)
            steps_.push_back(Prepared(text));
        begin_ = Prepared("begin immediate");
        commit_ = Prepared("commit");
    }

    void Begin() { Finish(begin_.get()); }
    void Commit() { Finish(commit_.get()); }

    template <typename... Values>
    void Run(Step step, const Values&... values) {
        Finish(Bound(step, values...));
    }

    template <typename OnRow, typename... Values>
    void Read(Step step, const OnRow& onRow, const Values&... values) {
        sqlite3_stmt* statement = Bound(step, values...);
        while (HasRow(statement))
            onRow(SqliteRow(statement));
        sqlite3_reset(statement);
        ++count_;
    }

    size_t StatementCount() const { return count_; }

  private:
    [[noreturn]] void Fail() const { throw std::runtime_error(sqlite3_errmsg(db_.get())); }

    SqliteStatementHandle Prepared(const char* text) {
        SqliteStatementHandle statement = PrepareSqlite(db_.get(), text, SQLITE_PREPARE_PERSISTENT);
        if (!statement)
            Fail();
        return statement;
    }

    static void Bind(sqlite3_stmt* statement, int at, std::int64_t value) {
        sqlite3_bind_int64(statement, at, value);
    }
    static void Bind(sqlite3_stmt* statement, int at, double value) {
        sqlite3_bind_double(statement, at, value);
    }
    static void Bind(sqlite3_stmt* statement, int at, const std::string& value) {
        sqlite3_bind_text(statement, at, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    }

    template <typename... Values>
    sqlite3_stmt* Bound(Step step, const Values&... values) {
        sqlite3_stmt* statement = steps_[static_cast<size_t>(step)].get();
        int at = 0;
        (Bind(statement, ++at, values), ...);
        return statement;
    }

    bool HasRow(sqlite3_stmt* statement) {
        const int result = sqlite3_step(statement);
        if (result != SQLITE_ROW && result != SQLITE_DONE)
            Fail();
        return result == SQLITE_ROW;
    }

    void Finish(sqlite3_stmt* statement) {
        HasRow(statement);
        sqlite3_reset(statement);
        ++count_;
    }

    SqliteHandle db_; // behind it, what must go first
    std::vector<SqliteStatementHandle> steps_;
    SqliteStatementHandle begin_, commit_;
    size_t count_ = 0;
};

class SqliteFloor : public Floor {
  public:
    SqliteFloor(const std::string& file, const Trade& trade) : api_(file), trade_(trade) {}
    void SaveAndApprove(const Receipt& receipt) override { SaveAndApproveOn(api_, trade_, receipt); }
    size_t StatementCount() const override { return api_.StatementCount(); }
    std::string EngineVersion() const override { return std::string("SQLite ") + sqlite3_libversion(); }

  private:
    SqliteApi api_;
    Trade trade_;
};

} // namespace

std::unique_ptr<Floor> NewSqliteFloor(const std::string& file, const Trade& trade) {
    return std::make_unique<SqliteFloor>(file, trade);
}

} // namespace jxc::bench
