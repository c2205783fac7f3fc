// The one road to the company's database. Every statement is a text in one of the system's two dialects, word
// for word as the business routines build it; what stands between that text and the engine (literals lifted
// to bound parameters, rewrites, the cache of prepared statements) is told in translation.h.
//
// Failures are DatabaseError. A failed statement leaves the connection usable outside a transaction; inside
// one, only statements run through Tolerantly() may fail without forcing the roll-back: after any other
// failure every statement and the commit fail with the same text until RollbackTrans.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/value.h"
#include "database/change_log.h"
#include "database/database_error.h"

namespace jxc {

class Engine;
class StatementCache;
struct CachedStatement;

// A result, complete in memory: column names as the statement gives them, cells row by row.
struct Rows {
    std::vector<std::string> names;
    std::vector<Value> cells;
    size_t Count() const { return names.empty() ? 0 : cells.size() / names.size(); }
    const Value& At(size_t row, size_t column) const { return cells[row * names.size() + column]; }
};

class Connection {
  public:
    Connection();
    ~Connection(); // rolls back an open transaction and closes
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // With `again` a server whose line was lost is connected anew at the next statement outside a transaction; a read
    // there that finds it lost is tried once more.
    void Open(std::unique_ptr<Engine> engine, std::function<std::unique_ptr<Engine>()> again = {});
    void Close();
    [[nodiscard]] bool IsOpen() const;

    // Runs a statement that gives no rows: Insert, Update, Delete, ALTER TABLE. On a database server inside a
    // transaction it may be sent together with the statements behind it; its failure then shows at the next
    // Flush, Query or CommitTrans at the latest.
    void Execute(std::string_view sql);
    // Runs a statement that gives rows.
    Rows Query(std::string_view sql);
    // Waits until everything sent so far has succeeded, or throws the first failure.
    void Flush();

    // Sends selects together before they are asked for, so that a server is waited for once; see ReadAhead.
    struct Expected {
        std::string sql;
        bool toEdit = false; // as a Recordset asks for rows to change
    };
    void Expect(const std::vector<Expected>& selects);
    void ForgetExpected(const std::vector<Expected>& selects);

    // What the log of changes tells of a table from a stamp on; see change_log.h.
    NotedChanges ChangesSince(const NotedTable& table, double from);

    // What is sent from now on belongs to the caller's step `mark`. After a failure MarkOfFailure is the step
    // whose statement it was, which may have been sent some steps before the failure showed.
    void Mark(int mark);
    [[nodiscard]] int MarkOfFailure() const { return markOfFailure_; }

    // The tables that the user may read and their columns, all in lower case, as they were at the first
    // question or after the last change by ALTER TABLE or ForgetCatalogue: the server is asked once.
    bool HasColumn(std::string_view table, std::string_view column);
    void ForgetCatalogue() { catalogue_.clear(); }

    // One transaction at a time, no nesting: a second BeginTrans, or a commit of none, is a std::logic_error. Writers of one company wait for each other at BeginTrans, so a
    // routine that reads, computes and writes inside a transaction is never overtaken.
    void BeginTrans();
    // Begins a transaction that only reads: all its selects see one state of the company, and nobody waits for
    // it. RollbackTrans ends it.
    void BeginReading();
    void CommitTrans();
    void RollbackTrans() noexcept;
    [[nodiscard]] bool InTransaction() const;

    // Runs `work` so that a DatabaseError inside it undoes only `work` and leaves an open transaction usable;
    // the error is thrown on. Routines that swallow errors by design run their statements so.
    void Tolerantly(const std::function<void()>& work);

    // The engine's plan of a statement, a line per step, as EXPLAIN gives it: the proof that no table is
    // scanned.
    [[nodiscard]] std::vector<std::string> Plan(std::string_view sql);

