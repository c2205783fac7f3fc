// What the two print commands hand to the printer.
#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "documents/frmDj02.h"
#include "session/components.h"
#include "session/printing/html_pages.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

class RecordingPrinter : public Printer {
  public:
    void Print(const GridPrintJob& job) override {
        grid = {job.title, job.typeName, job.amount, std::to_string(job.grid->RowCount())};
        header = job.header;
    }
    void Print(const TemplatePrintJob& job) override {
        designed = job;
        page = TemplatePage(job);
    }
    std::vector<std::string> grid, header;
    std::optional<TemplatePrintJob> designed;
    std::string page;
};

class Printing : public OnOpenCompany {
  protected:
    void Begin() override {
        OnOpenCompany::Begin();
        auto printer = std::make_unique<RecordingPrinter>();
        printed = printer.get();
        before = std::exchange(ComponentsInUse().printer, std::move(printer));
    }
    void TearDown() override {
        ComponentsInUse().printer = std::move(before);
        OnOpenCompany::TearDown();
    }
    void Show(int type, int key, const std::function<void(frmDj02&)>& work) {
        clerk->Open(DocAction::Query, type, key, work);
    }
    static std::vector<std::string> Keys(const FieldList& fields, size_t from) {
        std::vector<std::string> keys;
        for (size_t at = from; at < fields.size(); at += 2)
            keys.push_back(fields[at]);
        return keys;
    }
    static std::string ValueOf(const FieldList& fields, const std::string& key) {
        for (size_t at = 0; at + 1 < fields.size(); at += 2)
            if (fields[at] == key)
                return fields[at + 1];
        return "(none)";
    }
    static constexpr size_t kCompany = 20; // ten pairs of the company come first

    RecordingPrinter* printed = nullptr;
    std::unique_ptr<Printer> before;
};
ON_BOTH_ENGINES(Printing);

TEST_P(Printing, TheGridGoesWithTheFieldsInTheirOrder) {
    const int key = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}}});
    Show(1, key, [&](frmDj02& s) {
        s.txtMemo.text = "急";
        Click(s, s.cmdPrint1);
        Click(s, s.cmdPrint1); // the collection begins anew
    });
    EXPECT_EQ(printed->grid, (std::vector<std::string>{"入库单", "入库单", "2000.00", "1"}));
    EXPECT_EQ(printed->header.at(0), "<公司单位>");
    EXPECT_EQ(
        Keys(printed->header, kCompany),
        (std::vector<std::string>{"日期",   "单号",     "订单号",   "摘要",     "仓库",     "入库",
                                  "货币",   "兑率",     "税率",     "客户单位", "发货地址", "邮编",
                                  "联系人", "客户电话", "客户手机", "客户传真", "电子邮件", "网址",
                                  "审核人", "经手人",   "备注",     "金额合计", "参考金额", "退货否？"}));
    EXPECT_EQ(ValueOf(printed->header, "单号"), "20261105RK001");
    EXPECT_EQ(ValueOf(printed->header, "备注"), "急");
    EXPECT_EQ(ValueOf(printed->header, "客户单位"), "深圳市芯源电子有限公司");
    EXPECT_EQ(ValueOf(printed->header, "退货否？"), "");
}

TEST_P(Printing, AReturnShowsItsAmountWithoutTheSign) {
    const int key = clerk->Save({.type = -1, .customer = "G001", .lines = {{"CPU001", 2, 400}}});
    Show(-1, key, [&](frmDj02& s) { Click(s, s.cmdPrint1); });
    EXPECT_EQ(printed->grid.at(2), "800.00");
    EXPECT_EQ(ValueOf(printed->header, "退货否？"), "退货");
}

