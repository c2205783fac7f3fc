// PostgreSQL: the company is a database of a server. Outside a transaction every statement is waited for.
// Inside one, statements without rows, changes of rows and the savepoints of Tolerantly are sent ahead and
// waited for together, at the next Query, Flush or Commit; a document of many lines takes a few round trips.
//
// Writers of a company wait for each other on one lock of the database, taken with the transaction's begin.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "database/engine.h"
#include "database/postgres_pipeline.h"

namespace jxc {

class PostgresEngine : public Engine {
  public:
    // Throws DatabaseError with the reason: no server, a refused log-in, no such database.
    explicit PostgresEngine(const ServerAddress& address);

    std::unique_ptr<StatementWriter> NewWriter() const override;
    std::unique_ptr<EngineStatement> Prepare(const std::string& sql,
                                             const std::vector<ParameterType>& types) override;
    void Execute(EngineStatement& statement, std::span<const Value> values) override;
    Rows Query(EngineStatement& statement, std::span<const Value> values) override;
    std::vector<std::string> Plan(const std::string& sql, const std::vector<ParameterType>& types,
                                  std::span<const Value> values) override;
    void Flush() override;
    bool IsFar() const override { return true; }
    bool IsLost() const override { return line_.IsLost(); }
    std::vector<Rows> QueryTogether(std::span<const Select> selects) override;
    std::string ServerUser() const override { return line_.ServerUser(); }
    size_t RoundTrips() const override { return line_.RoundTrips(); }
    void Mark(int mark) override { line_.Mark(mark); }
    int MarkOfFailure() const override { return line_.MarkOfFailure(); }
    std::map<std::string, std::set<std::string>> Catalogue() override;
    bool HidesTable(std::string_view table) override;
    // With the extension amcheck, where this user may use it, tables and indexes are compared; else every row
    // of every table is read whole.
    std::vector<std::string> Faults() override;
    // Kept as a comment on the table of the parameters, which goes along with a dump.
    int Version() override;
    void SetVersion(int version) override;

    NotedChanges ChangesSince(const NotedTable& table, double from) override;
    std::string NotingScript(const NotedTable& table) const override;

    void Change(EngineStatement& statement, std::span<const Value> values,
                const RowAddress& address) override;
    bool MovesChangedRows() const override { return true; }
    std::string ChangeText(const std::string& table, std::span<const std::string> fields,
                           std::span<const std::string> unchanged, bool follow) const override;
    std::string DeleteText(const std::string& table, bool follow) const override;
    std::string InsertText(const std::string& table, std::span<const std::string> fields) const override;

    void Begin() override;
    void BeginReading() override;
    void Commit() override;
    void Rollback() noexcept override;
    void Savepoint(int depth) override;
    void Release(int depth) override;
    void RollbackTo(int depth) override;
    int DepthOfFailure() const override { return line_.DepthOfFailure(); }

    void ExecuteScript(const std::string& sql) override { line_.RunScript(sql); }
    std::string ColumnDefinition(const FieldDef& field) const override;
    std::string ScriptPrologue() const override { return "create extension if not exists citext;\n"; }
    std::string IndexedColumn(const std::string& field) const override { return field + " nulls first"; }

  private:
    friend class PostgresStatement;

    std::shared_ptr<ServerStatement> NewStatement(const std::string& sql, std::vector<Oid> types = {});
    void Command(const std::string& sql, int depth);
    void StartCall();
    void EndCall();
    void DropRetired();
    Rows Ask(const std::string& sql); // a text that is not worth preparing
    void CheckTable(const std::string& table, bool thoroughly, std::vector<std::string>& faults);

    PostgresPipeline line_;
    std::optional<int> version_;       // as the catalogue told it
    size_t named_ = 0;                 // statements named so far
    std::vector<std::string> retired_; // names of statements no longer used
    std::unordered_map<std::string, std::shared_ptr<ServerStatement>> commands_;
    bool inTransaction_ = false;
    int depth_ = 0;
};

} // namespace jxc
