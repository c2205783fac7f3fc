// The line to a PostgreSQL server. Statements are sent without waiting for their results; Settle waits until
// all are in. Behind a statement that failed the server skips the rest up to the next settling.
//
// Depths are those of savepoints, 0 outside of all. A failure is kept, with its depth, until it is forgotten.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "database/engine.h"
#include "database/postgres_line.h"

namespace jxc {

// A statement's life on the server, shared by its owner and the results still to come.
struct ServerStatement {
    enum class State { Unknown, Sent, Ready };
    std::string name, sql;
    std::vector<Oid> types;
    State state = State::Unknown;
};

class PostgresPipeline {
  public:
    // Throws DatabaseError with the reason: no server, a refused log-in, no such database. `waiting` is told
    // while the server is waited for, and must outlive the line.
    PostgresPipeline(const ServerAddress& address, Waiting& waiting);
    PostgresPipeline(const PostgresPipeline&) = delete;
    PostgresPipeline& operator=(const PostgresPipeline&) = delete;

    // Sends a statement, preparing it first where that is still to be done. With `address` it must touch one
    // row, whose new place is noted; none is a conflict.
    // With `into` the rows go there when they are received.
    void Send(const std::shared_ptr<ServerStatement>& statement, std::span<const Value> values, int depth,
              const RowAddress& address = nullptr, Rows* into = nullptr);
    // Sends a text that is not worth preparing.
    void SendText(const std::string& sql, const std::vector<Oid>& types, std::span<const Value> values,
                  int depth);
    // Waits for all results and gives the rows and the command of the last one. Throws the first failure.
    Rows Settle();
    // Waits for all results; what failed is noted only.
    void SettleQuietly();
    // Runs a script of several statements on the settled line.
    void RunScript(const std::string& sql);

    bool IsLost() const { return lost_; }
    const std::string& LastCommand() const { return lastCommand_; }
    bool HasUnsettled() const { return !sent_.empty(); }
    bool HasUnsettledChanges() const;
    bool HasUnsettledWork(int depth) const; // statements sent inside the savepoint of that depth
    size_t UnsettledCount() const { return sent_.size(); }
    std::string ServerUser() const;
    // How often the server has been waited for, the log-in apart.
    size_t RoundTrips() const { return roundTrips_; }

    // What is sent from now on belongs to the caller's step `mark`, which a failure of it names.
    void Mark(int mark) { mark_ = mark; }
    int MarkOfFailure() const { return failure_ ? failure_->mark : -1; }

    int DepthOfFailure() const { return failure_ ? failure_->depth : -1; }
    const std::string& StateOfFailure() const; // the SQLSTATE, "" when there is none
    void ForgetFailure() { failure_.reset(); }

  private:
    struct Sent {
        enum class Kind { Prepare, Run, Change, Sync } kind;
        std::shared_ptr<ServerStatement> statement;
        int depth;
        RowAddress address;
        Rows* into = nullptr;
        int mark = -1;
    };
    struct Failure {
        std::string text, state;
        int depth;
        bool isConflict;
        int mark = -1;
    };

    void Require(int sent);
    void Sync();
    void Receive();
    void ReceiveOne(const Sent& sent);
    void AwaitResult();
    void CancelAtServer();
    void Accept(const Sent& sent, PGresult* result);
    void NoteFailure(const PGresult* result, int depth, int mark);
    void GiveUpLine();
    [[noreturn]] void Lost(); // a LineLost
    const char* const* Encode(std::span<const Value> values);

    Waiting& waiting_;
    bool lost_ = false;
    PostgresLine line_;
    std::deque<Sent> sent_;
    int mark_ = -1;
    size_t roundTrips_ = 0;
    std::optional<Failure> failure_;
    bool gaveUp_ = false; // the person, waiting for the results that come next
    Rows lastRows_;
    std::string lastCommand_;
    std::vector<std::string> texts_;
    std::vector<const char*> pointers_;
};

} // namespace jxc
