// How often a clerk's work waits for the server: the numbers, not the time. A file is never waited for.
#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "host/company_address.h"
#include "session/database/engine.h"
#include "session/session.h"
#include "tests/support/clerk.h"
#include "tests/support/sample_company.h"

namespace jxc::test {

namespace {

class RoundTrips : public OnSampleCompany {
  protected:
    // What `work` costs more than was spent before.
    static size_t Of(const std::function<void()>& work) {
        const size_t before = Conn().EngineInUse().RoundTrips();
        work();
        return Conn().EngineInUse().RoundTrips() - before;
    }
    size_t AtMost(size_t most) const { return GetParam() == EngineKind::Postgres ? most : 0; }
};
ON_BOTH_ENGINES(RoundTrips);

TEST_P(RoundTrips, ToOpenTheEntryScreen) {
    ScriptedView view;
    const ViewInUse inUse(view);
    size_t trips = 1000;
    view.OnScreen("frmDj02", [&](Screen& s) {
        trips = Conn().EngineInUse().RoundTrips();
        s.Close();
    });
    control.myType(1);
    control.Refresh(13);
    EXPECT_LE(trips, AtMost(12));
    RecordProperty("trips", static_cast<int>(trips));
}

TEST_P(RoundTrips, OfADocumentOfAnyLength) {
    const OpenCompany open(company->Address());
    Clerk clerk;
    // Opens a stored document and saves it there, as an approval or a reversal.
    const auto act = [&](DocAction action, int type, int key, size_t most) {
        size_t opening = Conn().EngineInUse().RoundTrips();
        clerk.Open(action, type, key, [&](frmDj02& s) {
            opening = Conn().EngineInUse().RoundTrips() - opening;
            const size_t saving = Of([&] { ClickSave(clerk, s); });
            EXPECT_LE(opening, AtMost(8)) << "type " << type;
            EXPECT_LE(saving, AtMost(most)) << "type " << type << ", action " << static_cast<int>(action);
            RecordProperty("open" + std::to_string(type) + "-" + std::to_string(s.Grid2.RowCount()),
                           static_cast<int>(opening));
            RecordProperty("act" + std::to_string(static_cast<int>(action)) + "of" + std::to_string(type) +
                               "-" + std::to_string(s.Grid2.RowCount()),
                           static_cast<int>(saving));
        });
    };
    const auto bounds = [&](const DocumentInput& input, size_t approving, size_t reversing) {
        clerk.Enter(input, [&](frmDj02& s) {
            const size_t saving = Of([&] { ClickSave(clerk, s); });
            EXPECT_LE(saving, AtMost(3)) << "type " << input.type;
        });
        const int key = std::stoi(One("Select max(fInvID) From tJXC_CkDj01"));
        act(DocAction::Approve, input.type, key, approving);
        EXPECT_NE(One("Select fInvSHR From tJXC_CkDj01 Where fInvID=" + std::to_string(key)), "");
        act(DocAction::Reverse, input.type, key, reversing);
        EXPECT_EQ(One("Select fInvSHR From tJXC_CkDj01 Where fInvID=" + std::to_string(key)), "");
        clerk.Approve(input.type, key);
    };
    const std::vector<LineInput> three{{"CPU002", 40, 600}, {"MEM002", 60, 170}, {"MB001", 9, 365}};
    DocumentInput many{.type = 1, .customer = "G001"};
    for (int product = 1; product <= 300; ++product) {
        const std::string key = std::to_string(100000 + product);
        Do("Insert Into tJXC_Cp (fCpID,fCpCode,fCpName,fCpFlag,fCpPrice0,fCpPrice1,fCpPrice2,fCpPrice3) "
           "Values (" +
           key + ",'L" + key + "','长单',0,10,0,0,0)");
        many.lines.push_back({"L" + key, 3, 10});
    }
    // A reversal asks for the account entry before its question.
    bounds({.type = 1, .customer = "G001", .lines = {{"CPU002", 9, 600}}}, 5, 5);
    bounds({.type = 1, .customer = "G001", .lines = three}, 5, 5);
    bounds(many, 5, 5);
    bounds({.type = 2, .customer = "X001", .lines = three}, 3, 4);
    bounds({.type = 3, .warehouse = "总部仓", .warehouse2 = "零售门市", .lines = three}, 3, 4);
}

// A receipt for an order: the order is looked for and its balance taken without more waiting.
TEST_P(RoundTrips, OfADocumentThatRefersToAnOrder) {
    const OpenCompany open(company->Address());
    Clerk clerk;
    const std::vector<LineInput> lines{{"CPU002", 40, 600}, {"MEM002", 60, 170}};
    ASSERT_NE(clerk.Save({.type = 23, .customer = "G001", .lines = lines}), 0) << clerk.LastBox();
    const DocumentInput receipt{.type = 1,
                                .customer = "G001",
                                .order = One("Select max(fInvNo) From tJXC_CkHt01"),
                                .lines = {{"CPU002", 15, 600}}};
    clerk.Enter(receipt, [&](frmDj02& s) { EXPECT_LE(Of([&] { ClickSave(clerk, s); }), AtMost(3)); });
    const int key = std::stoi(One("Select max(fInvID) From tJXC_CkDj01"));
    const std::string balance =
        "Select fInvSL2 From tJXC_CkHt02 a Inner Join tJXC_Cp b On a.fCpID=b.fCpID Where b.fCpCode='CPU002'";
    clerk.Open(DocAction::Approve, 1, key,
               [&](frmDj02& s) { EXPECT_LE(Of([&] { ClickSave(clerk, s); }), AtMost(6)); });
    EXPECT_EQ(One(balance), "25");
    clerk.Open(DocAction::Reverse, 1, key,
               [&](frmDj02& s) { EXPECT_LE(Of([&] { ClickSave(clerk, s); }), AtMost(6)); });
    EXPECT_EQ(One(balance), "40");
}

TEST_P(RoundTrips, OfALine) {
    const OpenCompany open(company->Address());
    Clerk clerk;
    clerk.Enter({.type = 1, .customer = "G001"}, [&](frmDj02& s) {
        EXPECT_LE(Of([&] { TypeCell(s, s.Grid2, 1, line::kCode, "CPU002"); }), AtMost(1));
        EXPECT_EQ(Of([&] { TypeCell(s, s.Grid2, 1, line::kQuantity, "5"); }), 0U);
        // Only a code that is none is searched for among all.
        EXPECT_LE(Of([&] { TypeCell(s, s.Grid2, 2, line::kCode, "no such"); }), AtMost(2));
    });
}

} // namespace

} // namespace jxc::test
