#include "database/postgres_engine.h"

#include "base/text.h"
#include "database/postgres_values.h"
#include "database/postgres_writer.h"

namespace jxc {

namespace {

// So many statements are sent ahead at most: their results wait in the server's and our buffers.
constexpr size_t kSentAhead = 20000;
// The lock that a company's writers share: an arbitrary number, the same for all.
constexpr const char* kWriterLock = "select pg_advisory_xact_lock(7400631)";
constexpr const char* kResultChanged =
    "0A000"; // a prepared "select *" of a table that has got a column since

// The comment that tells the version of a company's tables, behind this its number.
const std::string kVersionComment = "lzJxc company version ";

int VersionTold(const std::string& comment) {
    return comment.starts_with(kVersionComment)
               ? static_cast<int>(Val(comment.substr(kVersionComment.size())))
               : 0;
}

Oid TypeOf(ParameterType type) {
    switch (type) {
    case ParameterType::Integer:
        return kInt4;
    case ParameterType::Decimal:
        return kNumeric;
    case ParameterType::Date:
        return kTimestamp;
    case ParameterType::Text:
        break;
    }
    return kUntyped;
}

std::vector<Oid> TypesOf(const std::vector<ParameterType>& types) {
    std::vector<Oid> oids;
    for (ParameterType type : types)
        oids.push_back(TypeOf(type));
    return oids;
}

std::string Numbered(size_t number) {
    return std::string("$").append(std::to_string(number));
}

// Where a row stands now. Every change leaves the row's next place at the one before, and the server walks
// along them.
std::string PlaceOf(const std::string& table, const std::string& address, bool follow) {
    return follow ? "(select currtid2('" + table + "', " + address + "))" : address;
}

} // namespace

class PostgresStatement : public EngineStatement {
  public:
    PostgresStatement(PostgresEngine& engine, std::shared_ptr<ServerStatement> statement)
        : engine_(engine), statement_(std::move(statement)) {}
    ~PostgresStatement() override { Retire(); }

    const std::shared_ptr<ServerStatement>& OnServer() const { return statement_; }

    // To be prepared anew, under another name.
    void Renew() {
        Retire();
        statement_ = engine_.NewStatement(statement_->sql, statement_->types);
    }

  private:
    void Retire() {
        if (statement_->state != ServerStatement::State::Unknown)
            engine_.retired_.push_back(statement_->name);
    }

