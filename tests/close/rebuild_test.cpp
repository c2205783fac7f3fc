// The statistics worked out anew: what they count, what they leave out, what they make of nothing.
#include <gtest/gtest.h>

#include "base/text.h"
#include "close/rebuild_statistics.h"
#include "host/check.h"
#include "session/session.h"
#include "tests/close/closing.h"
#include "tests/support/stock_model.h"

namespace jxc::test {

namespace {

class Rebuild : public OnClosing {
  protected:
    // Counters of the product in the company's one warehouse.
    std::string Counters(const std::string& fields) {
        EXPECT_TRUE(RebuildStockStatistics(MakeDate(2026, 11, 30), "")) << clerk->LastBox();
        return One("select " + fields +
                   " from tJXC_CkTj a Inner Join tJXC_Cp b On a.fCpID=b.fCpID Where "
                   "b.fCpCode='CPU002' And a.fCkName='总部仓'");
    }
};
ON_BOTH_ENGINES(Rebuild);

TEST_P(Rebuild, EqualsWhatPostingHasMade) {
    OneOfEach();
    Lines posted = RowsOf("select fCkName,fCpID,fQcSl,fQcJe,fRkSl,fRkJe,fCkSl,fCkJe,fDkSl,fPdSl,fKcSl,fKcDj "
                          "from tJXC_CkTj Order By fCkName,fCpID");
    ASSERT_TRUE(RebuildStockStatistics(MakeDate(2026, 11, 30), ""));
    EXPECT_EQ(RowsOf("select fCkName,fCpID,fQcSl,fQcJe,fRkSl,fRkJe,fCkSl,fCkJe,fDkSl,fPdSl,fKcSl,fKcDj "
                     "from tJXC_CkTj Order By fCkName,fCpID"),
              posted);
    EXPECT_EQ(CheckCompany(), Lines{});
}

TEST_P(Rebuild, CountsByTheLinesDayAndTheApproval) {
    Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", 10, 600}}});
    const int key = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU002", 5, 600}}});
    EXPECT_EQ(Counters("fRkSl,fKcJe"), "10|6000"); // one is not approved
    ASSERT_TRUE(clerk->Approve(1, key));
    EXPECT_EQ(Counters("fRkSl"), "15");
    Do("Update tJXC_CkDj02 Set fInvDate='2026-12-01' Where fInvID=" + std::to_string(key));
    EXPECT_EQ(Counters("fRkSl"), "10"); // its header is dated within
    // A class beyond the five has its row, with nothing in it.
    Do("Update tJXC_InvSet Set fSetTjType=9 Where fSetNo=1");
    EXPECT_EQ(Counters("fQcSl,fRkSl,fRkJe,fCkSl,fDkSl,fPdSl,fKcSl,fKcDj,fKcJe"), "0|0|0|0|0|0|0|620|0");
    Do("Delete From tJXC_CkDj01 Where 1=1");
    Do("Delete From tJXC_CkDj02 Where 1=1");
    ASSERT_TRUE(RebuildStockStatistics(MakeDate(2026, 11, 30), ""));
    EXPECT_EQ(One("select count(*) from tJXC_CkTj"), "0");
}

TEST_P(Rebuild, WhatPeopleReadAsNothingIsNothing) {
    for (const double quantity : {0.1, 0.2})
        Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", quantity, 600}}});
    Approved({.type = 2, .customer = "X001", .lines = {{"CPU002", 0.3, 700}}});
    EXPECT_EQ(Counters("fKcSl,fKcJe"), "0|0");
    // Bought and given back: no goods were received, so the cost price serves.
    Approved({.type = -1, .customer = "G001", .lines = {{"CPU002", 0.3, 600}}});
    EXPECT_EQ(Counters("fRkSl,fKcSl,fKcDj,fKcJe"), "0|-0.3|620|-186");
    for (const double quantity : {0.1, 0.2})
        Approved({.type = -2, .customer = "X001", .lines = {{"CPU002", quantity, 700}}});
    EXPECT_EQ(Counters("fCkSl,fKcSl,fKcDj"), "0|0|620");
    RebuildOverallCost("");
    EXPECT_EQ(One("select fKcSl,fKcJe,fKcDj from tJXC_CkTj_tmp"), "0|0|620");
}

// 3 at 200 and a rate of 7.1, 5 at 210 and 7.2: 4260 + 7560.
TEST_P(Rebuild, ValuesAreInHomeCurrency) {
    Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", 3, 200}}});
    Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", 5, 210}}});
    Do("Update tJXC_CkDj02 Set fInvHbDl=7.1 Where fInvSL=3");
    Do("Update tJXC_CkDj02 Set fInvHbDl=7.2 Where fInvSL=5");
    EXPECT_EQ(Counters("fRkSl,fRkJe,fKcDj"), "8|11820|1477.5");
}

TEST_P(Rebuild, TheCostOverAllWarehousesLeavesOutThoseThatAreGone) {
    Approved({.type = 1, .customer = "G001", .lines = {{"CPU002", 10, 600}}});
    Approved({.type = 3, .warehouse = "总部仓", .warehouse2 = "零售门市", .lines = {{"CPU002", 4, 0}}});
    ASSERT_TRUE(RebuildStockStatistics(MakeDate(2026, 11, 30), ""));
    RebuildOverallCost("");
    // 6 at 600 and, in the shop that has received none, 4 at the cost price 620
    EXPECT_EQ(One("select fKcSl,fKcJe,fKcDj from tJXC_CkTj_tmp"), "10|6080|608");
    Do("Update tJXC_CkTj Set fCkName='关闭的仓' Where fCkName='零售门市'");
    RebuildOverallCost("");
    EXPECT_EQ(One("select fKcSl,fKcJe,fKcDj from tJXC_CkTj_tmp"), "6|3600|600");
}

// A year of random documents, closed month by month; three months are taken back and closed again.
TEST_P(Rebuild, AYearAgreesWithItsModel) {
    const unsigned seed = SeedOfRun();
    SCOPED_TRACE("JXC_SEED=" + std::to_string(seed));
    RandomTrade trade(seed);
    StockModel model;
    for (int month = 0; month < 12; ++month) {
        const Date first = AddMonths(MakeDate(2026, 11, 1), month);
        SCOPED_TRACE(IsoText(first));
        FixToday(AddDays(first, 4));
        std::vector<std::pair<DocumentInput, int>> approved;
        for (int step = 0; step < 12; ++step) {
            if (!approved.empty() && trade.Below(5) == 0) {
                const auto [document, key] = approved.back();
                ASSERT_TRUE(clerk->Reverse(document.type, key)) << clerk->LastBox();
                ASSERT_TRUE(clerk->Delete(document.type, key)) << clerk->LastBox();
                model.Post(document, -1);
                approved.pop_back();
                continue;
            }
            DocumentInput document = trade.Document();
            document.date = IsoText(AddDays(first, trade.Below(28)));
            if (document.type == 4) // the clerk types counts, the model wants differences
                for (LineInput& input : document.lines)
                    input.quantity += model.At(document.warehouse, input.code).Quantity();
            const int key = Approved(document);
            if (document.type == 4)
                for (LineInput& input : document.lines)
                    input.quantity -= model.At(document.warehouse, input.code).Quantity();
            if (!document.product.empty())
                document.pieces = 2;
            model.Post(document, 1);
            approved.emplace_back(document, key);
        }
        FixToday(AddDays(AddMonths(first, 1), 2));
        for (int closing = 0; closing < (month % 4 == 1 ? 2 : 1); ++closing) {
            if (closing > 0) {
                ASSERT_TRUE(Reverse()) << clerk->LastBox();
            }
            ASSERT_TRUE(Close()) << clerk->LastBox();
            const std::string slice =
                "(select * from tJXC_CkTj_Bak Where Year(fMonth)=" + std::to_string(YearOf(first)) +
                " And Month(fMonth)=" + std::to_string(MonthOf(first)) + ") a";
            CompareStock(model, slice);
            if (HasFatalFailure())
                return;
        }
        for (const auto& [place, sold] : model.Bought()) {
            const std::string row =
                One("select sum(a.fCkSL),sum(a.fCkJE) from tJXC_KhTj_Bak a Inner Join tJXC_Cp b On "
                    "a.fCpID=b.fCpID Inner Join cards c On c.fID=a.fKhID Where b.fCpCode='" +
                    place.second + "' And c.compcode='" + place.first + "' And Year(a.fMonth)=" +
                    std::to_string(YearOf(first)) + " And Month(a.fMonth)=" + std::to_string(MonthOf(first)));
            const size_t bar = row.find('|');
            if (row ==
                "null|null") { // a sale and its return in the same month leave a row, both taken back none
                EXPECT_NEAR(sold.first, 0, 1e-9);
                continue;
            }
            EXPECT_NEAR(Val(row.substr(0, bar)), sold.first, 1e-7) << place.first << " " << place.second;
            EXPECT_NEAR(Val(row.substr(bar + 1)), sold.second, 1e-5) << place.first << " " << place.second;
        }
        model.Close();
        CompareStock(model);
        if (HasFatalFailure())
            return;
        ASSERT_EQ(CheckCompany(), Lines{});
    }
    EXPECT_EQ(One("select fSysDate from tJXC_InvSys"), "2027-11-01");
}

} // namespace

} // namespace jxc::test
