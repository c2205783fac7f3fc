// A company of its own for each test: empty tables in a new file or a new database of the test server
// (tests/support/test_server.h), opened as the session's connection and removed at the end. Without a server the
// tests of that engine skip and say so.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

#include "database/connection.h"
#include "session/session.h"
#include "tests/support/files.h"
#include "tests/support/test_server.h"

namespace jxc::test {

enum class EngineKind { Sqlite, Postgres };

// Why tests of this engine cannot run; "" when they can.
std::string WhyUnavailable(EngineKind kind);

// Room for one company: a file that is not there yet in a folder of its own, or a database of the test server, empty
// or a copy of another.
class CompanyPlace {
  public:
    explicit CompanyPlace(EngineKind kind, const std::string& copied = "template0");

    // As the command line and lzJxc's UserPath name it.
    const std::string& Address() const { return address_; }
    // The database's name on the server; "" of a file.
    std::string Database() const { return database_ ? database_->Name() : ""; }
    // Of files that belong to the company, on either engine.
    const TemporaryFolder& Folder() const { return folder_; }
    // 0 or 1, as OpenConnection takes it.
    int Dialect() const { return database_ ? 1 : 0; }

  private:
    TemporaryFolder folder_;
    std::optional<ServerDatabase> database_;
    std::string address_;
};

class TestCompany {
  public:
    explicit TestCompany(EngineKind kind);
    ~TestCompany();
    TestCompany(const TestCompany&) = delete;
    TestCompany& operator=(const TestCompany&) = delete;

    // The arguments with which OpenConnection finds the company again, and such a connection. Throws DatabaseError.
    int Dialect() const { return place_.Dialect(); }
    std::string Path() const { return Dialect() == 0 ? place_.Address() : TestServer(); }
    std::string Database() const { return place_.Database(); }
    void Open(Connection& connection) const;

  private:
    CompanyPlace place_;
};

// Every test of a suite runs on both engines.
class OnBothEngines : public testing::TestWithParam<EngineKind> {
  protected:
    void SetUp() override {
        if (const std::string reason = WhyUnavailable(GetParam()); !reason.empty())
            GTEST_SKIP() << reason;
        company = std::make_unique<TestCompany>(GetParam());
    }
    bool IsPostgres() const { return GetParam() == EngineKind::Postgres; }

    std::unique_ptr<TestCompany> company;
};

inline std::string EngineName(const testing::TestParamInfo<EngineKind>& info) {
    return info.param == EngineKind::Sqlite ? "Sqlite" : "Postgres";
}

using Lines = std::vector<std::string>;

// Rows as texts: cells joined by "|", a null as "null".
Lines LinesOf(const Rows& rows);
// On the session's connection: a statement without rows; the rows of a select; the only row, or how many there are
// instead.
void Do(const std::string& sql);
Lines RowsOf(const std::string& sql);
std::string One(const std::string& sql);
// A date mm/dd/yyyy as a statement of the session's dialect writes it.
std::string Day(const std::string& slashDate);

// What a DatabaseError says that the work ends with; "" when it ends well.
std::string RefusalOf(const std::function<void()>& work);
// Cuts the lines of all others to the company on the server that the connection is open on, as a server does that
// goes away for a moment.
void CutLinesOfOthers(Connection& connection);
// What an observer of waits is told when its first question, put at once, is answered with giving up (see
// Connection::SetWaitObserver).
inline const std::vector<int> kAskedOnceAndEnded{0, -1};

// Of two texts the one in the session's dialect.
inline const char* Dialect(const char* jet, const char* sqlServer) {
    return session.IsJet() ? jet : sqlServer;
}

} // namespace jxc::test

#define ON_BOTH_ENGINES(suite)                                                                               \
    INSTANTIATE_TEST_SUITE_P(                                                                                \
        Engines, suite, testing::Values(jxc::test::EngineKind::Sqlite, jxc::test::EngineKind::Postgres),     \
        jxc::test::EngineName)
// For what a file cannot do: it has no line to lose and no round trips.
#define ON_POSTGRES(suite)                                                                                   \
    INSTANTIATE_TEST_SUITE_P(Engines, suite, testing::Values(jxc::test::EngineKind::Postgres),               \
                             jxc::test::EngineName)
