#include "database/sqlite_engine.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <thread>
#include <utility>

#include "database/sqlite_content.h"
#include "database/sqlite_functions.h"
#include "database/sqlite_writer.h"

namespace jxc {

namespace {

// The person who waited for another writer gave up.
thread_local bool gaveUp = false;

// Another writer is at work: another try after an instant, until the time or the person's patience is over.
int WaitForWriter(void* waiting, int tries) {
    constexpr std::chrono::milliseconds kPause{20}, kMost{30000};
    const auto waited = tries * kPause;
    gaveUp = !static_cast<Waiting*>(waiting)->GoOn(waited);
    if (gaveUp || waited >= kMost)
        return 0;
    std::this_thread::sleep_for(kPause);
    return 1;
}

[[noreturn]] void Fail(sqlite3* db) {
    switch (sqlite3_errcode(db)) {
    case SQLITE_INTERRUPT:
        throw DatabaseError(kGaveUpWaiting);
    case SQLITE_BUSY:
        throw DatabaseError(std::exchange(gaveUp, false) ? kGaveUpWaiting
                                                         : "数据库正被其他用户写入，等待超时。");
    case SQLITE_NOTADB:
        throw DatabaseError("该文件不是数据库，或者已经损坏。");
    case SQLITE_FULL:
        throw DatabaseError("磁盘空间不足，数据未能写入。");
    case SQLITE_READONLY:
        throw DatabaseError("数据库文件是只读的。");
    default:
        throw DatabaseError(std::string("数据库错误：") + sqlite3_errmsg(db));
    }
}

class SqliteStatement : public EngineStatement {
  public:
    SqliteStatement(sqlite3* db, const std::string& sql)
        : db_(db), handle_(PrepareSqlite(db, sql, SQLITE_PREPARE_PERSISTENT)), statement_(handle_.get()) {
        if (!handle_)
            Fail(db);
    }

    void Run(std::span<const Value> values) {
        const Reset reset{statement_};
        Bind(values);
        while (Step()) {
        }
    }

    Rows Read(std::span<const Value> values) {
        const Reset reset{statement_};
        Bind(values);
        Rows rows;
        rows.cells.reserve(cellsBefore_);
        while (Step()) {
            const int columns = sqlite3_column_count(statement_);
            for (int i = 0; i < columns; ++i)
                AddCell(rows.cells, i);
        }
        cellsBefore_ = std::min<size_t>(rows.cells.size(), 1 << 17);
        // Behind the first step: a statement that had to be prepared again may have other columns.
        const int columns = sqlite3_column_count(statement_);
        rows.names.reserve(static_cast<size_t>(columns));
        for (int i = 0; i < columns; ++i)
            rows.names.emplace_back(sqlite3_column_name(statement_, i));
        return rows;
    }

  private:
    // An open statement blocks changes of the schema and the next use of itself.
    struct Reset {
        sqlite3_stmt* statement;
        ~Reset() { sqlite3_reset(statement); }
    };

    bool Step() {
        switch (sqlite3_step(statement_)) {
        case SQLITE_ROW:
            return true;
        case SQLITE_DONE:
            return false;
        default:
            Fail(db_);
        }
    }

    // The engine reads the texts where they lie until the statement is reset.
    void Bind(std::span<const Value> values) {
        for (size_t i = 0; i < values.size(); ++i) {
            const int at = static_cast<int>(i) + 1;
            const Value& value = values[i];
            if (value.IsText()) {
                const std::string& text = value.Text();
                sqlite3_bind_text(statement_, at, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
            } else if (value.IsLong()) {
                sqlite3_bind_int64(statement_, at, value.AsLong());
            } else if (value.IsDouble()) {
                sqlite3_bind_double(statement_, at, value.AsDouble());
            } else {
                sqlite3_bind_null(statement_, at);
            }
        }
    }

    void AddCell(std::vector<Value>& cells, int column) const {
        switch (sqlite3_column_type(statement_, column)) {
        case SQLITE_INTEGER:
            cells.emplace_back(static_cast<std::int64_t>(sqlite3_column_int64(statement_, column)));
            break;
        case SQLITE_FLOAT:
            cells.emplace_back(sqlite3_column_double(statement_, column));
            break;
        case SQLITE_NULL:
            cells.emplace_back();
            break;
        default: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
            cells.emplace_back(
                std::string_view(text, static_cast<size_t>(sqlite3_column_bytes(statement_, column))));
        }
        }
    }

    sqlite3* db_;
    SqliteStatementHandle handle_;
    sqlite3_stmt* statement_; // its own
    size_t cellsBefore_ = 0;  // of the last result: the next one is mostly as large
};

SqliteStatement& Own(EngineStatement& statement) {
    return static_cast<SqliteStatement&>(statement);
}

// The log and its index take over the file's mode.
void CreatePrivateFile(const std::string& path) {
    const int file = open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0600);
    if (file < 0)
        throw DatabaseError("不能创建数据库文件 " + path + "：" + std::strerror(errno));
    close(file);
}

// A path as the engine's addresses write it.
std::string AsUri(const std::string& path) {
    std::string uri = "file:";
    for (const char c : path)
        uri.append(c == '?' ? "%3f" : c == '#' ? "%23" : c == '%' ? "%25" : std::string(1, c));
    return uri;
}

constexpr std::int64_t kApplicationId = 0x6c7a4a58; // "lzJX"
constexpr const char* kSettings = "pragma synchronous = full;"
                                  "pragma temp_store = file;"
                                  "pragma cache_size = -65536;";

} // namespace

