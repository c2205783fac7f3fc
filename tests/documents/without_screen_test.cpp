// Documents written, changed, approved, taken back and deleted by routines alone: no screen and no view is there.
#include <gtest/gtest.h>

#include <algorithm>

#include "controls/view.h"
#include "documents/approval/approve_document.h"
#include "documents/write_document.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

std::int64_t CardOf(const std::string& code) {
    return std::stoll(One("Select fID From cards Where CompCode='" + code + "'"));
}

std::int64_t ProductOf(const std::string& code) {
    return std::stoll(One("Select fCpID From tJXC_Cp Where fCpCode='" + code + "'"));
}

DocumentLine LineOf(const std::string& code, double quantity, double price) {
    DocumentLine line;
    line.product = ProductOf(code);
    line.quantity = quantity;
    line.price = price;
    line.amount = quantity * price;
    return line;
}

DocumentData DocumentOf(int type, const std::string& number, std::vector<DocumentLine> lines) {
    DocumentData document = BlankDocument(type);
    document.number = number;
    document.date = MakeDate(2026, 11, 5);
    document.currency = "人民币";
    document.lines = std::move(lines);
    return document;
}

// Each in a transaction of its own, committed unless it is refused.
std::string Committed(const std::function<std::string()>& work) {
    Transaction transaction(Conn());
    std::string refusal = work();
    if (refusal.empty())
        transaction.Commit();
    return refusal;
}

std::string Write(DocumentData& document) {
    return Committed([&] { return WriteNewDocument(document); });
}
std::string Change(const DocumentData& document, const DocumentRead& read) {
    return Committed([&] { return WriteChangedDocument(document, read.asLoaded, read.data.number); });
}
std::string Delete(const DocumentRead& read) {
    return Committed([&] { return DeleteDocument(read.data, read.asLoaded); });
}

std::string Approve(int type, int key) {
    const DocumentRead read = ReadDocument(type, key);
    return ApproveDocument(read.data, read.asLoaded).refusal;
}
std::string Reverse(int type, int key) {
    const DocumentRead read = ReadDocument(type, key);
    return ReverseDocument(read.data, read.asLoaded).refusal;
}

Lines Headers(const std::string& stem) {
    return RowsOf(
        "Select fInvID,fInvType,fInvNo,fHtNo,fInvHb,fInvHbDl,fInvJE,fInvMemo,fInvDLR,fInvJbr,fInvSHR,"
        "fCkName,fCkName2,fFlag From " +
        stem + "01 Order By fInvID");
}

Lines LinesIn(const std::string& stem) {
    return RowsOf(
        "Select b.fInvID,b.fInv1,b.fRowID,b.fInvInOut,b.fCkName,c.fCpCode,b.fInvSL,b.fInvSL2,b.fInvDJ,"
        "b.fInvJE,b.fInvTaxRate,b.fInvTax,b.fInvOther1 From " +
        stem + "02 b Left Join tJXC_Cp c On b.fCpID=c.fCpID Order By b.fInvID,b.fInv1,b.fRowID");
}

// Received with its value, transferred, in stock, at what price and value. In the order of the texts: the engines sort
// names of warehouses each in its own way.
Lines Stock() {
    Lines stock = RowsOf("Select b.fCkName,c.fCpCode,b.fRkSl,b.fRkJe,b.fDkSl,b.fKcSL,b.fKcDj,b.fKcJE "
                         "From tJXC_CkTj b Left Join tJXC_Cp c On b.fCpID=c.fCpID");
    std::sort(stock.begin(), stock.end());
    return stock;
}

Lines Ledger() {
    return RowsOf(
        "Select fAcntNo,fCompID,fType1,fType2,fMoneyA,fMoneyB,fInvID,fDoneman,fMoneyCode,fMoneyRate "
        "From tAccountDetail Order By fAcntNo");
}

class WithoutScreen : public OnSampleCompany {
  protected:
    void Begin() override {
        open = std::make_unique<OpenCompany>(company->Address());
        atFirst = Books();
    }
    void TearDown() override {
        open.reset();
        OnSampleCompany::TearDown();
    }
    // Once all documents are gone again: stock rows with nothing in them and whole prices are what stays.
    void ExpectOnlyEmptyStock() const {
        for (const std::string& change : Changes(atFirst, Books()))
            EXPECT_TRUE(change.starts_with("+ tJXC_CkTj_tmp ") ||
                        (change.starts_with("+ tJXC_CkTj ") && change.find(" fkcsl=0 ") != std::string::npos))
                << change;
    }

