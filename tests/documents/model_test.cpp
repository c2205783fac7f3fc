// Random documents of all stock types, entered, approved, reversed and deleted in any order, against a naive
// model in memory. After each step stock, prices, accounts and balances must agree. The seed is printed;
// JXC_SEED repeats a run.
#include <gtest/gtest.h>

#include "base/text.h"
#include "session/session.h"
#include "tests/support/stock_model.h"

namespace jxc::test {

namespace {

void CompareWithBooks(const StockModel& model) {
    CompareStock(model);
    ASSERT_NEAR(Val(One("select sum(fMoneyA) from tAccountDetail")), model.AccountTotal(), 1e-6);
}

class ModelOfStock : public OnOpenCompany {};
ON_BOTH_ENGINES(ModelOfStock);

TEST_P(ModelOfStock, AgreesAfterEveryStep) {
    const unsigned seed = SeedOfRun();
    SCOPED_TRACE("JXC_SEED=" + std::to_string(seed));
    RandomTrade trade(seed);
    StockModel model;
    std::vector<std::pair<DocumentInput, int>> approved;
    for (int step = 0; step < 60; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        if (!approved.empty() && trade.Below(4) == 0) {
            const size_t at = static_cast<size_t>(trade.Below(static_cast<int>(approved.size())));
            const auto [document, key] = approved[at];
            ASSERT_TRUE(clerk->Reverse(document.type, key)) << clerk->LastBox();
            model.Post(document, -1);
            ASSERT_TRUE(clerk->Delete(document.type, key)) << clerk->LastBox();
            approved.erase(approved.begin() + static_cast<long>(at));
        } else {
            DocumentInput document = trade.Document();
            if (document.type == 4) // the clerk types counts, the model wants differences
                for (LineInput& input : document.lines)
                    input.quantity += model.At(document.warehouse, input.code).Quantity();
            const int key = clerk->Save(document);
            ASSERT_GT(key, 0) << "type " << document.type << ": " << clerk->LastBox();
            ASSERT_TRUE(clerk->Approve(document.type, key)) << clerk->LastBox();
            if (document.type == 4)
                for (LineInput& input : document.lines)
                    input.quantity -= model.At(document.warehouse, input.code).Quantity();
            if (!document.product.empty())
                document.pieces = 2;
            model.Post(document, 1);
            approved.emplace_back(document, key);
        }
        CompareWithBooks(model);
        if (HasFatalFailure())
            return;
    }
}

} // namespace

} // namespace jxc::test
