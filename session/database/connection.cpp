#include "session/database/connection.h"

#include "session/database/parser.h"
#include "session/database/statement_cache.h"

namespace jxc {

namespace {

constexpr size_t kCachedStatements = 500;
// Keys of lifted texts begin with a word, so these never meet them.
constexpr char kEditRowsMark = '\t';

std::vector<ParameterType> TypesOf(const std::vector<Parameter>& parameters) {
    std::vector<ParameterType> types;
    for (const Parameter& parameter : parameters)
        types.push_back(parameter.type);
    return types;
}

Translation Translate(const Engine& engine, std::string_view sql, LiftedStatement& lifted, Purpose purpose) {
    std::vector<Token> tokens;
    Lift(sql, lifted, &tokens);
    StatementTree tree = ParseStatement(tokens);
    return engine.NewWriter()->Write(tree, purpose);
}

} // namespace

Connection::Connection() = default;

Connection::~Connection() {
    Close();
}

void Connection::Open(std::unique_ptr<Engine> engine) {
    Close();
    engine_ = std::move(engine);
    cache_ = std::make_unique<StatementCache>(kCachedStatements);
}

void Connection::Close() {
    RollbackTrans();
    cache_.reset();
    engine_.reset();
}

bool Connection::IsOpen() const {
    return engine_ != nullptr;
}

bool Connection::InTransaction() const {
    return inTransaction_;
}

void Connection::SetObserver(std::function<void(std::string_view)> observer) {
    observer_ = std::move(observer);
}

void Connection::Announce(std::string_view sql) {
    if (observer_)
        observer_(sql);
}

Engine& Connection::EngineInUse() {
    if (!engine_)
        throw DatabaseError("数据库尚未连接。");
    return *engine_;
}

void Connection::RequireUsable() const {
    if (!engine_)
        throw DatabaseError("数据库尚未连接。");
    if (failure_)
        throw DatabaseError(*failure_);
}

void Connection::NoteFailure(const DatabaseError& error) {
    if (!inTransaction_ || failure_)
        return;
    const int late = engine_->DepthOfFailure();
    failureDepth_ = late >= 0 ? late : depth_;
    failure_ = error.what();
}

template <typename Work>
auto Connection::Guarded(std::string_view sql, Work work) {
    RequireUsable();
    try {
        Announce(sql);
        return work();
    } catch (const DatabaseError& error) {
        NoteFailure(error);
        throw;
    }
}

CachedStatement& Connection::Prepared(std::string_view sql, bool editRows) {
    LiftedStatement& lifted = cache_->lifted;
    Lift(sql, lifted);
    if (editRows)
        lifted.key += kEditRowsMark;
    if (CachedStatement* known = cache_->Find(lifted.key))
        return *known;
    const std::string key = lifted.key;
    Translation translation = Translate(*engine_, sql, lifted, editRows ? Purpose::EditRows : Purpose::Run);
    CachedStatement statement;
    statement.handle = engine_->Prepare(translation.sql, TypesOf(translation.parameters));
    statement.parameters = std::move(translation.parameters);
    statement.givesRows = translation.givesRows;
    statement.changesSchema = translation.changesSchema;
    statement.table = std::move(translation.table);
    return cache_->Add(key, std::move(statement));
}

std::span<const Value> Connection::Bound(const CachedStatement& statement) {
    std::vector<Value>& values = cache_->values;
    values.clear();
    for (const Parameter& parameter : statement.parameters)
        values.push_back(BindParameter(parameter, cache_->lifted.literals));
    return values;
}

void Connection::Execute(std::string_view sql) {
    Guarded(sql, [&] {
        CachedStatement& statement = Prepared(sql, false);
        if (statement.givesRows)
            throw DatabaseError("SQL 语句有误：Select 语句不能这样执行。");
        engine_->Execute(*statement.handle, Bound(statement));
        if (statement.changesSchema) {
            engine_->Flush();
            cache_->Clear(); // "select *" of the table has one column more
        }
    });
}

Rows Connection::Query(std::string_view sql) {
    return Guarded(sql, [&] {
        CachedStatement& statement = Prepared(sql, false);
        if (!statement.givesRows)
            throw DatabaseError("SQL 语句有误：这里需要 Select 语句。");
        return engine_->Query(*statement.handle, Bound(statement));
    });
}

Rows Connection::QueryRows(std::string_view sql, std::string& table) {
    return Guarded(sql, [&] {
        CachedStatement& statement = Prepared(sql, true);
        table = statement.table;
        return engine_->Query(*statement.handle, Bound(statement));
    });
}

void Connection::RunOnRow(const std::string& text, std::span<const Value> values,
                          const std::shared_ptr<Value>& address) {
    Guarded(text, [&] {
        // The key of a lifted statement ends in a blank, these texts never do.
        CachedStatement* statement = cache_->Find(text);
        if (!statement) {
            CachedStatement prepared;
            prepared.handle = engine_->Prepare(text, {});
            statement = &cache_->Add(text, std::move(prepared));
        }
        if (address)
            engine_->Change(*statement->handle, values, address);
        else
            engine_->Execute(*statement->handle, values);
    });
}

void Connection::Flush() {
    RequireUsable();
    try {
        engine_->Flush();
    } catch (const DatabaseError& error) {
        NoteFailure(error);
        throw;
    }
}

void Connection::BeginTrans() {
    RequireUsable();
    if (inTransaction_)
        throw DatabaseError("事务尚未结束，不能再开始另一事务。");
    Announce("begin");
    engine_->Begin();
    inTransaction_ = true;
}

void Connection::CommitTrans() {
    if (!inTransaction_)
        throw DatabaseError("没有可以提交的事务。");
    Guarded("commit", [&] { engine_->Commit(); });
    inTransaction_ = false;
}

void Connection::RollbackTrans() noexcept {
    if (!inTransaction_)
        return;
    engine_->Rollback();
    inTransaction_ = false;
    depth_ = 0;
    failure_.reset();
}

void Connection::Tolerantly(const std::function<void()>& work) {
    if (!inTransaction_) {
        work();
        return;
    }
    RequireUsable();
    const int depth = ++depth_;
    const auto undo = [&] {
        depth_ = depth - 1;
        if (inTransaction_ && (!failure_ || failureDepth_ >= depth)) {
            failure_.reset();
            engine_->RollbackTo(depth);
        }
    };
    try {
        engine_->Savepoint(depth);
        work();
        if (failure_) // swallowed inside
            throw DatabaseError(*failure_);
        engine_->Release(depth);
        depth_ = depth - 1;
    } catch (const DatabaseError& error) {
        NoteFailure(error);
        undo();
        throw;
    } catch (...) {
        undo();
        throw;
    }
}

std::vector<std::string> Connection::Plan(std::string_view sql) {
    RequireUsable();
    LiftedStatement lifted;
    const Translation translation = Translate(*engine_, sql, lifted, Purpose::Run);
    std::vector<Value> values;
    for (const Parameter& parameter : translation.parameters)
        values.push_back(BindParameter(parameter, lifted.literals));
    return engine_->Plan(translation.sql, TypesOf(translation.parameters), values);
}

} // namespace jxc