    // Called with each statement's text before it is sent, transaction commands among them ("begin",
    // "commit", "rollback" is not announced). It may throw DatabaseError: that is how faults are injected.
    // Null for none.
    void SetObserver(std::function<void(std::string_view)> observer);

    // Asked each second or so while the engine is waited for, with the seconds so far, and told -1 when it has
    // answered. False gives the waiting up: the statement fails with that reason. Null for none.
    void SetWaitObserver(std::function<bool(int seconds)> observer);

    Engine& EngineInUse();

  private:
    friend class Recordset;
    friend class RowInserter;

    // What the writers of single rows need: a select whose rows carry their address in the first column, and
    // statements on single rows, prepared like any other. With `address` the row must still be there.
    Rows QueryRows(std::string_view sql, std::string& table);
    void RunOnRow(const std::string& text, std::span<const Value> values,
                  const std::shared_ptr<Value>& address);

    // How often rows have been changed so far: who read rows before may hold addresses that they have left.
    size_t RowChanges() const { return rowChanges_; }

    void Announce(std::string_view sql);
    Rows Read(std::string_view sql, CachedStatement& statement, bool toEdit);
    void ForgetWritten(std::string_view sql);
    void ForgetExpected();
    template <typename Work>
    auto Guarded(std::string_view sql, Work work);
    template <typename Work>
    auto Reading(Work work);
    void RequireUsable();
    void ConnectAgain();
    void NoteFailure(const DatabaseError& error);
    CachedStatement& Prepared(std::string_view sql, bool editRows);
    std::span<const Value> Bound(const CachedStatement& statement);

    std::unique_ptr<Engine> engine_;
    std::unique_ptr<StatementCache> cache_; // its statements die before their engine
    std::function<std::unique_ptr<Engine>()> again_;
    std::function<void(std::string_view)> observer_;
    std::function<bool(int)> waitObserver_;
    size_t rowChanges_ = 0;
    int mark_ = -1, markOfFailure_ = -1;
    std::map<std::string, Rows> expected_[2];                // by text, of the selects to read and to edit
    std::map<std::string, std::set<std::string>> catalogue_; // empty: not asked yet
    bool inTransaction_ = false;
    int depth_ = 0;                      // of nested Tolerantly() inside the transaction
    std::optional<std::string> failure_; // why the open transaction can only be rolled back
    int failureDepth_ = 0;
};

// For its lifetime the selects that are about to be asked for are known already, read together in one round
// trip: a hint, which changes nothing but the time. Each is asked for as ever, by the same text, and then
// found here; a write to a table forgets what was read of it. A failure to read them together is no failure:
// each fails where it is asked for.
class [[nodiscard]] ReadAhead {
  public:
    ReadAhead(Connection& connection, const std::vector<Connection::Expected>& selects)
        : connection_(connection), selects_(selects) {
        connection_.Expect(selects_);
    }
    ~ReadAhead() { connection_.ForgetExpected(selects_); }
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

  private:
    Connection& connection_;
    std::vector<Connection::Expected> selects_;
};

// Begins a transaction and rolls it back when it goes out of scope without Commit(). Only Commit() commits.
class [[nodiscard]] Transaction {
  public:
    explicit Transaction(Connection& connection) : connection_(connection) { connection_.BeginTrans(); }
    ~Transaction() {
        if (!done_)
            connection_.RollbackTrans();
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit() {
        connection_.CommitTrans();
        done_ = true;
    }

  private:
    Connection& connection_;
    bool done_ = false;
};

// The same for a transaction that only reads.
class [[nodiscard]] ReadingTransaction {
  public:
    explicit ReadingTransaction(Connection& connection) : connection_(connection) {
        connection_.BeginReading();
    }
    ~ReadingTransaction() { connection_.RollbackTrans(); }
    ReadingTransaction(const ReadingTransaction&) = delete;
    ReadingTransaction& operator=(const ReadingTransaction&) = delete;

  private:
    Connection& connection_;
};

} // namespace jxc
