// The host's ledger: each approved document that must have an entry has one, and each entry repeats its document.
// Entries that the host wrote itself are never looked at.

#include <map>
#include <set>

#include "base/text.h"
#include "documents/approval/stages.h"
#include "host/check/checked_company.h"
#include "session/lookups/book.h"

namespace jxc {

namespace {

const std::string kIsPlaced = std::string("fBrief='") + kPlacedByApproval + "'";
const std::string kPlaced = "e." + kIsPlaced;
const std::string kOfDocument = "a.fInvNo=e.fInvID And " + SameDay("e.fDate", "a.fInvDate");

void CheckEntries(const Book& book, Findings& findings) {
    const std::string amount = "(case when e.fType1=0 And abs(" + OrZero("e.fMoneyA") + "-" +
                               OrZero("a.fInvJE") + ")>0.0051 then 1 when e.fType1=1 And (abs(" +
                               OrZero("e.fMoneyB") + "-" + OrZero("a.fInvJE") + ")>0.0051 Or " +
                               OrZero("e.fMoneyA") + "<>0) then 1 when e.fInit<>0 then 1 else 0 end)";
    const Difference repeated[] = {
        {"客户", "(case when e.fType1=0 then " + Differ("e.fCompID", "a.fKhID") + " else 0 end)"},
        {"金额", amount},
        {"货币", TextsDiffer("e.fMoneyCode", "a.fInvHb")},
        {"汇率", "(case when abs(" + OrZero("e.fMoneyRate") + "-" + OrZero("a.fInvHbDl") +
                     ")>0.0001 then 1 else 0 end)"},
        {"订单号", "(case when e.fOrderID is null Or e.fOrderID='' then 0 else " +
                       TextsDiffer("e.fOrderID", "a.fHtNo") + " end)"},
        {"审核人", TextsDiffer("e.fUser", "a.fInvSHR")},
        {"经办人", TextsDiffer("e.fDoneman", "a.fInvJbr")}};
    const Rows rows =
        findings.Ask("Select e.fAcntNo,a.fInvNo" + EachOf(repeated) + " From tAccountDetail e Inner Join " +
                     book.Headers() + " a On " + kOfDocument + " Where " + kPlaced +
                     " And a.fInvSHR<>'' And " + AnyOf(repeated));
    for (size_t row = 0; row < rows.Count(); ++row)
        findings.Add("帐户单 " + rows.At(row, 0).AsText() + "（单据 " + rows.At(row, 1).AsText() + "）：" +
                     WrongNames(repeated, rows, row, 2) + "与单据不符；请反审核该单据后重新审核。");
    Run({"Select a.fInvNo,count(*) From " + book.Headers() + " a Inner Join tAccountDetail e On " +
             kOfDocument + " Where " + kPlaced +
             " And a.fInvSHR<>'' Group By a.fInvID,a.fInvNo Having count(*)>1",
         "单据 {1}：有 {2} 张帐户单，只应有一张；请反审核后重新审核。"},
        findings);
}

// Which entries a type's documents may have: kind and side, by today's row or the shipped one.
void CheckSides(const Book& book, const CheckedTypes& types, Findings& findings) {
    const Rows rows = findings.Ask(
        "Select a.fInvType,e.fType1,e.fType2,count(*),min(a.fInvNo) From tAccountDetail e Inner Join " +
        book.Headers() + " a On " + kOfDocument + " Where " + kPlaced +
        " And a.fInvSHR<>'' Group By a.fInvType,e.fType1,e.fType2");
    for (size_t row = 0; row < rows.Count(); ++row) {
        const auto at = [&](size_t column) { return static_cast<int>(rows.At(row, column).AsLong()); };
        std::set<std::pair<int, int>> lawful;
        for (const int kind : ValuesOf(types, at(0), &TypeRow::fSetWlType))
            if (kind == Owed::Receivable || kind == Owed::Payable)
                lawful.insert({static_cast<int>(AccountKind::Customer),
                               kind == Owed::Receivable ? EntrySide::In : EntrySide::Out});
        for (const int kind : ValuesOf(types, at(0), &TypeRow::fSetZjType))
            if (kind == Cash::Paid || kind == Cash::Received)
                lawful.insert({static_cast<int>(AccountKind::Money),
                               kind == Cash::Received ? EntrySide::In : EntrySide::Out});
        if (!lawful.contains({at(1), at(2)}))
            findings.Add("帐户单（单据 " + rows.At(row, 4).AsText() + " 等 " + rows.At(row, 3).AsText() +
                         " 张）：帐类或收付方向与单据类型不符；请反审核后重新审核。");
    }
}

// By type, the first key of a document that has an entry.
std::map<int, std::int64_t> FirstWithEntry(const Book& book, Findings& findings) {
    const Rows rows = findings.Ask("Select a.fInvType,min(a.fInvID) From " + book.Headers() +
                                   " a Inner Join tAccountDetail e On " + kOfDocument + " Where " + kPlaced +
                                   " And a.fInvSHR<>'' Group By a.fInvType");
    std::map<int, std::int64_t> first;
    for (size_t row = 0; row < rows.Count(); ++row)
        first[static_cast<int>(rows.At(row, 0).AsLong())] = rows.At(row, 1).AsLong();
    return first;
}

// Approved documents of the types without an entry, from the first key on that has one where the row was changed.
void CheckMissing(const CheckedTypes& types, const std::vector<int>& of, const std::string& source,
                  const std::string& condition, const std::map<int, std::int64_t>& firstWithEntry,
                  Findings& findings) {
    if (of.empty())
        return;
    const Rows rows = findings.Ask("Select a.fInvNo,a.fInvID,a.fInvType From " + source +
                                   " Left Join tAccountDetail e On " + kOfDocument + " And " + kPlaced +
                                   " Where a.fInvSHR<>'' And " + condition + " And a.fInvType In (" +
                                   InList(of) + ") And e.fInvID is null");
    for (size_t row = 0; row < rows.Count(); ++row) {
        const auto type = static_cast<int>(rows.At(row, 2).AsLong());
        const auto known = firstWithEntry.find(type);
        const bool always = ValuesOf(types, type, &TypeRow::fSetWlType).size() == 1 &&
                            ValuesOf(types, type, &TypeRow::fSetZjType).size() == 1;
        if (always || (known != firstWithEntry.end() && rows.At(row, 1).AsLong() > known->second))
            findings.Add("单据 " + rows.At(row, 0).AsText() + "：已经审核而没有帐户单；请反审核后重新审核。");
    }
}

void CheckPresence(const Book& book, const CheckedTypes& types, Findings& findings) {
    const std::map<int, std::int64_t> first = FirstWithEntry(book, findings);
    const auto ofBook = [&](int type) { return BookStem(type, false) == book.stem; };
    const auto toCustomers = TypesWhere(types, [&](int type, const TypeRow& row) {
        return ofBook(type) && row.MovesAccount() && row.HasCustomer();
    });
    CheckMissing(types, toCustomers, book.Headers() + " a", "a.fKhID>0", first, findings);
    // A warehouse may have got its account after the approval; a retail shop has had one from its beginning.
    const auto toMoneyAccounts = TypesWhere(types, [&](int type, const TypeRow& row) {
        return ofBook(type) && !row.MovesAccount() && row.MovesCash();
    });
    CheckMissing(types, toMoneyAccounts,
                 "(" + book.Headers() + " a Inner Join tJXC_Ck w On w.fCkName=a.fCkName)",
                 "w.fZhID>0 And w.fCkType1=1", first, findings);
}

std::string WithoutDocument() {
    std::string sql = "Select e.fAcntNo,e.fInvID From tAccountDetail e Where " + kPlaced;
    for (const Book& book : AllBooks())
        sql += " And not exists (Select a.fInvID From " + book.Headers() + " a Where " + kOfDocument +
               " And a.fInvSHR<>'')";
    return sql;
}

} // namespace

void CheckLedger(const CheckedCompany& company, Findings& findings) {
    for (const Book& book : AllBooks()) {
        CheckEntries(book, findings);
        CheckSides(book, company.types, findings);
        if (!book.closed)
            CheckPresence(book, company.types, findings);
    }
    Run({WithoutDocument(),
         "帐户单 {1}（单据 {2}）没有已审核的单据；请在《资金管理系统》中核对后删除，或恢复该单据。"},
        findings);
    Run({"Select fAcntNo,count(*) From tAccountDetail Where fAcntNo<>'' Group By fAcntNo Having count(*)>1"
         " And sum(case when " +
             kIsPlaced + " then 1 else 0 end)>0",
         "帐户单号重复：{1}（{2} 张）；请修改其中一张。"},
        findings);
    Run({"Select e.fAcntNo,e.fInvID From tAccountDetail e Where " + kPlaced +
             " And (e.fAcntNo is null Or e.fAcntNo='' Or e.fAcntNo like ' %' Or e.fAcntNo like '% ' Or "
             "e.fDate is null"
             " Or e.fType1 is null Or e.fMoneyRate is null Or e.fMoneyRate<=0 Or " +
             IsAbsurd("e.fMoneyA") + " Or " + IsAbsurd("e.fMoneyB") + ")",
         "帐户单“{1}”（单据 {2}）：单号为空或带有空格，或日期、金额、汇率不正确；请反审核该单据后重新审核。"},
        findings);
}

} // namespace jxc
