// Balances of orders against the approved documents that refer to them, and the history of suppliers against the
// approved receipts.

#include <set>

#include "base/text.h"
#include "host/check/checked_company.h"
#include "session/dialect.h"

namespace jxc {

namespace {

std::string Taken(const Book& book) {
    return "(Select a.fHtNo as fHtNo,b.fCpID as fCpID,sum(b.fInvSL) as sl From " + book.Headers() +
           " a Inner Join " + book.Lines() + " b On " + book.On("b", "a") +
           " Where a.fHtNo<>'' And a.fInvSHR<>'' And a.fInvType<>31 And b.fInv1=0 Group By a.fHtNo,b.fCpID)";
}

using OrderLine = std::pair<std::string, std::int64_t>; // number in lower case, product

// The lines of orders that any document refers to.
std::set<OrderLine> LinesReferredTo(Findings& findings) {
    std::set<OrderLine> lines;
    for (const Book& book : AllBooks()) {
        if (!book.IsOfStock())
            continue;
        const Rows rows = findings.Ask("Select distinct a.fHtNo,b.fCpID From " + book.Headers() +
                                       " a Inner Join " + book.Lines() + " b On " + book.On("b", "a") +
                                       " Where a.fHtNo<>'' And a.fInvType<>31");
        for (size_t row = 0; row < rows.Count(); ++row)
            lines.insert({LowerCase(rows.At(row, 0).AsText()), rows.At(row, 1).AsLong()});
    }
    return lines;
}

// A balance is what the approved documents have left of the quantity, or 0: one that has once come to 0 stays there.
void CheckBalances(const CheckedTypes& types, Findings& findings) {
    const std::string left = "(b.fInvSL-" + OrZero("x.sl") + "-" + OrZero("y.sl") + ")";
    const std::string kept = InList(TypesWhere(types, [](int, const TypeRow& row) { return row.fSetJy_; }));
    const Rows rows = findings.Ask(
        "Select a.fInvNo,b.fRowID,b.fCpID,b.fInvSL2," + left +
        " as fOpen,a.fInvSHR,c.fCpCode"
        " From (((tJXC_CkHt01 a Inner Join tJXC_CkHt02 b On b.fInvID=a.fInvID) Left Join " +
        Taken(StockBook()) + " x On x.fHtNo=a.fInvNo And x.fCpID=b.fCpID) Left Join " + Taken(ClosedBook()) +
        " y On y.fHtNo=a.fInvNo And y.fCpID=b.fCpID) Left Join tJXC_Cp c On c.fCpID=b.fCpID"
        " Where b.fInv1=0 And a.fInvType In (" +
        kept +
        ") And (case when b.fInvSL2 is null then 1"
        " when b.fInvSL2<-0.000000001 then 1 when abs(b.fInvSL2-" +
        left +
        ")<=0.000001+0.000000001*abs(b.fInvSL2) then 0"
        " when b.fInvSL2<0.000000001 And " +
        left + "<0.000001 then 0 else 1 end)=1");
    if (rows.Count() == 0)
        return;
    const Rows doubles = findings.Ask(
        "Select a.fInvNo,b.fCpID From tJXC_CkHt01 a Inner Join tJXC_CkHt02 b On b.fInvID=a.fInvID"
        " Where b.fInv1=0 Group By a.fInvNo,b.fCpID Having min(a.fInvID)<>max(a.fInvID)");
    std::set<OrderLine> shared;
    for (size_t row = 0; row < doubles.Count(); ++row)
        shared.insert({LowerCase(doubles.At(row, 0).AsText()), doubles.At(row, 1).AsLong()});
    const std::set<OrderLine> referredTo = LinesReferredTo(findings);
    for (size_t row = 0; row < rows.Count(); ++row) {
        const auto at = [&](size_t column) -> const Value& { return rows.At(row, column); };
        const std::string number = LowerCase(at(0).AsText());
        if (shared.contains({number, at(2).AsLong()}))
            continue; // in two orders of one number: which of them was meant is not known
        const std::string line = "订单 " + at(0).AsText() + "：第 " + at(1).AsText() + " 行产品 " +
                                 at(6).AsText() + " 的结余为 " + (at(3).IsNull() ? "空" : at(3).AsText()) +
                                 "，按单据应为 " + NumberText(at(4).AsDouble()) +
                                 "；请修改订单的[结余数]，或核对有关单据。";
        const bool figure = at(3).IsNumber() && at(3).AsDouble() > -1e-9 && at(3).AsDouble() < kAbsurdFigure;
        const bool byHand = at(5).AsText().empty(); // it may have been changed since
        const bool emptied = at(3).AsDouble() == 0 && referredTo.contains({number, at(2).AsLong()});
        if (figure && (byHand || emptied))
            findings.Note(line);
        else
            findings.Add(line);
    }
}

const Rule kWrongOrder{
    "Select a.fInvNo,a.fHtNo From tJXC_CkDj01 a Inner Join tJXC_CkHt01 o On o.fInvNo=a.fHtNo Where "
    "a.fHtNo<>''"
    " Group By a.fInvNo,a.fHtNo,a.fInvType Having max(case when (o.fInvType=23 And abs(a.fInvType)=1)"
    " Or (o.fInvType=24 And (abs(a.fInvType)=2 Or abs(a.fInvType)=6 Or a.fInvType=31)) then 1 else 0 end)=0",
    "单据 {1}：所对应的订单 {2} 类型不符；请反审核后修改订单号。"};

// Orders may be deleted after the documents that refer to them.
void NoteMissingOrders(Findings& findings) {
    const Rows rows = findings.Ask("Select a.fInvNo,a.fHtNo From tJXC_CkDj01 a Where a.fHtNo<>'' And "
                                   "a.fInvSHR<>'' And (abs(a.fInvType)=1"
                                   " Or abs(a.fInvType)=2 Or abs(a.fInvType)=6) And not exists (Select "
                                   "o.fInvID From tJXC_CkHt01 o Where "
                                   "o.fInvNo=a.fHtNo) Order By a.fInvNo");
    for (size_t row = 0; row < rows.Count(); ++row)
        findings.Note("单据 " + rows.At(row, 0).AsText() + "：订单 " + rows.At(row, 1).AsText() +
                      " 不存在，可能已在审核之后删除；如果不是，请反审核后修改订单号。");
}

// Seven sums over a receipt's lines, alike for lines and history rows.
std::string Sums(const std::string& quantity, const std::string& price) {
    const std::string parts[] = {
        quantity, price, quantity + "*" + price, "fCpID", "fKhID", "fCpID*" + price, "fCpID*" + quantity};
    std::string sums = "count(*) as n";
    int number = 0;
    for (const std::string& part : parts)
        sums += ",sum(case when abs(" + quantity + ")<1000000000000.0 And abs(" + price +
                ")<1000000000000.0 then " + part + " else 0 end) as s" + std::to_string(++number);
    return sums;
}

void CheckHistory(const std::string& periodStart, Findings& findings) {
    std::string differ;
    for (int i = 1; i <= 7; ++i) {
        const std::string n = std::to_string(i);
        differ += (i > 1 ? "+" : "") + ("(case when abs(x.s" + n) + "-y.s" + n +
                  ")<=0.000001+0.000000001*abs(x.s" + n + ") then 0 else 1 end)";
    }
    Run({"Select a.fInvNo From (tJXC_CkDj01 a Inner Join (Select fInvID," + Sums("fInvSL", "fInvDJ") +
             " From tJXC_CkDj02 Where fKhID>0 Group By fInvID) x On x.fInvID=a.fInvID) Left Join (Select "
             "fInvNo,fInvDate," +
             Sums("fCpSl", "fCpPrice") +
             " From tJXC_CpGys Where fKhID>0 Group By fInvNo,fInvDate) y On y.fInvNo=a.fInvNo And "
             "y.fInvDate=a.fInvDate"
             " Where a.fInvType=1 And a.fInvSHR<>'' And (y.n is null Or y.n<>x.n Or " +
             differ + ">0)",
         "供应商历史：单据 {1} 的进货记录缺少或不符；请在[产品管理]中执行[供应商刷新]。"},
        findings);
    Run({"Select g.fInvNo,count(*) From tJXC_CpGys g Where g.fInvDate>=" + InQuotes(periodStart) +
             " And not exists (Select a.fInvID From tJXC_CkDj01 a Where a.fInvNo=g.fInvNo And a.fInvType=1 "
             "And a.fInvSHR<>'')"
             " And not exists (Select a.fInvID From tJXC_CkDj_Bak01 a Where a.fInvNo=g.fInvNo And "
             "a.fInvType=1) Group By g.fInvNo",
         "供应商历史：单据 {1} 未审核或已不存在而有 {2} 行进货记录；请在[产品管理]中执行[供应商刷新]。"},
        findings);
    Run({"Select fInvNo,count(*) From tJXC_CpGys Where fCpID is null Or fInvDate is null Or fInvNo is null "
         "Or fCpSl is null Or " +
             IsAbsurd("fCpSl") + " Or " + IsAbsurd("fCpPrice") + " Group By fInvNo",
         "供应商历史：单据 {1} 有 {2} 行数值不正确；请在[产品管理]中执行[供应商刷新]。"},
        findings);
}

} // namespace

void CheckOrders(const CheckedCompany& company, Findings& findings) {
    CheckBalances(company.types, findings);
    Run(kWrongOrder, findings);
    NoteMissingOrders(findings);
}

void CheckSupplierHistory(const CheckedCompany& company, Findings& findings) {
    const auto receipt = company.types.find(DocType::Receipt);
    if (receipt == company.types.end() || !receipt->second.row.ReceivesStock())
        return; // receipts that post no stock leave no history
    if (company.periodStart)
        CheckHistory(IsoText(*company.periodStart), findings);
}

} // namespace jxc
