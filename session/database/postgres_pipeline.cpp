#include "session/database/postgres_pipeline.h"

#include <cstring>

#include "session/database/postgres_values.h"

namespace jxc {

namespace {

struct ResultDeleter {
    void operator()(PGresult* result) const { PQclear(result); }
};
using Result = std::unique_ptr<PGresult, ResultDeleter>;

std::string Trimmed(const char* message) {
    std::string text = message ? message : "";
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
        text.pop_back();
    return text;
}

PGconn* Connect(const ServerAddress& address) {
    std::vector<const char*> names, values;
    const auto add = [&](const char* name, const std::string& value) {
        if (value.empty())
            return;
        names.push_back(name);
        values.push_back(value.c_str());
    };
    const std::string seconds = "10", encoding = "UTF8", program = "lzJxc";
    const bool isUri = address.path.find("://") != std::string::npos;
    add("connect_timeout", seconds);
    add(isUri ? "dbname" : "host", address.path);
    add("dbname", address.database);
    add("user", address.user);
    add("password", address.password);
    add("client_encoding", encoding);
    add("application_name", program);
    names.push_back(nullptr);
    values.push_back(nullptr);
    return PQconnectdbParams(names.data(), values.data(), 1);
}

// Dates in the form that the system writes; waiting for another writer ends as it does on a file; the small
// statements of documents gain nothing from compiling.
constexpr const char* kSettings = "set datestyle to 'ISO, MDY';"
                                  "set lock_timeout to '30s';"
                                  "set standard_conforming_strings to on;"
                                  "set extra_float_digits to 1;"
                                  "set client_min_messages to warning;"
                                  "set jit to off";

// The library quotes an address that it cannot read, with the password in it.
std::string WithoutAddress(std::string reason) {
    const size_t from = reason.find("\"postgres");
    const size_t to = from == std::string::npos ? from : reason.find('"', from + 1);
    if (to != std::string::npos)
        reason.replace(from, to + 1 - from, "\"postgresql://...\"");
    return reason;
}

} // namespace

PostgresPipeline::PostgresPipeline(const ServerAddress& address) : connection_(Connect(address)) {
    if (PQstatus(connection_) != CONNECTION_OK) {
        const bool refused = PQconnectionNeedsPassword(connection_) || PQconnectionUsedPassword(connection_);
        const std::string reason = WithoutAddress(Trimmed(PQerrorMessage(connection_)));
        PQfinish(connection_);
        if (refused)
            throw LoginError("数据库服务器拒绝登录，请检查用户名和密码：" + reason);
        throw DatabaseError("不能连接数据库服务器：" + reason);
    }
    PQsetNoticeProcessor(
        connection_, [](void*, const char*) {}, nullptr);
    const Result settings(PQexec(connection_, kSettings));
    if (PQresultStatus(settings.get()) != PGRES_COMMAND_OK || !PQenterPipelineMode(connection_)) {
        const std::string reason = Trimmed(PQerrorMessage(connection_));
        PQfinish(connection_);
        throw DatabaseError("不能使用该数据库服务器：" + reason);
    }
}

PostgresPipeline::~PostgresPipeline() {
    PQfinish(connection_);
}

void PostgresPipeline::Lost() {
    for (const Sent& sent : sent_)
        if (sent.statement)
            sent.statement->state = ServerStatement::State::Unknown;
    sent_.clear();
    throw DatabaseError("与数据库服务器的连接已经中断：" + Trimmed(PQerrorMessage(connection_)));
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
                            int depth, const RowAddress& address) {
    const char* const* encoded = Encode(values);
    if (statement->state == ServerStatement::State::Unknown) {
        Require(PQsendPrepare(connection_, statement->name.c_str(), statement->sql.c_str(),
                              static_cast<int>(statement->types.size()), statement->types.data()));
        statement->state = ServerStatement::State::Sent;
        sent_.push_back({Sent::Kind::Prepare, statement, depth, nullptr});
    }
    Require(PQsendQueryPrepared(connection_, statement->name.c_str(), static_cast<int>(values.size()),
                                encoded, nullptr, nullptr, 0));
    sent_.push_back({address ? Sent::Kind::Change : Sent::Kind::Run, statement, depth, address});
}

void PostgresPipeline::SendText(const std::string& sql, const std::vector<Oid>& types,
                                std::span<const Value> values, int depth) {
    Require(PQsendQueryParams(connection_, sql.c_str(), static_cast<int>(types.size()), types.data(),
                              Encode(values), nullptr, nullptr, 0));
    sent_.push_back({Sent::Kind::Run, nullptr, depth, nullptr});
}

void PostgresPipeline::Sync() {
    Require(PQpipelineSync(connection_));
    sent_.push_back({Sent::Kind::Sync, nullptr, 0, nullptr});
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
    while (!sent_.empty()) {
        ReceiveOne(sent_.front());
        sent_.pop_front();
    }
}

void PostgresPipeline::ReceiveOne(const Sent& sent) {
    bool received = false;
    while (true) {
        const Result result(PQgetResult(connection_));
        if (!result) {
            if (!received || PQstatus(connection_) == CONNECTION_BAD)
                Lost();
            return;
        }
        received = true;
        if (PQstatus(connection_) == CONNECTION_BAD)
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
            NoteFailure(result, sent.depth);
        return;
    }
    if (sent.kind == Sent::Kind::Run) {
        if (status == PGRES_TUPLES_OK)
            lastRows_ = RowsOf(result);
        lastCommand_ = PQcmdStatus(result);
    } else if (sent.kind == Sent::Kind::Change) {
        if (PQntuples(result) > 0)
            *sent.address = Value(PQgetvalue(result, 0, 0));
        else if (!failure_)
            failure_ = Failure{"该记录已被其他用户修改或删除。", "", sent.depth, true};
    }
}

void PostgresPipeline::NoteFailure(const PGresult* result, int depth) {
    const char* state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    Failure failure{"", state ? state : "", depth, false};
    if (failure.state == "55P03")
        failure.text = "数据库正被其他用户写入，等待超时。";
    else
        failure.text = "数据库错误：" + Trimmed(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY));
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
    PQexitPipelineMode(connection_);
    const Result result(PQexec(connection_, sql.c_str()));
    PQenterPipelineMode(connection_);
    const ExecStatusType status = PQresultStatus(result.get());
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK) {
        NoteFailure(result.get(), 0);
        throw DatabaseError(failure_->text);
    }
}

} // namespace jxc