    std::unique_ptr<OpenCompany> open;
    Lines atFirst;
};
ON_BOTH_ENGINES(WithoutScreen);

TEST_P(WithoutScreen, AReceiptLives) {
    ASSERT_ANY_THROW(CurrentView());
    DocumentLine processors = LineOf("CPU002", 3, 100.125);
    processors.taxRate = 0.13;
    processors.tax = 300.375 * 0.13;
    processors.memo1 = "急";
    DocumentData receipt = DocumentOf(1, "W001", {processors, LineOf("MEM002", 7, 20)});
    receipt.warehouse = "总部仓";
    receipt.customer = CardOf("G001");
    receipt.currency = "USD";
    receipt.rate = 6.5;
    receipt.memo = "采购";
    receipt.handler = "李强";
    ASSERT_EQ(Write(receipt), "");
    EXPECT_EQ(receipt.key, 2);
    // 3 x 100.125 = 300.375, and 13 % of it 39.04875
    EXPECT_EQ(Headers("tJXC_CkDj"), Lines{"2|1|W001||USD|6.5|440.38|采购|王芳|李强||总部仓||0"});
    const Lines written{"2|0|1|1|总部仓|CPU002|3|null|100.125|300.38|0.13|39.05|急",
                        "2|0|2|1|总部仓|MEM002|7|null|20|140|0|0|"};
    EXPECT_EQ(LinesIn("tJXC_CkDj"), written);

    DocumentRead read = ReadDocument(1, receipt.key);
    EXPECT_EQ(read.data.total, 440.38);
    read.data.payment = 40.38;
    EXPECT_EQ(ApproveDocument(read.data, read.asLoaded).refusal, "");
    EXPECT_EQ(Headers("tJXC_CkDj"), Lines{"2|1|W001||USD|6.5|440.38|采购|王芳|李强|王芳|总部仓||0"});
    // 3 x 100.125 x 6.5 and 7 x 20 x 6.5
    EXPECT_EQ(Stock(),
              (Lines{"总部仓|CPU002|3|1952.4375|0|3|650.8125|1952.4375", "总部仓|MEM002|7|910|0|7|130|910"}));
    EXPECT_EQ(Ledger(), Lines{"202611WL00001|" + std::to_string(CardOf("G001")) +
                              "|0|2|440.38|40.38|W001|李强|USD|6.5"});
    EXPECT_EQ(Reverse(1, receipt.key), "");
    EXPECT_EQ(Stock(),
              (Lines{"总部仓|CPU002|0|0|0|0|620|0", "总部仓|MEM002|0|0|0|0|172|0"})); // the products' cost
    EXPECT_EQ(Ledger(), Lines{});
    EXPECT_EQ(LinesIn("tJXC_CkDj"), written);
    EXPECT_EQ(Delete(ReadDocument(1, receipt.key)), "");
    ExpectOnlyEmptyStock();
}

TEST_P(WithoutScreen, ATransferLives) {
    DocumentData transfer = DocumentOf(3, "W002", {LineOf("CPU002", 2, 700)});
    transfer.warehouse = "总部仓";
    transfer.warehouse2 = "零售门市";
    ASSERT_EQ(Write(transfer), "");
    EXPECT_EQ(Headers("tJXC_CkDj"), Lines{"2|3|W002||人民币|1|1400||王芳|||总部仓|零售门市|0"});
    EXPECT_EQ(LinesIn("tJXC_CkDj"), (Lines{"2|0|1|2|总部仓|CPU002|2|null|700|1400|0|0|",
                                           "2|1|1|1|零售门市|CPU002|2|null|700|1400|0|0|"}));
    EXPECT_EQ(Approve(3, transfer.key), "");
    // at the product's cost price, since nothing was received
    EXPECT_EQ(Stock(), (Lines{"总部仓|CPU002|0|0|-2|-2|620|-1240", "零售门市|CPU002|0|0|2|2|620|1240"}));
    EXPECT_EQ(Ledger(), Lines{});
    EXPECT_EQ(Reverse(3, transfer.key), "");
    EXPECT_EQ(Delete(ReadDocument(3, transfer.key)), "");
    ExpectOnlyEmptyStock();
}

