// The screen that asks for a new company: what it leaves to its opener, and what it refuses. It has no company open.
#include "host/editors/frmHostNewCompany.h"

#include <cstdlib>

#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "controls/scripted_view.h"
#include "session/session.h"

namespace jxc::test {

namespace {

class NewCompanyScreen : public testing::Test {
  protected:
    static void SetUpTestSuite() { setenv("JXC_TODAY", "2026-11-05", 1); }
    void SetUp() override { ASSERT_EQ(session.Conn, nullptr); }
    // Works on the screen until `work` has ended; then it is closed.
    void Work(const std::function<void()>& work) {
        view.OnScreen("frmHostNewCompany", [&](Screen&) { work(); });
        ShowModal(s);
    }
    void Fill() {
        EnterText(s, s.txtCompName, "远山商行");
        EnterText(s, s.txtUserName, "林远");
        EnterText(s, s.txtPassword, "geheim");
        EnterText(s, s.txtPassword2, "geheim");
    }
    // What is told when `text` stands in the box; the screen stays, and the cursor goes there.
    std::string Refusal(TextBox& box, const std::string& text) {
        const std::string before = box.text;
        box.text = text;
        view.boxes.clear();
        Click(s, s.cmdCreate);
        box.text = before;
        EXPECT_TRUE(s.IsOpen());
        EXPECT_FALSE(s.wishes);
        EXPECT_EQ(s.Focus(), &box);
        return view.boxes.empty() ? "" : view.boxes.back().text;
    }

