#include "database/connection.h"

#include "base/text.h"
#include "database/parser.h"
#include "database/statement_cache.h"
#include "database/storable_text.h"

namespace jxc {

namespace {

constexpr size_t kCachedStatements = 500;
constexpr size_t kMostParameters = 32766; // the least that an engine takes
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
    Translation translation = engine.NewWriter()->Write(tree, purpose);
    if (translation.parameters.size() > kMostParameters)
        throw DatabaseError("SQL 语句有误：语句含有的数值和文本太多。");
    return translation;
}

} // namespace

Connection::Connection() = default;

Connection::~Connection() {
    Close();
}

void Connection::Open(std::unique_ptr<Engine> engine, std::function<std::unique_ptr<Engine>()> again) {
    Close();
    engine_ = std::move(engine);
    engine_->waiting.SetObserver(waitObserver_);
    again_ = std::move(again);
    cache_ = std::make_unique<StatementCache>(kCachedStatements);
}

void Connection::Close() {
    RollbackTrans();
    ForgetExpected();
    ForgetCatalogue();
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

void Connection::SetWaitObserver(std::function<bool(int)> observer) {
    waitObserver_ = std::move(observer);
    if (engine_)
        engine_->waiting.SetObserver(waitObserver_);
}

void Connection::ConnectAgain() {
    ForgetExpected();
    ForgetCatalogue();
    cache_->Clear(); // statements die before their engine
    try {
        engine_ = again_();
    } catch (const DatabaseError&) {
        std::throw_with_nested(LineLost());
    }
    engine_->waiting.SetObserver(waitObserver_);
    engine_->Flush(); // its settings, before a transaction that may be rolled back
}

void Connection::RequireUsable() {
    if (!engine_)
        throw DatabaseError("数据库尚未连接。");
    if (!inTransaction_ && again_ && engine_->IsLost())
        ConnectAgain();
    if (failure_)
        throw DatabaseError(*failure_);
}

void Connection::NoteFailure(const DatabaseError& error) {
    if (!failure_)
        markOfFailure_ = engine_->MarkOfFailure() >= 0 ? engine_->MarkOfFailure() : mark_;
    if (!inTransaction_ || failure_)
        return;
    const int late = engine_->DepthOfFailure();
    failureDepth_ = late >= 0 ? late : depth_;
    failure_ = error.what();
}

template <typename Work>
auto Connection::Guarded(std::string_view sql, Work work) {
    RequireUsable();
    const WaitingEnds waitingEnds(engine_->waiting);
    try {
        Announce(sql);
        return work();
    } catch (const DatabaseError& error) {
        NoteFailure(error);
        throw;
    }
}

// Nothing hangs on a read outside a transaction: a person whose server was away for a moment need not notice.
template <typename Work>
auto Connection::Reading(Work work) {
    try {
        return work();
    } catch (const LineLost&) {
        if (inTransaction_ || !again_)
            throw;
    }
    return work();
}

CachedStatement& Connection::Prepared(std::string_view sql, bool editRows) {
    LiftedStatement& lifted = cache_->lifted;
    RequireStorable(sql);
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
        ++rowChanges_;
        ForgetWritten(sql);
        if (statement.changesSchema) {
            ForgetCatalogue();
            engine_->Flush();
            cache_->Clear(); // "select *" of the table has one column more
        }
    });
}

Rows Connection::Query(std::string_view sql) {
    return Reading([&] {
        return Guarded(sql, [&] {
            CachedStatement& statement = Prepared(sql, false);
            if (!statement.givesRows)
                throw DatabaseError("SQL 语句有误：这里需要 Select 语句。");
            return Read(sql, statement, false);
        });
    });
}

NotedChanges Connection::ChangesSince(const NotedTable& table, double from) {
    const std::string asked = std::string("Select fID,fStamp From ") + kChangeLog +
                              " Where fKind=" + std::to_string(table.kind) +
                              " And fStamp>=" + NumberText(from);
    return Reading([&] { return Guarded(asked, [&] { return engine_->ChangesSince(table, from); }); });
}

Rows Connection::QueryRows(std::string_view sql, std::string& table) {
    return Reading([&] {
        return Guarded(sql, [&] {
            CachedStatement& statement = Prepared(sql, true);
            table = statement.table;
            return Read(sql, statement, true);
        });
    });
}