TEST_P(Printing, ATemplateGetsLinesAndColumns) {
    Do("Update tJXC_Cp Set fCpGG='<i>' Where fCpCode='CPU001'");
    const int key =
        clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}, {"CPU002", 1.5, 600}}});
    Show(1, key, [&](frmDj02& s) { Click(s, s.cmdPrint2); });
    ASSERT_TRUE(printed->designed);
    const TemplatePrintJob& job = *printed->designed;
    EXPECT_EQ(
        Keys(job.fields, kCompany),
        (std::vector<std::string>{"<日期>", "<单号>", "<订单号>", "<金额合计>", "<摘要>", "<货币>", "<仓库>",
                                  "<仓库2>", "<客户单位>", "<发货地址>", "<邮编>", "<联系人>", "<客户电话>",
                                  "<客户手机>", "<客户传真>", "<电子邮件>", "<网址>", "备注"}));
    EXPECT_EQ(ValueOf(job.fields, "<货币>"), "人民币 (1.0000)");
    EXPECT_EQ(ValueOf(job.fields, "<金额合计>"), "2900.00");
    EXPECT_EQ(ValueOf(job.further, "客户邮编"), "518031");
    EXPECT_EQ(ValueOf(job.further, "客户网址"), "www.xinyuan.example");
    const std::vector<std::pair<std::string, std::string>> columns = {
        {"<<编码>>", "fCpCode"},     {"<<品名规格>>", "fCpName"}, {"<<单位>>", "fCpUnit"},
        {"<<数量>>", "fInvSl"},      {"<<单价>>", "fInvDj"},      {"<<金额>>", "fInvJe"},
        {"<<税率>>", "fInvTaxRate"}, {"<<税额>>", "fInvTax"},     {"<<备注>>", "fInvOther1"},
        {"<<备注2>>", "fInvOther2"}, {"<<结余数>>", "fInvSl2"}};
    EXPECT_EQ(job.columns, columns);
    ASSERT_EQ(job.lines.size(), 2u);
    EXPECT_EQ(job.lines[0][1], "处理器 双核/<i>");
    EXPECT_EQ(job.lines[1][3], "1.50");
    EXPECT_EQ(job.lines[1][5], "900.00");
    EXPECT_EQ(job.mode, session.UserName == session.ZgName ? 3 : 1);
    EXPECT_NE(printed->page.find("处理器 双核/&lt;i&gt;"), std::string::npos);
    EXPECT_NE(printed->page.find("贰仟玖佰元整"), std::string::npos);
}

// What was typed to be printed with one document is not printed with the next one.
TEST_P(Printing, AMemoStaysWithItsDocument) {
    const int key = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}}});
    clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 6, 400}}});
    Show(1, key, [&](frmDj02& s) {
        s.txtMemo.text = "急";
        Click(s, s.cmdNext);
        Click(s, s.cmdPrint2);
    });
    ASSERT_TRUE(printed->designed);
    EXPECT_EQ(ValueOf(printed->designed->fields, "<金额合计>"), "2400.00");
    EXPECT_EQ(ValueOf(printed->designed->fields, "备注"), "");
}

// A stocktake's lines hold what was counted: 3 in the book and 2 more.
TEST_P(Printing, AStocktakeHasItsCount) {
    Approved({.type = 1, .customer = "G001", .lines = {{"CPU001", 3, 400}}});
    const int key = clerk->Save({.type = 4, .warehouse = "总部仓", .lines = {{"CPU001", 5}}});
    Show(4, key, [&](frmDj02& s) { Click(s, s.cmdPrint2); });
    ASSERT_TRUE(printed->designed);
    const TemplatePrintJob& job = *printed->designed;
    std::map<std::string, std::string> line;
    for (size_t at = 0; at < job.columns.size(); ++at)
        line[job.columns[at].first] = job.lines.at(0)[at];
    EXPECT_EQ(line["<<帐面数>>"], "3.00");
    EXPECT_EQ(line["<<实盘数>>"], "5.00");
    EXPECT_EQ(line["<<盈亏数>>"], "2.00");
}

// Orders that one plan made share a number: a supplier is shown his own lines alone.
TEST_P(Printing, OfDocumentsWithOneNumberOnlyTheOneInHand) {
    const int first = clerk->Save({.type = 23, .customer = "G001", .lines = {{"CPU001", 1, 400}}});
    const int second = clerk->Save({.type = 23, .customer = "G005", .lines = {{"CPF001", 2, 60}}});
    for (const char* table : {"tJXC_CkHt01", "tJXC_CkHt02"})
        Do("Update " + std::string(table) +
           " Set fInvNo='20261105CG001' Where fInvID=" + std::to_string(second));
    Show(23, first, [&](frmDj02& s) { Click(s, s.cmdPrint2); });
    ASSERT_TRUE(printed->designed);
    ASSERT_EQ(printed->designed->lines.size(), 1u);
    EXPECT_EQ(printed->designed->lines[0][0], "CPU001");
}

TEST_P(Printing, WhatIsNotSavedYet) {
    const DocumentInput unsaved{.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}}};
    clerk->Enter(unsaved, [&](frmDj02& s) {
        EXPECT_TRUE(s.cmdPrint1.enabled && s.cmdPrint2.enabled);
        Click(s, s.cmdPrint2);
        EXPECT_EQ(clerk->LastBox(), "未有可供打印的数据记录！");
    });
    Do("Update tJXC_InvSys Set fSysAuto2=1");
    clerk->Enter(unsaved, [&](frmDj02& s) { EXPECT_FALSE(s.cmdPrint1.enabled || s.cmdPrint2.enabled); });
    const int key = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}}});
    Show(1, key, [&](frmDj02& s) { EXPECT_TRUE(s.cmdPrint1.enabled && s.cmdPrint2.enabled); });
    EXPECT_FALSE(printed->designed);
}

} // namespace

} // namespace jxc::test