TEST_P(WithoutScreen, AnAssemblyLives) {
    DocumentData assembly = DocumentOf(31, "W003", {LineOf("CPU002", 2, 620), LineOf("MEM001", 4, 92)});
    assembly.warehouse = "生产仓";
    assembly.warehouse2 = "总部仓";
    assembly.finishedProduct = ProductOf("PC001");
    assembly.finishedProductCode = "PC001";
    assembly.kitQuantity = 2;
    ASSERT_EQ(Write(assembly), "");
    // 2 x 620 + 4 x 92, half of it for a piece
    EXPECT_EQ(Headers("tJXC_CkDj"), Lines{"2|31|W003||人民币|1|1608||王芳|||生产仓|总部仓|0"});
    EXPECT_EQ(LinesIn("tJXC_CkDj"),
              (Lines{"2|0|1|2|生产仓|CPU002|2|null|620|1240|0|0|", "2|0|2|2|生产仓|MEM001|4|null|92|368|0|0|",
                     "2|1|1|1|总部仓|PC001|2|null|804|1608|0|0|产品套件"}));
    EXPECT_EQ(Approve(31, assembly.key), "");
    EXPECT_EQ(Stock(), (Lines{"总部仓|PC001|0|0|2|2|1557.5|3115", "生产仓|CPU002|0|0|-2|-2|620|-1240",
                              "生产仓|MEM001|0|0|-4|-4|92|-368"}));
    EXPECT_EQ(Reverse(31, assembly.key), "");
    EXPECT_EQ(Delete(ReadDocument(31, assembly.key)), "");
    ExpectOnlyEmptyStock();
}

TEST_P(WithoutScreen, AnOrderLivesAndIsDrawnOn) {
    DocumentData order = DocumentOf(23, "W004", {LineOf("CPU002", 10, 600)});
    order.customer = CardOf("G001");
    ASSERT_EQ(Write(order), "");
    EXPECT_EQ(Headers("tJXC_CkHt"), Lines{"2|23|W004||人民币|1|6000||王芳|||||0"});
    EXPECT_EQ(LinesIn("tJXC_CkHt"), Lines{"2|0|1|-1||CPU002|10|10|600|6000|0|0|"});
    EXPECT_EQ(Approve(23, order.key), "");
    EXPECT_EQ(Headers("tJXC_CkHt"), Lines{"2|23|W004||人民币|1|6000||王芳||王芳|||0"});

    DocumentData receipt = DocumentOf(1, "W005", {LineOf("CPU002", 4, 600)});
    receipt.warehouse = "总部仓";
    receipt.customer = order.customer;
    receipt.order = "W004";
    ASSERT_EQ(Write(receipt), "");
    const std::string balance = "Select fInvSL2 From tJXC_CkHt02";
    EXPECT_EQ(Approve(1, receipt.key), "");
    EXPECT_EQ(One(balance), "6");
    EXPECT_EQ(Reverse(1, receipt.key), "");
    EXPECT_EQ(One(balance), "10");
    EXPECT_EQ(Delete(ReadDocument(1, receipt.key)), "");
    EXPECT_EQ(Reverse(23, order.key), "");
    EXPECT_EQ(Delete(ReadDocument(23, order.key)), "");
    ExpectOnlyEmptyStock();
}

DocumentData SmallReceipt(const std::string& number) {
    DocumentData receipt = DocumentOf(1, number, {LineOf("CPU002", 4, 600)});
    receipt.warehouse = "总部仓";
    receipt.customer = CardOf("G001");
    return receipt;
}

