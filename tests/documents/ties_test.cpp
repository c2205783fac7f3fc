// Where an order leaves two rows side by side and one of them decides, the later one wins, on both engines.
#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "documents/document_entry.h"
#include "master/supplier_history.h"
#include "session/lookups/find_by_text.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

class Ties : public OnOpenCompany {};
ON_BOTH_ENGINES(Ties);

// Two receipts of a product on a day, numbered against the order in which they were written.
TEST_P(Ties, TheLaterReceiptOfADayNamesTheSupplier) {
    const auto receive = [&](const std::string& customer, const std::string& number) {
        clerk->Enter({.type = 1, .customer = customer, .lines = {{"CPU002", 1, 600}}}, [&](frmDj02& s) {
            LeaveFocus(s);
            EnterText(s, s.txtNo, number);
            ClickSave(*clerk, s);
        });
        const std::string key = One("Select fInvID From tJXC_CkDj01 Where fInvNo='" + number + "'");
        EXPECT_TRUE(clerk->Approve(1, std::stoi(key))) << clerk->LastBox();
    };
    const auto supplier = [] {
        return One("Select b.CompCode From tJXC_Cp a Left Join cards b On a.fKhID=b.fID Where "
                   "a.fCpCode='CPU002'");
    };
    receive("G001", "Z2");
    receive("G002", "Z1");
    EXPECT_TRUE(RefreshSupplierAll(*ParseDate("2026-11-01")));
    EXPECT_EQ(supplier(), "G002");
    receive("G001", "Z0");
    EXPECT_TRUE(RefreshSupplierAll(*ParseDate("2026-11-01")));
    EXPECT_EQ(supplier(), "G001");
}

// What another program has written twice.
TEST_P(Ties, TheLaterCardProductAndDocumentIsTaken) {
    for (const char* key : {"901", "903", "902"}) {
        Do("Insert Into cards (fID,CompCode,compname,name) Values (" + std::string(key) +
           ",'DUP','同名公司','同人')");
        Do("Insert Into tJXC_Cp (fCpID,fCpCode,fCpName,fCpFlag) Values (" + std::string(key) +
           ",'DUP','x',0)");
        Do("Insert Into tJXC_CkDj01 (fInvID,fInvType,fInvNo,fInvSHR) Values (" + std::string(key) +
           ",1,'0DUP','')");
    }
    auto& s = dynamic_cast<frmDj02&>(ScreenNamed("frmDj02"));
    EXPECT_EQ(FindCustomerCard(s.cboKhList, "dup"), 3);
    EXPECT_EQ(s.cboKhList.Id(), 903);
    ProductSought sought;
    sought.code = "dup";
    EXPECT_EQ(FindProduct(sought), 903);
    const int key = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU002", 1, 600}}});
    clerk->Open(DocAction::Query, 1, key, [](frmDj02& s) {
        StepToDocument(s, false);
        while (s.Number() != "0DUP" && s.cmdPrevious.enabled)
            StepToDocument(s, false);
        EXPECT_EQ(s.oldInvID, 903);
    });
}

} // namespace

} // namespace jxc::test
