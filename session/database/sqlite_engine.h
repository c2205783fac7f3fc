// SQLite: the company is one file. Write-ahead log with every commit on disk (synchronous FULL); writers wait
// up to 30 seconds for each other at BeginTrans. Statements run at once, nothing is held back.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>

#include "session/database/engine.h"

struct sqlite3;

namespace jxc {

class SqliteEngine : public Engine {
  public:
    // Opens the file `path`; with `create` a new one, which only its owner may read and write. Throws
    // DatabaseError.
    SqliteEngine(const std::string& path, bool create);
    ~SqliteEngine() override;

    std::unique_ptr<StatementWriter> NewWriter() const override;
    std::unique_ptr<EngineStatement> Prepare(const std::string& sql,
                                             const std::vector<ParameterType>& types) override;
    void Execute(EngineStatement& statement, std::span<const Value> values) override;
    Rows Query(EngineStatement& statement, std::span<const Value> values) override;
    std::vector<std::string> Plan(const std::string& sql, const std::vector<ParameterType>& types,
                                  std::span<const Value> values) override;

    void Change(EngineStatement& statement, std::span<const Value> values,
                const RowAddress& address) override;
    bool MovesChangedRows() const override { return false; }
    std::string ChangeText(const std::string& table, std::span<const std::string> fields,
                           std::span<const std::string> unchanged) const override;
    std::string DeleteText(const std::string& table) const override;
    std::string InsertText(const std::string& table, std::span<const std::string> fields) const override;

    void Begin() override;
    void Commit() override;
    void Rollback() noexcept override;
    void Savepoint(int depth) override;
    void Release(int depth) override;
    void RollbackTo(int depth) override;
    int DepthOfFailure() const override { return -1; }

    void Adopt() override;
    // Writes the whole database as it stands to a new file that only this user can read, while others go on working.
    void CopyTo(const std::string& file);
    void ExecuteScript(const std::string& sql) override;
    std::string ColumnDefinition(const FieldDef& field) const override;
    std::string TableSuffix() const override { return " strict"; }

  private:
    void Command(const std::string& sql); // of a transaction; each is prepared once

    sqlite3* db_ = nullptr;
    std::unordered_map<std::string, std::unique_ptr<EngineStatement>> commands_;
};

} // namespace jxc