TEST_P(WithoutScreen, WritingIsRefusedWithAText) {
    DocumentData first = SmallReceipt("W001");
    ASSERT_EQ(Write(first), "");
    const Lines before = Books();
    DocumentData second = SmallReceipt("W001");
    EXPECT_EQ(Write(second), "该[单号]已有存在!");
    second = SmallReceipt("W002");
    second.date = MakeDate(2026, 10, 31);
    EXPECT_EQ(Write(second), "单据日期：不能小于本期起始日期 2026-11-01！");
    second = SmallReceipt("W002");
    second.lines[0].quantity = 1e8;
    EXPECT_EQ(Write(second), "第 1 行“数量”必须小于 100,000,000！");
    second = SmallReceipt("W002");
    second.rate = 0;
    EXPECT_EQ(Write(second), "货币[人民币]的汇率必须大于 0，请输入汇率！");
    EXPECT_EQ(Changes(before, Books()), Lines{});

    second = SmallReceipt("W002");
    ASSERT_EQ(Write(second), "");
    const DocumentRead read = ReadDocument(1, second.key);
    second.number = "W001";
    EXPECT_EQ(Change(second, read), "W001：该[单号]已另有存在!");
    second.number = "W003";
    second.lines[0].quantity = 5;
    EXPECT_EQ(Change(second, read), "");
    EXPECT_EQ(LinesIn("tJXC_CkDj")[1], "3|0|1|1|总部仓|CPU002|5|null|600|2400|0|0|");
    EXPECT_EQ(Change(second, read), "该单据已被其他用户修改，请重新打开！");
    EXPECT_EQ(Delete(read), "该单据已被其他用户修改，请重新打开！");
    EXPECT_EQ(Delete(ReadDocument(1, second.key)), "");
    EXPECT_EQ(Change(second, read), "该[单号]已不存在!");
    EXPECT_FALSE(ReadDocument(1, second.key).asLoaded.Exists());
    EXPECT_EQ(Changes(before, Books()), Lines{});
}

TEST_P(WithoutScreen, ApprovalIsRefusedWithAText) {
    DocumentData receipt = SmallReceipt("W001");
    ASSERT_EQ(Write(receipt), "");
    const DocumentRead open = ReadDocument(1, receipt.key);
    EXPECT_EQ(Reverse(1, receipt.key), "该单据尚未审核！");
    session.UserName = "";
    EXPECT_EQ(Approve(1, receipt.key), "请先登录用户，才能够审核单据！");
    session.UserName = "李强";
    EXPECT_EQ(Approve(1, receipt.key), "");
    const Lines approved = Books();
    EXPECT_EQ(Approve(1, receipt.key), "该单据已经审核！");
    EXPECT_EQ(Delete(open), "该单据已经审核！");
    session.UserName = "赵敏";
    EXPECT_EQ(Reverse(1, receipt.key), "反审核：必须是“系统管理员”或者是该单据原“审核人”，才能够操作！");
    session.UserName = "王芳"; // the supervisor
    Do("Update tAccountDetail Set fChecker='会计'");
    EXPECT_TRUE(Reverse(1, receipt.key).starts_with("该单据所对应的“挂帐凭证”已经审核，"));
    Do("Update tAccountDetail Set fChecker=''");
    EXPECT_EQ(Changes(approved, Books()), Lines{});
    EXPECT_EQ(Reverse(1, receipt.key), "");
}

// A stage that fails undoes all of it and is named; its cause is behind it.
TEST_P(WithoutScreen, AFailureIsADatabaseErrorThatNamesItsStage) {
    DocumentData receipt = SmallReceipt("W001");
    receipt.order = "没有";
    ASSERT_EQ(Write(receipt), "");
    const Lines before = Books();
    try {
        FAIL() << Approve(1, receipt.key);
    } catch (const DatabaseError& error) {
        EXPECT_STREQ(error.what(), "刷新原相关订单的结余数错误，审核操作未完成！");
        EXPECT_EQ(CauseOf(error), "订单号 没有 不存在 ！");
    }
    EXPECT_FALSE(Conn().InTransaction());
    EXPECT_EQ(Changes(before, Books()), Lines{});
}

// What a person entered is read and written again as the same rows, whatever its type.
TEST_P(WithoutScreen, ADocumentFromTheScreenIsWrittenAgainAlike) {
    Clerk clerk;
    for (const int type : AllTypes()) {
        SCOPED_TRACE("type " + std::to_string(type));
        const int key = clerk.Save(TypicalDocument(type));
        ASSERT_GT(key, 0) << clerk.LastBox();
        const DocumentRead read = ReadDocument(type, key);
        DocumentData copy = read.data;
        copy.key = 0;
        ASSERT_EQ(Delete(read), "");
        ASSERT_EQ(Write(copy), "");
        EXPECT_EQ(copy.key, key);
        EXPECT_EQ(ReadDocument(type, key).asLoaded, read.asLoaded);
    }
}

} // namespace

} // namespace jxc::test