Rows Connection::Read(std::string_view sql, CachedStatement& statement, bool toEdit) {
    if (const auto& expected = expected_[toEdit]; !expected.empty())
        if (const auto known = expected.find(std::string(sql)); known != expected.end())
            return known->second;
    return engine_->Query(*statement.handle, Bound(statement));
}

void Connection::Expect(const std::vector<Expected>& selects) {
    if (!engine_ || !engine_->IsFar() || failure_)
        return;
    std::vector<Expected> unknown;
    for (const Expected& select : selects)
        if (!expected_[select.toEdit].contains(select.sql))
            unknown.push_back(select);
    if (unknown.empty())
        return;
    const WaitingEnds waitingEnds(engine_->waiting);
    try {
        Tolerantly([&] {
            std::vector<Engine::Select> together;
            for (const Expected& select : unknown) {
                CachedStatement& statement = Prepared(select.sql, select.toEdit);
                const std::span<const Value> values = Bound(statement);
                together.push_back({statement.handle.get(), {values.begin(), values.end()}});
            }
            std::vector<Rows> rows = engine_->QueryTogether(together);
            for (size_t i = 0; i < rows.size(); ++i)
                expected_[unknown[i].toEdit][unknown[i].sql] = std::move(rows[i]);
        });
    } catch (const DatabaseError&) {
        ForgetExpected(selects);
    }
}

void Connection::ForgetExpected(const std::vector<Expected>& selects) {
    for (const Expected& select : selects)
        expected_[select.toEdit].erase(select.sql);
}

void Connection::ForgetExpected() {
    for (auto& texts : expected_)
        texts.clear();
}

namespace {

// The table that a statement writes to: behind "update", "insert into", "delete from", "alter table".
std::string TableWritten(std::string_view sql) {
    const auto take = [&] {
        while (!sql.empty() && (sql.front() == ' ' || sql.front() == '\n'))
            sql.remove_prefix(1);
        const size_t end = std::min(sql.find_first_of(" (\n,"), sql.size());
        const std::string_view word = sql.substr(0, end);
        sql.remove_prefix(end);
        return word;
    };
    if (!EqualsNoCase(take(), "update"))
        take();
    return LowerCase(take());
}

} // namespace

void Connection::ForgetWritten(std::string_view sql) {
    if (expected_[0].empty() && expected_[1].empty())
        return;
    const std::string table = TableWritten(sql);
    for (auto& texts : expected_)
        std::erase_if(texts, [&](const auto& known) {
            return LowerCase(known.first).find(table) != std::string::npos;
        });
}

void Connection::Mark(int mark) {
    RequireUsable();
    mark_ = markOfFailure_ = mark;
    engine_->Mark(mark);
}

bool Connection::HasColumn(std::string_view table, std::string_view column) {
    Reading([&] {
        RequireUsable();
        if (catalogue_.empty())
            catalogue_ = engine_->Catalogue();
    });
    const auto known = catalogue_.find(LowerCase(table));
    return known != catalogue_.end() && known->second.contains(LowerCase(column));
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
        ForgetWritten(text);
        if (address)
            ++rowChanges_;
        if (address)
            engine_->Change(*statement->handle, values, address);
        else
            engine_->Execute(*statement->handle, values);
    });
}

void Connection::Flush() {
    RequireUsable();
    const WaitingEnds waitingEnds(engine_->waiting);
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
        throw std::logic_error("事务尚未结束，不能再开始另一事务。");
    Announce("begin");
    ForgetExpected(); // who waited for other writers reads what they wrote
    const WaitingEnds waitingEnds(engine_->waiting);
    engine_->Begin();
    inTransaction_ = true;
}

void Connection::BeginReading() {
    RequireUsable();
    if (inTransaction_)
        throw std::logic_error("事务尚未结束，不能再开始另一事务。");
    engine_->BeginReading();
    inTransaction_ = true;
}

void Connection::CommitTrans() {
    if (!inTransaction_)
        throw std::logic_error("没有可以提交的事务。");
    Guarded("commit", [&] { engine_->Commit(); });
    inTransaction_ = false;
}

void Connection::RollbackTrans() noexcept {
    if (!inTransaction_)
        return;
    ForgetExpected();
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
