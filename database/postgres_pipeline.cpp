#include "database/postgres_pipeline.h"

#include <poll.h>

#include <chrono>
#include <cstring>

#include "base/log.h"
#include "database/postgres_values.h"

namespace jxc {

namespace {

// Dates in the form that the system writes; waiting for another writer ends as it does on a file; the small
// statements of documents gain nothing from compiling.
constexpr const char* kSettings =
    "select set_config('datestyle', 'ISO, MDY', false), set_config('lock_timeout', '30s', false), "
    "set_config('standard_conforming_strings', 'on', false), set_config('extra_float_digits', '1', false), "
    "set_config('client_min_messages', 'warning', false), set_config('jit', 'off', false)";

} // namespace

PostgresPipeline::PostgresPipeline(const ServerAddress& address, Waiting& waiting)
    : waiting_(waiting), line_(OpenLine(address)) {
    RequireLine(line_);
    if (!PQenterPipelineMode(line_.get()))
        throw DatabaseError("不能使用该数据库服务器：" + ReasonOf(line_));
    SendText(kSettings, {}, {}, 0); // waited for with what comes first
}

void PostgresPipeline::GiveUpLine() {
    lost_ = true;
    for (const Sent& sent : sent_)
        if (sent.statement)
            sent.statement->state = ServerStatement::State::Unknown;
    sent_.clear();
}

void PostgresPipeline::Lost() {
    GiveUpLine();
    const std::string words = ReasonOf(line_);
    Log("database", words); // whoever tells of the failed work may know no more than that it failed
    try {
        throw DatabaseError(words);
    } catch (const DatabaseError&) {
        std::throw_with_nested(LineLost());
    }
}

void PostgresPipeline::Require(int sent) {
    if (!sent)
        Lost();
}

const char* const* PostgresPipeline::Encode(std::span<const Value> values) {
    texts_.clear();
    pointers_.clear();
    for (const Value& value : values)
        texts_.push_back(value.IsNull() ? "" : ServerText(value));
    for (size_t i = 0; i < values.size(); ++i)
        pointers_.push_back(values[i].IsNull() ? nullptr : texts_[i].c_str());
    return pointers_.data();
}

void PostgresPipeline::Send(const std::shared_ptr<ServerStatement>& statement, std::span<const Value> values,
                            int depth, const RowAddress& address, Rows* into) {
    const char* const* encoded = Encode(values);
    if (statement->state == ServerStatement::State::Unknown) {
        Require(PQsendPrepare(line_.get(), statement->name.c_str(), statement->sql.c_str(),
                              static_cast<int>(statement->types.size()), statement->types.data()));
        statement->state = ServerStatement::State::Sent;
        sent_.push_back({Sent::Kind::Prepare, statement, depth, nullptr, nullptr, mark_});
    }
    Require(PQsendQueryPrepared(line_.get(), statement->name.c_str(), static_cast<int>(values.size()),
                                encoded, nullptr, nullptr, 0));
    sent_.push_back({address ? Sent::Kind::Change : Sent::Kind::Run, statement, depth, address, into, mark_});
}

void PostgresPipeline::SendText(const std::string& sql, const std::vector<Oid>& types,
                                std::span<const Value> values, int depth) {
    Require(PQsendQueryParams(line_.get(), sql.c_str(), static_cast<int>(types.size()), types.data(),
                              Encode(values), nullptr, nullptr, 0));
    sent_.push_back({Sent::Kind::Run, nullptr, depth, nullptr, nullptr, mark_});
}

void PostgresPipeline::Sync() {
    Require(PQpipelineSync(line_.get()));
    sent_.push_back({Sent::Kind::Sync, nullptr, 0, nullptr});
    ++roundTrips_;
}

void PostgresPipeline::SettleQuietly() {
    Sync();
    Receive();
}

Rows PostgresPipeline::Settle() {
    SettleQuietly();
    if (!failure_)
        return std::move(lastRows_);
    if (failure_->isConflict)
        throw ConflictError(failure_->text);
    throw DatabaseError(failure_->text);
}

void PostgresPipeline::Receive() {
    lastRows_ = {};
    gaveUp_ = false;
    while (!sent_.empty()) {
        ReceiveOne(sent_.front());
        sent_.pop_front();
    }
}

// Waits for the socket by instants, so that the person can be told and give up. Giving up has the server end what
// it is at; its answer then says so.
void PostgresPipeline::AwaitResult() {
    constexpr int kInstant = 100; // milliseconds
    const auto begun = std::chrono::steady_clock::now();
    while (PQisBusy(line_.get())) {
        pollfd socket{PQsocket(line_.get()), POLLIN, 0};
        if (poll(&socket, 1, kInstant) != 0) {
            if (!PQconsumeInput(line_.get()))
                Lost();
            continue;
        }
        const auto waited = std::chrono::steady_clock::now() - begun;
        if (!gaveUp_ && !waiting_.GoOn(std::chrono::duration_cast<std::chrono::milliseconds>(waited)))
            CancelAtServer();
    }
}

void PostgresPipeline::CancelAtServer() {
    gaveUp_ = true;
    char reason[256];
    const PostgresCancel cancel(PQgetCancel(line_.get()));
    if (!cancel || !PQcancel(cancel.get(), reason, sizeof reason)) {
        GiveUpLine(); // a server that cannot be reached gives no answer either
        throw DatabaseError(kGaveUpWaiting);
    }
}

void PostgresPipeline::ReceiveOne(const Sent& sent) {
    bool received = false;
    while (true) {
        AwaitResult();
        const PostgresResult result(PQgetResult(line_.get()));
        if (!result) {
            if (!received || PQstatus(line_.get()) == CONNECTION_BAD)
                Lost();
            return;
        }
        received = true;
        if (PQstatus(line_.get()) == CONNECTION_BAD)
            Lost();
        if (sent.kind == Sent::Kind::Sync)
            return;
        Accept(sent, result.get());
    }
}

void PostgresPipeline::Accept(const Sent& sent, PGresult* result) {
    const ExecStatusType status = PQresultStatus(result);
    const bool succeeded = status == PGRES_TUPLES_OK || status == PGRES_COMMAND_OK;
    if (sent.kind == Sent::Kind::Prepare)
        sent.statement->state = succeeded ? ServerStatement::State::Ready : ServerStatement::State::Unknown;
    if (!succeeded) {
        if (status == PGRES_FATAL_ERROR && !failure_)
            NoteFailure(result, sent.depth, sent.mark);
        return;
    }
    if (sent.kind == Sent::Kind::Run) {
        if (status == PGRES_TUPLES_OK)
            (sent.into ? *sent.into : lastRows_) = RowsOf(result);
        lastCommand_ = PQcmdStatus(result);
    } else if (sent.kind == Sent::Kind::Change) {
        if (PQntuples(result) > 0)
            *sent.address = Value(PQgetvalue(result, 0, 0));
        else if (!failure_)
            failure_ = Failure{"该记录已被其他用户修改或删除。", "", sent.depth, true, sent.mark};
    }
}

void PostgresPipeline::NoteFailure(const PGresult* result, int depth, int mark) {
    const char* state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    Failure failure{"", state ? state : "", depth, false, mark};
    if (failure.state == "55P03")
        failure.text = "数据库正被其他用户写入，等待超时。";
    else if (failure.state == "57014" && gaveUp_) // a server may also have time limits of its own
        failure.text = kGaveUpWaiting;
    else
        failure.text = "数据库错误：" + ReasonOf(result);
    failure_ = std::move(failure);
}

const std::string& PostgresPipeline::StateOfFailure() const {
    static const std::string none;
    return failure_ ? failure_->state : none;
}

bool PostgresPipeline::HasUnsettledChanges() const {
    for (const Sent& sent : sent_)
        if (sent.kind == Sent::Kind::Change)
            return true;
    return false;
}

bool PostgresPipeline::HasUnsettledWork(int depth) const {
    for (const Sent& sent : sent_)
        if (sent.depth >= depth && sent.kind != Sent::Kind::Sync)
            return true;
    return false;
}

void PostgresPipeline::RunScript(const std::string& sql) {
    Settle();
    PQexitPipelineMode(line_.get());
    const PostgresResult result(PQexec(line_.get(), sql.c_str()));
    PQenterPipelineMode(line_.get());
    const ExecStatusType status = PQresultStatus(result.get());
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK) {
        NoteFailure(result.get(), 0, mark_);
        throw DatabaseError(failure_->text);
    }
}

std::string PostgresPipeline::ServerUser() const {
    const char* user = PQuser(line_.get());
    return user ? user : "";
}

} // namespace jxc
