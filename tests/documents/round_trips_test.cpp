// How often a clerk's work waits for the server, and what for: the numbers, not the time.
#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "database/engine.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

// What is waited for, one word a wait.
using Waits = std::vector<const char*>;

size_t Trips() {
    return Conn().EngineInUse().RoundTrips();
}

const Waits kOpenedCompany{"version and tables"};
const Waits kOpenedDocument{"settings", "warehouses", "right to add customers",
                            "document", "customer",   "stock and prices of its lines"};
const Waits kSaved{"questions asked first", "rows that it goes by", "commit"};

class RoundTrips : public OnOpenCompany {
  protected:
    static void ExpectWaits(const Waits& waits, const std::string& doing, const std::function<void()>& work) {
        const size_t before = Trips();
        work();
        EXPECT_EQ(Trips() - before, waits.size()) << doing;
    }
    void ExpectSaveWaits(const Waits& waits, const std::string& doing, frmDj02& s) {
        ExpectWaits(waits, doing, [&] { ClickSave(*clerk, s); });
    }
    // Enters and saves a document. Its key.
    int Entered(const DocumentInput& input) {
        clerk->Enter(input, [&](frmDj02& s) { ExpectSaveWaits(kSaved, "saving", s); });
        return std::stoi(One("Select max(fInvID) From tJXC_CkDj01"));
    }
    // Opens a stored document and saves it there, as an approval or a reversal.
    void Act(DocAction action, int type, int key, const Waits& opening, const Waits& saving) {
        const bool approving = action == DocAction::Approve;
        const std::string doing =
            (approving ? "approval" : "reversal") + (" of type " + std::to_string(type));
        const size_t before = Trips();
        clerk->Open(action, type, key, [&](frmDj02& s) {
            EXPECT_EQ(Trips() - before, opening.size()) << "opening for " << doing;
            ExpectSaveWaits(saving, doing, s);
        });
        EXPECT_EQ(One("Select fInvSHR From tJXC_CkDj01 Where fInvID=" + std::to_string(key)),
                  approving ? "王芳" : "");
    }
};
ON_POSTGRES(RoundTrips);

TEST_P(RoundTrips, ToOpenTheEntryScreen) {
    EXPECT_EQ(Trips(), kOpenedCompany.size());
    clerk.reset();
    open.reset();
    ScriptedView view;
    const ViewInUse inUse(view);
    size_t trips = 0;
    view.OnScreen("frmDj02", [&](Screen&) { trips = Trips(); });
    control.myType(1);
    control.Refresh(13);
    const Waits shown{"own company", "settings", "warehouses", "right to add customers", "exchange rate"};
    EXPECT_EQ(trips, kOpenedCompany.size() + shown.size());
}

TEST_P(RoundTrips, OfADocumentOfAnyLength) {
    const Waits openedTransfer{"settings", "warehouses", "warehouses to go to", "document",
                               "stock and prices of its lines"};
    const auto lives = [&](const DocumentInput& input, const Waits& opening, const Waits& approval,
                           const Waits& reversal) {
        const int key = Entered(input);
        Act(DocAction::Approve, input.type, key, opening, approval);
        Act(DocAction::Reverse, input.type, key, opening, reversal);
        clerk->Approve(input.type, key);
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
    // A reversal asks for the account entry before its question. Writes of stock are waited for by whatever is
    // read next, otherwise before the commit.
    for (const DocumentInput& receipt :
         {DocumentInput{.type = 1, .customer = "G001", .lines = {{"CPU002", 9, 600}}},
          DocumentInput{.type = 1, .customer = "G001", .lines = three}, many})
        lives(receipt, kOpenedDocument,
              {"document and stock", "whole prices", "supplier history", "account number", "commit"},
              {"account entry", "document and stock", "whole prices", "supplier history", "commit"});
    lives({.type = 2, .customer = "X001", .lines = three}, kOpenedDocument,
          {"document and stock", "account number", "commit"},
          {"account entry", "document and stock", "stock written", "commit"});
    lives({.type = 3, .warehouse = "总部仓", .warehouse2 = "零售门市", .lines = three}, openedTransfer,
          {"document and stock", "stock written", "commit"},
          {"account entry", "document and stock", "stock written", "commit"});
}

// A receipt for an order: the order is looked for before the question, and its balance taken in passing; it is given back
// with one wait more.
TEST_P(RoundTrips, OfADocumentThatRefersToAnOrder) {
    const std::vector<LineInput> lines{{"CPU002", 40, 600}, {"MEM002", 60, 170}};
    ASSERT_NE(clerk->Save({.type = 23, .customer = "G001", .lines = lines}), 0) << clerk->LastBox();
    const int key = Entered({.type = 1,
                             .customer = "G001",
                             .order = One("Select max(fInvNo) From tJXC_CkHt01"),
                             .lines = {{"CPU002", 15, 600}}});
    const std::string balance =
        "Select fInvSL2 From tJXC_CkHt02 a Inner Join tJXC_Cp b On a.fCpID=b.fCpID Where b.fCpCode='CPU002'";
    Act(DocAction::Approve, 1, key, kOpenedDocument,
        {"order", "document and stock", "whole prices", "supplier history", "account number", "commit"});
    EXPECT_EQ(One(balance), "25");
    Act(DocAction::Reverse, 1, key, kOpenedDocument,
        {"account entry", "document and stock", "balance of the order", "whole prices", "supplier history",
         "commit"});
    EXPECT_EQ(One(balance), "40");
}

TEST_P(RoundTrips, OfALine) {
    clerk->Enter({.type = 1, .customer = "G001"}, [&](frmDj02& s) {
        const auto typing = [&](int row, int column, const char* text) {
            return [&s, row, column, text] { TypeCell(s, s.Grid2, row, column, text); };
        };
        ExpectWaits({"product and its stock"}, "code", typing(1, line::kCode, "CPU002"));
        ExpectWaits({}, "quantity", typing(1, line::kQuantity, "5"));
        // Only a code that is none is searched for among all.
        ExpectWaits({"product of that code", "products like it"}, "no code",
                    typing(2, line::kCode, "no such"));
    });
}

} // namespace

} // namespace jxc::test
