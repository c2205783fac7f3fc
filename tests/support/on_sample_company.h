// The sample company, fresh for each test: a copy of one that is made once per engine. Today is 5 November
// 2026 for all tests, so the books' period is that month.
#pragma once

#include <string>

#include "controls/screen.h"
#include "session/lzjxc.h"
#include "tests/support/test_company.h"

namespace jxc::test {

class SampleCompany {
  public:
    explicit SampleCompany(EngineKind kind);

    // As the command line and lzJxc's UserPath name it.
    const std::string& Address() const { return place_.Address(); }
    // The database's name on the server; "" of a file.
    std::string Database() const { return place_.Database(); }
    // A control that points at the company, signed in as a clerk who is also the supervisor, with every
    // right.
    lzJxc SignedIn() const;

  private:
    CompanyPlace place_;
};

// Every test of a suite runs on a sample company of its own, on both engines, with all screens fresh and a
// clerk signed in.
class OnSampleCompany : public testing::TestWithParam<EngineKind> {
  protected:
    void SetUp() override;
    void TearDown() override { ResetScreens(); }
    // What a suite does before each test; a test that is skipped does not come here.
    virtual void Begin() {}

    std::unique_ptr<SampleCompany> company;
    lzJxc control;
};

// Another connection to a company. Throws DatabaseError.
void OpenCompanyAt(const std::string& address, Connection& connection);
// Rows of a statement on a connection of its own, so that it also works between screens.
Rows QueryCompany(const std::string& address, const std::string& sql);
// A statement without rows, the same way.
void ExecuteOnCompany(const std::string& address, const std::string& sql);

} // namespace jxc::test
