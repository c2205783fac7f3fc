#include <sqlite3.h>

#include <stdexcept>

#include "bench/floor.h"
#include "bench/floor_procedure.h"

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
    explicit SqliteApi(const std::string& file) {
        if (sqlite3_open_v2(file.c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) !=
                SQLITE_OK ||
            sqlite3_exec(db_, kSettings, nullptr, nullptr, nullptr) != SQLITE_OK)
            Fail();
        for (const char* text : kStepTexts)
            steps_.push_back(Prepared(text));
        begin_ = Prepared("begin immediate");
        commit_ = Prepared("commit");
    }
    ~SqliteApi() {
        for (sqlite3_stmt* statement : steps_)
            sqlite3_finalize(statement);
        sqlite3_finalize(begin_);
        sqlite3_finalize(commit_);
        sqlite3_close(db_);
    }
    SqliteApi(const SqliteApi&) = delete;
    SqliteApi& operator=(const SqliteApi&) = delete;

    void Begin() { Finish(begin_); }
    void Commit() { Finish(commit_); }

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
    [[noreturn]] void Fail() const { throw std::runtime_error(sqlite3_errmsg(db_)); }

    sqlite3_stmt* Prepared(const char* text) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v3(db_, text, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
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
        sqlite3_stmt* statement = steps_[static_cast<size_t>(step)];
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

    sqlite3* db_ = nullptr;
    std::vector<sqlite3_stmt*> steps_;
    sqlite3_stmt* begin_ = nullptr;
    sqlite3_stmt* commit_ = nullptr;
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