    PostgresEngine& engine_;
    std::shared_ptr<ServerStatement> statement_;
};

namespace {

PostgresStatement& Own(EngineStatement& statement) {
    return static_cast<PostgresStatement&>(statement);
}

} // namespace

PostgresEngine::PostgresEngine(const ServerAddress& address) : line_(address, waiting) {}

std::unique_ptr<StatementWriter> PostgresEngine::NewWriter() const {
    return std::make_unique<PostgresWriter>();
}

std::shared_ptr<ServerStatement> PostgresEngine::NewStatement(const std::string& sql,
                                                              std::vector<Oid> types) {
    auto statement = std::make_shared<ServerStatement>();
    statement->name.append("q").append(std::to_string(++named_));
    statement->sql = sql;
    statement->types = std::move(types);
    return statement;
}

std::unique_ptr<EngineStatement> PostgresEngine::Prepare(const std::string& sql,
                                                         const std::vector<ParameterType>& types) {
    return std::make_unique<PostgresStatement>(*this, NewStatement(sql, TypesOf(types)));
}

// Outside a transaction an earlier failure is over.
void PostgresEngine::StartCall() {
    if (inTransaction_)
        return;
    line_.ForgetFailure();
    DropRetired();
}

void PostgresEngine::EndCall() {
    if (!inTransaction_ || line_.UnsettledCount() >= kSentAhead)
        line_.Settle();
}

void PostgresEngine::DropRetired() {
    if (retired_.empty())
        return;
    for (const std::string& name : retired_)
        line_.SendText("deallocate " + name, {}, {}, 0);
    retired_.clear();
    line_.SettleQuietly();
    line_.ForgetFailure();
}

void PostgresEngine::Execute(EngineStatement& statement, std::span<const Value> values) {
    StartCall();
    line_.Send(Own(statement).OnServer(), values, depth_);
    EndCall();
}

void PostgresEngine::Change(EngineStatement& statement, std::span<const Value> values,
                            const RowAddress& address) {
    StartCall();
    line_.Send(Own(statement).OnServer(), values, depth_, address);
    *address = Value();
    EndCall();
}

Rows PostgresEngine::Query(EngineStatement& statement, std::span<const Value> values) {
    StartCall();
    line_.Send(Own(statement).OnServer(), values, depth_);
    try {
        return line_.Settle();
    } catch (const DatabaseError&) {
        if (line_.StateOfFailure() != kResultChanged)
            throw;
        Own(statement).Renew();
        if (inTransaction_)
            throw;
    }
    line_.ForgetFailure();
    line_.Send(Own(statement).OnServer(), values, depth_);
    return line_.Settle();
}

std::vector<Rows> PostgresEngine::QueryTogether(std::span<const Select> selects) {
    StartCall();
    std::vector<Rows> all(selects.size());
    for (size_t i = 0; i < selects.size(); ++i)
        line_.Send(Own(*selects[i].statement).OnServer(), selects[i].values, depth_, nullptr, &all[i]);
    line_.Settle();
    return all;
}

std::map<std::string, std::set<std::string>> PostgresEngine::Catalogue() {
    StartCall();
    line_.SendText(
        "select c.relname, a.attname from pg_class c join pg_attribute a on a.attrelid = c.oid "
        "where c.relkind in ('r', 'p', 'v') and pg_table_is_visible(c.oid) and a.attnum > 0 and not "
        "a.attisdropped and c.relnamespace <> 'pg_catalog'::regnamespace and "
        "has_table_privilege(c.oid, 'select') "
        "union all select '', obj_description(to_regclass('tjxc_invsys'), 'pg_class')",
        {}, {}, depth_);
    const Rows rows = line_.Settle();
    std::map<std::string, std::set<std::string>> tables;
    for (size_t row = 0; row < rows.Count(); ++row) {
        const std::string table = rows.At(row, 0).AsText();
        if (table.empty())
            version_ = VersionTold(rows.At(row, 1).AsText());
        else
            tables[table].insert(rows.At(row, 1).AsText());
    }
    return tables;
}

int PostgresEngine::Version() {
    if (!version_)
        Catalogue();
    return *version_;
}

void PostgresEngine::SetVersion(int version) {
    ExecuteScript("comment on table tJXC_InvSys is '" + (kVersionComment + std::to_string(version)) + "'");
    version_ = version;
}

std::vector<std::string> PostgresEngine::Plan(const std::string& sql, const std::vector<ParameterType>& types,
                                              std::span<const Value> values) {
    StartCall();
    line_.SendText("explain " + sql, TypesOf(types), values, depth_);
    const Rows rows = line_.Settle();
    std::vector<std::string> steps;
    for (size_t row = 0; row < rows.Count(); ++row)
        steps.push_back(rows.At(row, 0).AsText());
    return steps;
}

void PostgresEngine::Flush() {
    if (line_.HasUnsettled())
        line_.Settle();
}

std::string PostgresEngine::ChangeText(const std::string& table, std::span<const std::string> fields,
                                       std::span<const std::string>, bool follow) const {
    std::string sql = "update " + table;
    const char* separator = " set ";
    size_t number = 0;
    for (const std::string& field : fields) {
        sql.append(separator).append(field).append(" = ").append(Numbered(++number));
        separator = ", ";
    }
    return sql + " where ctid = " + PlaceOf(table, Numbered(number + 1), follow) + " returning ctid";
}

std::string PostgresEngine::DeleteText(const std::string& table, bool follow) const {
    return "delete from " + table + " where ctid = " + PlaceOf(table, "$1", follow) + " returning ctid";
}

std::string PostgresEngine::InsertText(const std::string& table, std::span<const std::string> fields) const {
    std::string columns, values;
    for (size_t i = 0; i < fields.size(); ++i) {
        columns.append(i == 0 ? "" : ", ").append(fields[i]);
        values.append(i == 0 ? "" : ", ").append(Numbered(i + 1));
    }
    return "insert into " + table + " (" + columns + ") values (" + values + ")";
}

// Commands of a transaction are few; each is prepared once.
void PostgresEngine::Command(const std::string& sql, int depth) {
    std::shared_ptr<ServerStatement>& statement = commands_[sql];
    if (!statement)
        statement = NewStatement(sql);
    line_.Send(statement, {}, depth);
}

void PostgresEngine::Begin() {
    StartCall();
    Command("begin", 0);
    Command(kWriterLock, 0);
    inTransaction_ = true;
}

void PostgresEngine::BeginReading() {
    StartCall();
    Command("begin isolation level repeatable read read only", 0);
    inTransaction_ = true;
}

// A transaction that failed answers a commit with a roll-back and no error.
void PostgresEngine::Commit() {
    if (line_.HasUnsettledChanges())
        line_.Settle();
    Command("commit", 0);
    try {
        line_.Settle();
    } catch (const DatabaseError& error) {
        if (line_.IsLost())
            throw CommitUnknown(error.what());
        throw;
    }
    if (line_.LastCommand() != "COMMIT")
        throw DatabaseError("事务已经失败，未能存盘。");
    inTransaction_ = false;
}

void PostgresEngine::Rollback() noexcept {
    inTransaction_ = false;
    depth_ = 0;
    try {
        if (line_.HasUnsettled())
            line_.SettleQuietly();
        line_.ForgetFailure();
        Command("rollback", 0);
        line_.SettleQuietly();
        line_.ForgetFailure();
    } catch (const DatabaseError&) {
        // A lost line has rolled back what it carried.
    }
}

void PostgresEngine::Savepoint(int depth) {
    Command("savepoint s" + std::to_string(depth), depth - 1);
    depth_ = depth;
}

void PostgresEngine::Release(int depth) {
    if (line_.HasUnsettledWork(depth))
        line_.Settle();
    depth_ = depth - 1;
    Command("release s" + std::to_string(depth), depth_);
}

void PostgresEngine::RollbackTo(int depth) {
    if (line_.HasUnsettled())
        line_.SettleQuietly();
    depth_ = depth - 1;
    if (line_.DepthOfFailure() >= 0 && line_.DepthOfFailure() < depth)
        line_.Settle(); // what failed before the savepoint stays a failure
    line_.ForgetFailure();
    Command("rollback to s" + std::to_string(depth), depth_);
    Command("release s" + std::to_string(depth), depth_);
}

std::string PostgresEngine::ColumnDefinition(const FieldDef& field) const {
    const std::string name(field.name);
    switch (field.type) {
    case FieldType::Long:
    case FieldType::Short:
        return name + " integer";
    case FieldType::Double:
        return name + " double precision";
    case FieldType::Money:
        return name + " numeric(19, 4)";
    case FieldType::Date:
        return name + " timestamp";
    case FieldType::Text:
        break;
    }
    return name + " citext collate \"C\"";
}

} // namespace jxc