SqliteEngine::SqliteEngine(const std::string& path, SqliteFile how) {
    if (how == SqliteFile::Create)
        CreatePrivateFile(path);
    if (how == SqliteFile::Read)
        OpenToRead(path);
    else
        OpenFile(path, SQLITE_OPEN_READWRITE);
    sqlite3_busy_handler(db_.get(), WaitForWriter, &waiting);
    constexpr int kSteps = 100'000; // of its virtual machine: some milliseconds
    sqlite3_progress_handler(db_.get(), kSteps, WhileRunning, this);
    ExecuteScript(kSettings);
    if (how == SqliteFile::Read)
        ExecuteScript("pragma query_only = on");
    AddSqliteFunctions(db_.get());
}

void SqliteEngine::OpenFile(const std::string& path, int flags) {
    db_.reset(); // the other one's locks must not stand in the way
    db_ = OpenSqlite(path, flags | SQLITE_OPEN_NOMUTEX);
    if (sqlite3_errcode(db_.get()) != SQLITE_OK)
        throw DatabaseError("不能打开数据库文件 " + path + "：" + sqlite3_errmsg(db_.get()));
}

// A log that others left needs a writable folder to be read. A file that nobody can write, without a log, is
// read as it lies.
void SqliteEngine::OpenToRead(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::absolute(path).parent_path();
    if (access(path.c_str(), W_OK) == 0 && access(folder.c_str(), W_OK) == 0)
        return OpenFile(path, SQLITE_OPEN_READWRITE);
    OpenFile(path, SQLITE_OPEN_READONLY);
    std::error_code absent;
    const auto logged = std::filesystem::file_size(path + "-wal", absent);
    if ((!absent && logged > 0) ||
        sqlite3_exec(db_.get(), "select count(*) from sqlite_master", nullptr, nullptr, nullptr) == SQLITE_OK)
        return;
    OpenFile(AsUri(path) + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

std::unique_ptr<StatementWriter> SqliteEngine::NewWriter() const {
    return std::make_unique<SqliteWriter>();
}

std::unique_ptr<EngineStatement> SqliteEngine::Prepare(const std::string& sql,
                                                       const std::vector<ParameterType>&) {
    return std::make_unique<SqliteStatement>(db_.get(), sql);
}

// A statement over a whole year's lines takes its time: who waits is told every so often, as by a server.
int SqliteEngine::WhileRunning(void* engine) {
    constexpr std::chrono::milliseconds kBetween{100};
    auto& self = *static_cast<SqliteEngine*>(engine);
    const auto now = std::chrono::steady_clock::now();
    if (now < self.tellNext_)
        return 0;
    self.tellNext_ = now + kBetween;
    const auto waited = std::chrono::duration_cast<std::chrono::milliseconds>(now - self.begun_);
    return self.waiting.GoOn(waited) ? 0 : 1;
}

void SqliteEngine::Execute(EngineStatement& statement, std::span<const Value> values) {
    begun_ = std::chrono::steady_clock::now();
    Own(statement).Run(values);
}

Rows SqliteEngine::Query(EngineStatement& statement, std::span<const Value> values) {
    begun_ = std::chrono::steady_clock::now();
    return Own(statement).Read(values);
}

std::vector<std::string> SqliteEngine::Plan(const std::string& sql, const std::vector<ParameterType>&,
                                            std::span<const Value> values) {
    const Rows rows = SqliteStatement(db_.get(), "explain query plan " + sql).Read(values);
    std::vector<std::string> steps;
    for (size_t row = 0; row < rows.Count(); ++row)
        steps.push_back(rows.At(row, 3).AsText());
    return steps;
}

void SqliteEngine::Change(EngineStatement& statement, std::span<const Value> values, const RowAddress&) {
    Own(statement).Run(values);
    if (sqlite3_changes(db_.get()) == 0)
        throw ConflictError("该记录已被其他用户修改或删除。");
}

std::string SqliteEngine::ChangeText(const std::string& table, std::span<const std::string> fields,
                                     std::span<const std::string> unchanged, bool) const {
    std::string sql = "update " + table;
    const char* separator = " set ";
    for (const std::string& field : fields) {
        sql.append(separator).append(field).append(" = ?");
        separator = ", ";
    }
    separator = " where ";
    for (const std::string& field : unchanged) {
        sql.append(separator).append(field).append(" is ?");
        separator = " and ";
    }
    return sql + separator + "rowid = ?";
}

std::string SqliteEngine::DeleteText(const std::string& table, bool) const {
    return "delete from " + table + " where rowid = ?";
}

std::string SqliteEngine::InsertText(const std::string& table, std::span<const std::string> fields) const {
    std::string columns, values;
    for (const std::string& field : fields) {
        columns.append(columns.empty() ? "" : ", ").append(field);
        values.append(values.empty() ? "?" : ", ?");
    }
    return "insert into " + table + " (" + columns + ") values (" + values + ")";
}

void SqliteEngine::BeginReading() {
    Command("begin");
}

void SqliteEngine::Begin() {
    Command("begin immediate");
}

void SqliteEngine::Commit() {
    Command("commit");
}

// Some failures, such as a full disk, have rolled the transaction back already.
void SqliteEngine::Rollback() noexcept {
    if (sqlite3_get_autocommit(db_.get()))
        return;
    try {
        Command("rollback");
    } catch (const DatabaseError&) {
        // Without a commit nothing of the transaction stays.
    }
}

void SqliteEngine::Command(const std::string& sql) {
    std::unique_ptr<EngineStatement>& command = commands_[sql];
    if (!command)
        command = std::make_unique<SqliteStatement>(db_.get(), sql);
    Own(*command).Run({});
}

void SqliteEngine::Savepoint(int depth) {
    Command("savepoint s" + std::to_string(depth));
}

void SqliteEngine::Release(int depth) {
    Command("release s" + std::to_string(depth));
}

void SqliteEngine::RollbackTo(int depth) {
    Command("rollback to s" + std::to_string(depth));
    Command("release s" + std::to_string(depth));
}

void SqliteEngine::ExecuteScript(const std::string& sql) {
    begun_ = std::chrono::steady_clock::now();
    if (sqlite3_exec(db_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        Fail(db_.get());
}

Rows SqliteEngine::Ask(const std::string& sql) {
    return SqliteStatement(db_.get(), sql).Read({});
}

void SqliteEngine::CopyTo(const std::string& file) {
    CreatePrivateFile(file);
    CopyPages(db_.get(), file);
}

void SqliteEngine::Seal() {
    Unseal();
    ExecuteScript(std::string("create table ") + kSeal + " (content text) strict");
    SqliteStatement(db_.get(), std::string("insert into ") + kSeal + " values (?)")
        .Run(std::vector<Value>{ReadContent(db_.get()).digest});
}

void SqliteEngine::Unseal() {
    ExecuteScript(std::string("drop table if exists ") + kSeal);
}

std::vector<std::string> SqliteEngine::Faults() {
    std::vector<std::string> faults;
    try {
        const Rows found = Ask("pragma integrity_check(100)");
        for (size_t row = 0; row < found.Count(); ++row)
            if (const std::string line = found.At(row, 0).AsText(); line != "ok")
                faults.push_back(line);
        if (!faults.empty())
            return faults;
        SqliteContent content = ReadContent(db_.get());
        faults = std::move(content.strangeTexts);
        const Rows sealed =
            Ask("select name from sqlite_master where name = '" + std::string(kSeal) + "' collate nocase");
        if (sealed.Count() == 0)
            return faults;
        const Rows noted = Ask(std::string("select content from ") + kSeal);
        if (noted.Count() != 1 || noted.At(0, 0).AsText() != content.digest)
            faults.push_back("内容与备份时不同");
    } catch (const DatabaseError& error) {
        faults.push_back(error.what());
    }
    return faults;
}

// Only a file that bears this program's mark counts its versions.
int SqliteEngine::Version() {
    const std::int64_t mark = Ask("pragma application_id").At(0, 0).AsLong();
    if (mark == 0)
        return 0;
    if (mark != kApplicationId)
        throw DatabaseError("该文件是另一个程序的数据库，不是公司帐套。");
    return static_cast<int>(Ask("pragma user_version").At(0, 0).AsLong());
}

void SqliteEngine::SetVersion(int version) {
    ExecuteScript("pragma application_id = " + std::to_string(kApplicationId) +
                  ";pragma user_version = " + std::to_string(version));
}

std::map<std::string, std::set<std::string>> SqliteEngine::Catalogue() {
    const Rows rows =
        SqliteStatement(db_.get(), "select lower(m.name), lower(p.name) from sqlite_master m, "
                                   "pragma_table_info(m.name) p where m.type in ('table', 'view')")
            .Read({});
    std::map<std::string, std::set<std::string>> tables;
    for (size_t row = 0; row < rows.Count(); ++row)
        tables[rows.At(row, 0).AsText()].insert(rows.At(row, 1).AsText());
    return tables;
}

void SqliteEngine::Adopt() {
    Unseal();
    ExecuteScript("pragma journal_mode = wal");
}

std::string SqliteEngine::ColumnDefinition(const FieldDef& field) const {
    const std::string name(field.name);
    switch (field.type) {
    case FieldType::Long:
    case FieldType::Short:
        return name + " integer";
    case FieldType::Double:
    case FieldType::Money:
        return name + " real";
    case FieldType::Date:
        return name + " text";
    case FieldType::Text:
        break;
    }
    return name + " text collate nocase";
}

} // namespace jxc
