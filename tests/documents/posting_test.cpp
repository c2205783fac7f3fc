// Posting as a whole: approve then reverse leaves the books as they were, and a failure at any statement of
// any operation leaves them as they were or does the operation whole. Every type, both engines.
#include <gtest/gtest.h>

#include <set>

#include "base/text.h"
#include "controls/gestures.h"
#include "host/check.h"
#include "session/lookups/book.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

class Posting : public OnOpenCompany {
  protected:
    // Goods in every warehouse.
    void Begin() override {
        OnOpenCompany::Begin();
        const DocumentInput receipt{.type = 1,
                                    .customer = "G001",
                                    .lines = {{"CPU002", 40, 600}, {"MEM002", 60, 170}, {"MB001", 9, 365}}};
        Approved(receipt);
        Approved({.type = 3,
                  .warehouse = "总部仓",
                  .warehouse2 = "零售门市",
                  .lines = {{"CPU002", 9, 0}, {"MEM002", 9, 0}}});
        Approved({.type = 6,
                  .warehouse2 = "代销仓",
                  .customer = "X002",
                  .lines = {{"CPU002", 9, 700}, {"MEM002", 9, 200}}});
    }
};
ON_BOTH_ENGINES(Posting);

// The books without what a reversal leaves changed by design: the cost on the lines, the cost of issues, and
// the whole price, which is worked out anew from the stock of the moment.
// A stock row that an approval made stays, with nothing in it.
Lines WithoutCost(const Lines& books) {
    Lines rest;
    for (const std::string& row : books) {
        const bool emptyStock =
            row.find(" fkcsl=0 ") != std::string::npos && row.find(" fdksl=0 ") != std::string::npos;
        if (row.starts_with("tJXC_CkTj_tmp") || emptyStock)
            continue;
        std::string text = row;
        for (const char* field : {" finvdj2=", " fckcb="}) {
            const size_t at = text.find(field);
            if (at != std::string::npos)
                text.erase(at, text.find(' ', at + 1) - at);
        }
        rest.push_back(text);
    }
    return rest;
}

TEST_P(Posting, ReversalLeavesTheBooksAsTheyWere) {
    for (const int type : AllTypes()) {
        SCOPED_TRACE("type " + std::to_string(type));
        const int key = clerk->Save(TypicalDocument(type));
        ASSERT_GT(key, 0) << clerk->LastBox();
        const Lines before = Books();
        ASSERT_TRUE(clerk->Approve(type, key)) << clerk->LastBox();
        EXPECT_NE(Changes(before, Books()), Lines{});
        EXPECT_EQ(CheckCompany(), Lines{});
        ASSERT_TRUE(clerk->Reverse(type, key)) << clerk->LastBox();
        EXPECT_EQ(Changes(WithoutCost(before), WithoutCost(Books())), Lines{});
        EXPECT_EQ(CheckCompany(), Lines{});
        ASSERT_TRUE(clerk->Delete(type, key)) << clerk->LastBox();
    }
}

// Runs `operation` with a failure at its statement 1, 2, 3 ... until one run meets none. Each time the books
// must be as before, with a message, or as after the whole operation. `undo` takes a completed operation
// back.
void FailAtEveryStatement(Clerk& clerk,
                          const std::function<void(const std::function<void()>& arm)>& operation,
                          const std::function<void()>& undo, const std::set<std::string>& messages) {
    int refused = 0;
    for (int n = 1; n < 500; ++n) {
        const Lines before = Books();
        int statement = 0;
        bool hit = false;
        operation([&] {
            Conn().SetObserver([&, n](std::string_view) {
                if (++statement == n) {
                    hit = true;
                    throw DatabaseError("injected");
                }
            });
        });
        Conn().SetObserver(nullptr);
        ASSERT_FALSE(Conn().InTransaction());
        std::string told;
        for (const MessageBox& box : clerk.view.boxes)
            for (const std::string& message : messages)
                // The supplier history may fail without undoing the approval: it can be read back from the
                // documents.
                if (box.text.find(message) != std::string::npos &&
                    !box.text.starts_with("刷新产品供应商错误："))
                    told = box.text;
        if (!told.empty()) {
            ++refused;
            ASSERT_EQ(Changes(before, Books()), Lines{}) << "statement " << n << ": " << told;
        } else {
            ASSERT_NE(Books(), before)
                << "statement " << n << ": nothing done, nothing told: " << clerk.LastBox();
            // A history that could not be written is found, and nothing else.
            const Lines found = CheckCompany();
            const bool historyFailed =
                clerk.view.boxes.size() > 1 &&
                std::any_of(clerk.view.boxes.begin(), clerk.view.boxes.end(), [](const MessageBox& box) {
                    return box.text.starts_with("刷新产品供应商错误：");
                });
            ASSERT_TRUE(found.empty() ||
                        (historyFailed && found.size() == 1 && found[0].starts_with("供应商历史：")))
                << "statement " << n << ": " << found[0];
            undo();
        }
        if (!hit)
            break;
    }
    EXPECT_GE(refused, 4); // at the least begin, header, a line, commit
}

TEST_P(Posting, AFailureAtAnyStatementChangesNothing) {
    const std::set<std::string> saving{"系统存盘错误，操作已经取消！", "无法检查该[单号]",
                                       "系统数据错误，操作已经取消！", "不存在", "injected"};
    const std::set<std::string> approving{"错误，审核操作未完成！", "injected", "请输入", "订单号"};
    const std::set<std::string> reversing{"错误，反审核操作未完成！", "injected", "请输入"};
    for (const int type : AllTypes()) {
        SCOPED_TRACE("type " + std::to_string(type));
        const DocumentInput input = TypicalDocument(type);
        int key = 0;
        const auto lastKey = [&] {
            return static_cast<int>(Val(One("select max(fInvID) from " + BookStem(type, false) + "01")));
        };
        const auto clickOn = [&](DocAction action) {
            return [&, action](const std::function<void()>& arm) {
                clerk->Open(action, type, key, [&](frmDj02& s) {
                    arm();
                    ClickSave(*clerk, s);
                });
            };
        };
        FailAtEveryStatement(
            *clerk,
            [&](const std::function<void()>& arm) {
                clerk->Enter(input, [&](frmDj02& s) {
                    arm();
                    ClickSave(*clerk, s);
                });
            },
            [&] { clerk->Delete(type, lastKey()); }, saving);
        key = clerk->Save(input);
        ASSERT_GT(key, 0) << clerk->LastBox();
        FailAtEveryStatement(
            *clerk, clickOn(DocAction::Approve), [&] { clerk->Reverse(type, key); }, approving);
        ASSERT_TRUE(clerk->Approve(type, key)) << clerk->LastBox();
        FailAtEveryStatement(
            *clerk, clickOn(DocAction::Reverse), [&] { clerk->Approve(type, key); }, reversing);
        ASSERT_TRUE(clerk->Reverse(type, key)) << clerk->LastBox();
        FailAtEveryStatement(
            *clerk,
            [&](const std::function<void()>& arm) {
                clerk->Open(DocAction::Change, type, key, [&](frmDj02& s) {
                    s.cboInvMemo.text = s.cboInvMemo.text == "改" ? "再改" : "改";
                    arm();
                    ClickSave(*clerk, s);
                });
            },
            [] {}, saving);
        FailAtEveryStatement(
            *clerk, clickOn(DocAction::Delete), [&] { key = clerk->Save(input); }, saving);
        if (HasFatalFailure())
            return;
    }
}

} // namespace

} // namespace jxc::test
