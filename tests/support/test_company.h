// A company of its own for each test: empty tables in a new file or a new database of the test server, opened
// as the session's connection and removed at the end.
//
// The server is named by JXC_TEST_PG, a libpq URI of its maintenance database whose user may create
// databases; without it the tests of that engine skip and say so.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "session/database/connection.h"

namespace jxc::test {

enum class EngineKind { Sqlite, Postgres };

// Why tests of this engine cannot run; "" when they can.
std::string WhyUnavailable(EngineKind kind);

class TestCompany {
  public:
    explicit TestCompany(EngineKind kind);
    ~TestCompany();
    TestCompany(const TestCompany&) = delete;
    TestCompany& operator=(const TestCompany&) = delete;

    // The arguments with which OpenConnection finds the company again.
    int Dialect() const;
    const std::string& Path() const { return path_; }
    const std::string& Database() const { return database_; }

  private:
    EngineKind kind_;
    std::string path_;
    std::string database_;
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

// On the session's connection: a statement without rows; the rows of a select, cells joined by "|", a null as
// "null"; the only row, or how many there are instead.
void Do(const std::string& sql);
Lines RowsOf(const std::string& sql);
std::string One(const std::string& sql);
// A date mm/dd/yyyy as a statement of the session's dialect writes it.
std::string Day(const std::string& slashDate);

} // namespace jxc::test

#define ON_BOTH_ENGINES(suite)                                                                               \
    INSTANTIATE_TEST_SUITE_P(                                                                                \
        Engines, suite, testing::Values(jxc::test::EngineKind::Sqlite, jxc::test::EngineKind::Postgres),     \
        jxc::test::EngineName)
