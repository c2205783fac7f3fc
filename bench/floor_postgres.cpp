#include <charconv>
#include <cstdlib>
#include <stdexcept>

#include "bench/floor.h"
#include "bench/floor_procedure.h"
#include "database/postgres_line.h"

namespace jxc::bench {

namespace {

class PostgresRow {
  public:
    PostgresRow(const PGresult* result, int row) : result_(result), row_(row) {}
    double Number(int column) const { return std::strtod(Cell(column), nullptr); }
    std::int64_t Whole(int column) const { return std::strtoll(Cell(column), nullptr, 10); }
    std::string Text(int column) const { return Cell(column); }

  private:
    const char* Cell(int column) const { return PQgetvalue(result_, row_, column); } // "" for a null

    const PGresult* result_;
    int row_;
};

// A value as the server reads it.
class Parameter {
  public:
    explicit Parameter(const std::string& text) : text_(text.c_str()) {}
    explicit Parameter(std::int64_t number) { Write(number); }
    explicit Parameter(double number) { Write(number); }
    const char* Text() const { return text_ ? text_ : digits_; }

  private:
    template <typename Number>
    void Write(Number number) {
        *std::to_chars(digits_, digits_ + sizeof digits_ - 1, number).ptr = '\0';
    }

    const char* text_ = nullptr;
    char digits_[40];
};

const char* const kBegin = "begin";
// The lock that the writers of a company share: without it two of them could take the same key or number.
const char* const kLock = "lock";
const char* const kCommit = "commit";

class PostgresApi {
  public:
    explicit PostgresApi(const std::string& uri) : line_(PQconnectdb(uri.c_str())) {
        if (PQstatus(line_.get()) != CONNECTION_OK)
            Fail();
        for (size_t step = 0; step < std::size(kStepTexts); ++step) {
            names_.push_back("step" + std::to_string(step));
            Prepare(names_.back().c_str(), kStepTexts[step]);
        }
        Prepare(kBegin, "begin");
        Prepare(kLock, "select pg_advisory_xact_lock(7400631)");
        Prepare(kCommit, "commit");
    }

    void Begin() {
        Send(kBegin, 0, nullptr);
        Send(kLock, 0, nullptr);
    }
    void Commit() { Send(kCommit, 0, nullptr); }

    template <typename... Values>
    PostgresResult Run(Step step, const Values&... values) {
        // One more than needed: an array cannot be empty.
        const Parameter parameters[] = {Parameter(values)..., Parameter(std::int64_t{0})};
        const char* texts[std::size(parameters)];
        for (size_t i = 0; i < sizeof...(values); ++i)
            texts[i] = parameters[i].Text();
        return Send(names_[static_cast<size_t>(step)].c_str(), sizeof...(values), texts);
    }

    template <typename OnRow, typename... Values>
    void Read(Step step, const OnRow& onRow, const Values&... values) {
        const PostgresResult result = Run(step, values...);
        const int rows = PQntuples(result.get());
        for (int row = 0; row < rows; ++row)
            onRow(PostgresRow(result.get(), row));
    }

    size_t StatementCount() const { return count_; }
    int ServerVersion() const { return PQserverVersion(line_.get()); }

  private:
    [[noreturn]] void Fail() const { throw std::runtime_error(PQerrorMessage(line_.get())); }

    PostgresResult Checked(PGresult* result) const {
        const ExecStatusType status = PQresultStatus(result);
        PostgresResult checked(result);
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
            Fail();
        return checked;
    }
    void Prepare(const char* name, const char* text) {
        Checked(PQprepare(line_.get(), name, text, 0, nullptr));
    }
    PostgresResult Send(const char* name, int count, const char* const* texts) {
        ++count_;
        return Checked(PQexecPrepared(line_.get(), name, count, texts, nullptr, nullptr, 0));
    }

    PostgresLine line_;
    std::vector<std::string> names_;
    size_t count_ = 0;
};

class PostgresFloor : public Floor {
  public:
    PostgresFloor(const std::string& uri, const Trade& trade) : api_(uri), trade_(trade) {}
    void SaveAndApprove(const Receipt& receipt) override { SaveAndApproveOn(api_, trade_, receipt); }
    size_t StatementCount() const override { return api_.StatementCount(); }
    std::string EngineVersion() const override {
        const int version = api_.ServerVersion();
        return "PostgreSQL " + std::to_string(version / 10000) + "." + std::to_string(version % 10000);
    }

  private:
    PostgresApi api_;
    Trade trade_;
};

} // namespace

std::unique_ptr<Floor> NewPostgresFloor(const std::string& uri, const Trade& trade) {
    return std::make_unique<PostgresFloor>(uri, trade);
}

} // namespace jxc::bench