    ScriptedView view;
    ViewInUse inUse{view};
    frmHostNewCompany s;
};

TEST_F(NewCompanyScreen, LeavesWhatWasWished) {
    Work([&] {
        EXPECT_EQ(s.Focus(), &s.txtCompName);
        EXPECT_EQ(s.cboPeriod.Chosen(), "2026-11"); // today is 5 November
        EXPECT_EQ(s.cboPeriod.items.front(), "2025-01");
        EXPECT_FALSE(s.txtTaxRate.IsUsable());
        Fill();
        Click(s, s.cmdCreate);
        EXPECT_FALSE(s.IsOpen());
    });
    ASSERT_TRUE(s.wishes);
    EXPECT_EQ(s.wishes->name + "/" + s.wishes->warehouseCode + "/" + s.wishes->warehouse + "/" +
                  s.wishes->user,
              "远山商行/01/总部仓/林远");
    const BooksStart& books = s.wishes->books;
    EXPECT_EQ(books.firstDay, MakeDate(2026, 11, 1));
    EXPECT_EQ(books.quantityDecimals, 2);
    EXPECT_EQ(books.priceDecimals, 2);
    EXPECT_EQ(books.currency, "人民币");
    EXPECT_EQ(books.taxWay, TaxWay::None);
    EXPECT_EQ(books.taxRate, 0);
    EXPECT_EQ(books.costMethod, CostMethod::MovingAverage);
    EXPECT_TRUE(IsPassword(s.wishes->passwordHash, "geheim"));
    EXPECT_TRUE(view.boxes.empty());
    EXPECT_EQ(session.Conn, nullptr);
}

TEST_F(NewCompanyScreen, TakesEveryWish) {
    Work([&] {
        EnterText(s, s.txtCompName, " 海港 ");
        ChooseItem(s, s.cboPeriod, 2);
        EnterText(s, s.txtDeciLen[0], "0");
        EnterText(s, s.txtDeciLen[1], "9");
        EnterText(s, s.txtMoneyCode, "HKD");
        ChooseItem(s, s.cboTaxWay, 1);
        EXPECT_EQ(s.txtTaxRate.text, "0.05");
        ChooseItem(s, s.cboTaxWay, 2);
        EXPECT_EQ(s.txtTaxRate.text, "0.13");
        EnterText(s, s.txtTaxRate, "0.06");
        ChooseItem(s, s.cboSysCost, 0);
        EnterText(s, s.txtCkCode, "A");
        EnterText(s, s.txtCkName, "码头");
        EnterText(s, s.txtUserName, "何海");
        Click(s, s.cmdCreate);
    });
    ASSERT_TRUE(s.wishes);
    const BooksStart& books = s.wishes->books;
    EXPECT_EQ(s.wishes->name, "海港");
    EXPECT_EQ(books.firstDay, MakeDate(2025, 3, 1));
    EXPECT_EQ(books.quantityDecimals, 0);
    EXPECT_EQ(books.priceDecimals, 9);
    EXPECT_EQ(books.currency, "HKD");
    EXPECT_EQ(books.taxWay, TaxWay::Contained);
    EXPECT_EQ(books.taxRate, 0.06);
    EXPECT_EQ(books.costMethod, CostMethod::WeightedAverage);
    EXPECT_EQ(s.wishes->warehouseCode + s.wishes->warehouse + s.wishes->user, "A码头何海");
    EXPECT_EQ(s.wishes->passwordHash, ""); // none was typed
}

TEST_F(NewCompanyScreen, RefusesWhatNoCompanyCanHave) {
    Work([&] {
        Fill();
        EXPECT_EQ(Refusal(s.txtCompName, "  "), "[公司名称]不能为空值！");
        // 21 characters of two bytes each
        EXPECT_EQ(Refusal(s.txtCompName, "一二三四五六七八九十一二三四五六七八九十一"),
                  "[公司名称]太长，最多 40 个字节，每个汉字占两个字节！");
        EXPECT_EQ(Refusal(s.txtDeciLen[0], ""), "[数量小数位]须为 0 至 9 的一位数字！");
        EXPECT_EQ(Refusal(s.txtDeciLen[1], "-"), "[单价小数位]须为 0 至 9 的一位数字！");
        EXPECT_EQ(Refusal(s.txtDeciLen[1], "10"), "[单价小数位]须为 0 至 9 的一位数字！");
        EXPECT_EQ(Refusal(s.txtMoneyCode, ""), "[本位币]不能为空值！");
        EXPECT_EQ(Refusal(s.txtMoneyCode, "一二三四五六"),
                  "[本位币]太长，最多 10 个字节，每个汉字占两个字节！");
        EXPECT_EQ(Refusal(s.txtCkCode, ""), "[仓库编号]不能为空值！");
        EXPECT_EQ(Refusal(s.txtCkCode, "1234567890123"),
                  "[仓库编号]太长，最多 12 个字节，每个汉字占两个字节！");
        EXPECT_EQ(Refusal(s.txtCkName, ""), "[首个仓库]不能为空值！");
        EXPECT_EQ(Refusal(s.txtCkName, "一二三四五六七八九十一"),
                  "[首个仓库]太长，最多 20 个字节，每个汉字占两个字节！");
        EXPECT_EQ(Refusal(s.txtUserName, ""), "[用户]不能为空值！");
        EXPECT_EQ(Refusal(s.txtUserName, "一二三四五六七八九十一"),
                  "[用户]太长，最多 20 个字节，每个汉字占两个字节！");
        EXPECT_EQ(Refusal(s.txtPassword2, "Geheim"), "两次输入的密码不一致！");
        ChooseItem(s, s.cboTaxWay, 2);
        for (const char* rate : {"1", "13", "-0.1", ""})
            EXPECT_EQ(Refusal(s.txtTaxRate, rate), "[税率]须为 0 至 1 之间的小数，例如 13% 请输入 0.13！")
                << rate;
    });
    EXPECT_FALSE(s.wishes);
}

TEST_F(NewCompanyScreen, TakesNoQuote) {
    Work([&] {
        Fill();
        for (TextField* box : {&s.txtCompName, &s.txtMoneyCode, &s.txtCkCode, &s.txtCkName, &s.txtUserName}) {
            s.MoveFocus(box);
            box->text = "a'b";
            view.boxes.clear();
            try {
                Click(s, s.cmdCreate);
            } catch (const GestureRefused&) { // the box keeps the cursor
            }
            EXPECT_TRUE(s.IsOpen());
            ASSERT_EQ(view.boxes.size(), 1U) << box->name;
            EXPECT_NE(view.boxes[0].text.find("引号"), std::string::npos);
            box->text = "a";
        }
    });
    EXPECT_FALSE(s.wishes);
}

// Who goes back at the file finds what was typed; who leaves is asked before it goes.
TEST_F(NewCompanyScreen, KeepsWhatWasTyped) {
    Work([&] {
        EXPECT_EQ(s.UnsavedWork(), "");
        Fill();
        EXPECT_EQ(s.UnsavedWork(), "帐套尚未建立，放弃所作的填写？");
        Click(s, s.cmdCreate);
    });
    ASSERT_TRUE(s.wishes);
    EXPECT_EQ(s.UnsavedWork(), "");
    Work([&] {
        EXPECT_FALSE(s.wishes);
        EXPECT_EQ(s.txtCompName.text + s.txtUserName.text + s.txtPassword.text, "远山商行林远geheim");
        EXPECT_EQ(s.Focus(), &s.txtCompName);
        s.SaveWork();
        EXPECT_FALSE(s.IsOpen());
    });
    EXPECT_TRUE(s.wishes);
}

} // namespace

} // namespace jxc::test
