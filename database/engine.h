// A database engine: it prepares statements that were written for it and runs them. Connection stands before
// it with the statements' texts, the cache and the state of the transaction; nothing else uses an engine.
//
// All operations throw DatabaseError. An engine may hold back Execute, Change and the commands of a
// transaction while one is open, and report a failure at the next Flush, Query or Commit; DepthOfFailure
// tells in which savepoint the statement that failed stood.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "database/change_log.h"
#include "database/connection.h"
#include "database/statement_parameters.h"
#include "database/translation.h"
#include "database/waiting.h"

namespace jxc {

// A statement that an engine has prepared. Must not outlive its engine.
class EngineStatement {
  public:
    virtual ~EngineStatement() = default;
};

// Where a row stands, kept up to date by the engine that moves rows when they change. Null: not known yet,
// because the statement that moved the row was held back; Flush makes it known.
using RowAddress = std::shared_ptr<Value>;

class Engine {
  public:
    virtual ~Engine() = default;

    virtual std::unique_ptr<StatementWriter> NewWriter() const = 0;
    virtual std::unique_ptr<EngineStatement> Prepare(const std::string& sql,
                                                     const std::vector<ParameterType>& types) = 0;
    virtual void Execute(EngineStatement& statement, std::span<const Value> values) = 0;
    virtual Rows Query(EngineStatement& statement, std::span<const Value> values) = 0;
    virtual std::vector<std::string> Plan(const std::string& sql, const std::vector<ParameterType>& types,
                                          std::span<const Value> values) = 0;
    virtual void Flush() {}

    // Selects that are sent together and waited for once; each one's rows in its place. An engine at hand has
    // nothing to gain and is not asked.
    struct Select {
        EngineStatement* statement;
        std::vector<Value> values;
    };
    virtual bool IsFar() const { return false; }
    virtual std::vector<Rows> QueryTogether(std::span<const Select>) { return {}; }
    // How often a server was waited for, the log-in apart.
    // As whom the server has let the program in; "" where nobody asks.
    virtual std::string ServerUser() const { return ""; }
    virtual size_t RoundTrips() const { return 0; }
    // See Connection::Mark; -1 when the failure, if any, is the last call's.
    virtual void Mark(int) {}
    virtual int MarkOfFailure() const { return -1; }

    // Whether a table is there that this user may not read.
    virtual bool HidesTable(std::string_view) { return false; }
    // What the engine finds damaged when it reads everything it keeps, a line each; none when all is sound.
    virtual std::vector<std::string> Faults() = 0;
    // The version of the company's tables, see company_version.h; 0 for a company older than versions. Another
    // program's database is a DatabaseError. SetVersion belongs into a transaction.
    virtual int Version() = 0;
    virtual void SetVersion(int version) = 0;

    // The tables that this user may read, in lower case, each with its columns.
    virtual std::map<std::string, std::set<std::string>> Catalogue() = 0;

    // What the log tells of a table from a stamp on, 0 from the start.
    virtual NotedChanges ChangesSince(const NotedTable& table, double from) = 0;
    // DDL that has the database write the log; does no harm where it does so already.
    virtual std::string NotingScript(const NotedTable& table) const = 0;

    // Changes or deletes the row at `address`, the last of `values`; a row that is gone is a ConflictError.
    // `sql` as ChangeText or DeleteText gives it.
    virtual void Change(EngineStatement& statement, std::span<const Value> values,
                        const RowAddress& address) = 0;
    // With `unchanged` the row must still hold the values of these fields, which come between the new values
    // and the address; an engine that moves changed rows knows without them, and is given none.
    virtual bool MovesChangedRows() const = 0;
    // With `follow` the row is looked for where a statement of the transaction may have moved it since its
    // address was read.
    virtual std::string ChangeText(const std::string& table, std::span<const std::string> fields,
                                   std::span<const std::string> unchanged, bool follow) const = 0;
    virtual std::string DeleteText(const std::string& table, bool follow) const = 0;
    virtual std::string InsertText(const std::string& table, std::span<const std::string> fields) const = 0;

    // Begin waits for other writers of the company. Savepoints are numbered from 1, the outermost.
    virtual void Begin() = 0;
    // One state of the database for all that is read until Rollback. No writer waits for it.
    virtual void BeginReading() = 0;
    virtual void Commit() = 0;
    virtual void Rollback() noexcept = 0;
    virtual void Savepoint(int depth) = 0;
    virtual void Release(int depth) = 0;
    virtual void RollbackTo(int depth) = 0;
    virtual int DepthOfFailure() const = 0;

    // A line to a server that is gone: another engine must take the place of this one.
    virtual bool IsLost() const { return false; }
    // Told while this engine waits, for other writers or for its server.
    Waiting waiting;

    // Called once the database has proven to be a company's: settings that stay with it.
    virtual void Adopt() {}

    // DDL of the schema, several statements at once, outside the language of the business routines.
    virtual void ExecuteScript(const std::string& sql) = 0;
    virtual std::string ColumnDefinition(const FieldDef& field) const = 0;
    virtual std::string ScriptPrologue() const { return ""; }
    virtual std::string TableSuffix() const { return ""; }
    virtual std::string IndexedColumn(const std::string& field) const { return field; }
};

} // namespace jxc
