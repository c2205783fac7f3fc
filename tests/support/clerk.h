// What tests with a clerk share: documents that make sense, a suite on an open company, and the books before and after.
#pragma once

#include <string>
#include <vector>

#include "host/company_address.h"
#include "robot/clerk.h"
#include "tests/support/on_sample_company.h"

namespace jxc::test {

// A document that makes sense for the type on the sample company with stock on hand, 1 to 3 lines.
DocumentInput TypicalDocument(int type);
// All 20 document types.
const std::vector<int>& AllTypes();

// Every test of a suite runs on a sample company of its own that is open, with a clerk at work, on both engines.
class OnOpenCompany : public OnSampleCompany {
  protected:
    void Begin() override;
    void TearDown() override;
    // The key of the document saved and approved; a refusal fails the test.
    int Approved(const DocumentInput& input);

    std::unique_ptr<OpenCompany> open;
    std::unique_ptr<Clerk> clerk;
};

// The rows of the tables that documents touch, as texts, to be compared before and after.
std::vector<std::string> Books();
// What differs between two such states: "- " and a row that went, "+ " and a row that came.
std::vector<std::string> Changes(const std::vector<std::string>& before,
                                 const std::vector<std::string>& after);

} // namespace jxc::test
