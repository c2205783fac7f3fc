// SQLite: the company is one file. Write-ahead log with every commit on disk (synchronous FULL); writers wait
// up to 30 seconds for each other at BeginTrans. Statements run at once, nothing is held back.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <unordered_map>

#include "database/engine.h"
#include "database/sqlite_handles.h"

struct sqlite3;

namespace jxc {

// How a file is opened. Create: a new one, which only its owner may read and write. Read: nothing is changed;
// the file and its folder may be read-only.
enum class SqliteFile { Open, Create, Read };

class SqliteEngine : public Engine {
  public:
    // Throws DatabaseError.
    SqliteEngine(const std::string& path, SqliteFile how);

    std::unique_ptr<StatementWriter> NewWriter() const override;
    std::unique_ptr<EngineStatement> Prepare(const std::string& sql,
                                             const std::vector<ParameterType>& types) override;
    void Execute(EngineStatement& statement, std::span<const Value> values) override;
    Rows Query(EngineStatement& statement, std::span<const Value> values) override;
    std::vector<std::string> Plan(const std::string& sql, const std::vector<ParameterType>& types,
                                  std::span<const Value> values) override;

    NotedChanges ChangesSince(const NotedTable& table, double from) override;
    std::string NotingScript(const NotedTable& table) const override;

    void Change(EngineStatement& statement, std::span<const Value> values,
                const RowAddress& address) override;
    bool MovesChangedRows() const override { return false; }
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
    int DepthOfFailure() const override { return -1; }

    void Adopt() override;
    std::map<std::string, std::set<std::string>> Catalogue() override;
    // Writes the whole database as it stands, page by page, to a new file that only this user can read from its
    // first byte, while others go on working. A damaged one is copied with its damage.
    void CopyTo(const std::string& file);
    // Notes in a copy what it holds, so that Faults sees every later change; Unseal takes the note away, as
    // Adopt does when somebody begins to work on a copy.
    void Seal();
    void Unseal();
    // The engine's own check, texts that no user can have entered, and a copy's note.
    std::vector<std::string> Faults() override;
    // Kept in the file's header, beside the mark of this program.
    int Version() override;
    void SetVersion(int version) override;
    void ExecuteScript(const std::string& sql) override;
    std::string ColumnDefinition(const FieldDef& field) const override;
    std::string TableSuffix() const override { return " strict"; }

  private:
    void OpenFile(const std::string& path, int flags);
    void OpenToRead(const std::string& path);
    Rows Ask(const std::string& sql);
    void Command(const std::string& sql); // of a transaction; each is prepared once

    static int WhileRunning(void* engine);

    std::chrono::steady_clock::time_point begun_{}, tellNext_{}; // the statement; who waits
    SqliteHandle db_;                                            // behind it, what must go first
    std::unordered_map<std::string, std::unique_ptr<EngineStatement>> commands_;
};

} // namespace jxc
