// Documents: headers, lines, the copies of the header on them, figures, dates and what they refer to.

#include "base/text.h"
#include "host/check/checked_company.h"
#include "session/lookups/book.h"
#include "settings/parameters.h"

namespace jxc {

namespace {

// "{H}", "{L}", "{ON}" (lines b on headers a), "{M}" of a book in a statement.
std::string OfBook(const std::string& sql, const Book& book) {
    return Filled(
        sql,
        {{"{H}", book.Headers()}, {"{L}", book.Lines()}, {"{ON}", book.On("b", "a")}, {"{M}", book.Month()}});
}

std::string FiguresAbsurd(std::initializer_list<const char*> fields) {
    std::string absurd;
    for (const char* field : fields)
        absurd += " Or " + IsAbsurd("b." + std::string(field));
    return absurd;
}

// The orders of one plan run share a number, one an order of each supplier.
const char* const kNotOfOnePlan =
    " And (min(fInvType)<>23 Or max(fInvType)<>23 Or count(*)<>count(distinct fKhID))";

std::vector<Rule> BookRules(const Book& book) {
    const bool orders = book.stem == "tJXC_CkHt";
    const std::string blank = "fInvNo is null Or fInvNo='' Or fInvNo like ' %' Or fInvNo like '% '"
                              " Or fInvNo like '　%' Or fInvNo like '%　'";
    const std::string sum = "sum(case when " + IsPlausible("fInvJE") + " then fInvJE else 0 end)";
    return {
        {"Select fInvNo,count(*) From {H} Where fInvNo<>'' Group By fInvNo{M} Having count(*)>1" +
             std::string(orders ? kNotOfOnePlan : ""),
         "单据 {1}：单号在 {H} 中重复 {2} 次；请修改其中一张的单号。"},
        {"Select fInvID,min(fInvNo) From {H} Group By fInvID{M} Having count(*)>1",
         "单据 {2}：内部编号 {1} 在 {H} 中重复；请从备份恢复，或联系维护人员。"},
        {"Select fInvID,fInvNo From {H} Where " + blank + " Or fInvID is null Or fInvID<1",
         "单据“{2}”（fInvID {1}）：单号为空或带有空格；请修改单号。"},
        {"Select b.fInvID,min(b.fInvNo),count(*) From {L} b Left Join {H} a On {ON} Where a.fInvID is null "
         "Group By b.fInvID",
         "单据 {2}（fInvID {1}）：有 {3} 行明细而没有单据；请从备份恢复该单据，或删去这些明细。"},
        {"Select a.fInvNo From {H} a Left Join {L} b On {ON} And b.fInv1=0 Where b.fInvID is null",
         "单据 {1}：没有明细；请补录明细，或删除该单据。"},
        {"Select min(fInvNo),fRowID,count(*) From {L} Where fRowID is not null Group By "
         "fInvID,fInv1,fRowID{M} Having count(*)>1",
         "单据 {1}：第 {2} 行重复 {3} 次；请反审核后重新存盘，核对库存。"},
        // Of opening documents the close numbers no lines.
        {"Select b.fInvNo,count(*) From {L} b Inner Join {H} a On {ON} Where b.fRowID is null And "
         "a.fInvType<>0 Group By b.fInvID,b.fInvNo",
         "单据 {1}：有 {2} 行没有行号；请反审核后重新存盘。"},
        {"Select b.fInvNo,b.fRowID From {L} b Where b.fInvSL is null Or b.fCpID is null" +
             FiguresAbsurd(
                 {"fInvSL", "fInvSL2", "fInvDJ", "fInvDJ2", "fInvJE", "fInvHbDl", "fInvTaxRate", "fInvTax"}) +
             (book.IsOfStock() ? "" : " Or b.fInvSL=0"),
         "单据 {1}：第 {2} 行的数值为空或超出范围；请反审核后修改。"},
        {"Select b.fInvNo,b.fInvJE,b.fInvHbDl From {H} b Where b.fInvHbDl is null Or b.fInvHbDl<=0"
         " Or (b.fInvJE is null And b.fInvType<>0)" +
             FiguresAbsurd({"fInvJE", "fInvHbDl"}),
         "单据 {1}：合计（{2}）或汇率（{3}）为空、不大于 0 或超出范围；请反审核后修改。"},
        {"Select a.fInvNo,a.fInvJE,b.je From {H} a Inner Join (Select fInvID{M}," + sum +
             " as je From {L} Where fInv1=0 Group By fInvID{M}) b On {ON}"
             " Where a.fInvJE is not null And abs(a.fInvJE-" +
             OrZero("b.je") + ")>0.0051+0.000000001*abs(" + OrZero("b.je") + ")",
         "单据 {1}：合计 {2} 不等于明细之和 {3}；请反审核后修改存盘。"},
        {"Select a.fInvNo,b.lo,b.hi,b.n From {H} a Inner Join (Select fInvID{M},count(*) as n,count(fRowID) "
         "as rn,"
         "min(fRowID) as lo,max(fRowID) as hi From {L} Where fInv1=0 Group By fInvID{M}) b On {ON}"
         " Where b.rn>0 And (b.hi-b.lo+1<>b.n Or (b.lo<>1 And a.fInvType<>23))",
         "单据 {1}：行号 {2} 至 {3} 不连续（{4} 行），可能缺少明细；请与原始凭证核对。"},
    };
}

// What of a document that is not closed refers to things that people may delete.
std::vector<Rule> OpenBookRules(const Book& book) {
    std::vector<Rule> rules{
        {"Select min(a.fInvNo),count(*),a.fKhID From {H} a Left Join cards c On c.fID=a.fKhID"
         " Where a.fKhID>0 And c.fID is null Group By a.fKhID",
         "单据 {1} 等 {2} 张：客户资料（编号 {3}）已不存在；请补建该客户，或修改单据。"},
        {"Select min(a.fInvNo),count(*),a.fInvHb From {H} a Left Join Moneys c On c.MoneyCode=a.fInvHb"
         " Where a.fInvHb<>'' And c.MoneyCode is null Group By a.fInvHb",
         "单据 {1} 等 {2} 张：货币 {3} 已不存在；请在[货币]中恢复，或修改单据。"},
        {"Select fInvNo,fInvID From {H} Where fInvSHR is null",
         "单据 {1}：审核标志为空；请以系统管理员打开后重新存盘。"},
        {"Select fInvNo,fInvSHR From {H} Where fInvSHR like ' %'",
         "单据 {1}：审核人“{2}”为空白；请以系统管理员反审核后重新审核。"}};
    if (book.stem == "tJXC_CkDj" || book.stem == "tJXC_CkHt")
        rules.push_back(
            {"Select min(b.fInvNo),count(*),b.fCpID From {L} b Left Join tJXC_Cp c On c.fCpID=b.fCpID"
             " Where c.fCpID is null Group By b.fCpID",
             "单据 {1} 等 {2} 行：产品（编号 {3}）已不存在；请从备份恢复该产品。"});
    return rules;
}

const Rule kWarehouseRules[] = {
    {"Select min(a.fInvNo),count(*),a.fCkName From tJXC_CkDj01 a Left Join tJXC_Ck c On c.fCkName=a.fCkName"
     " Where a.fCkName<>'' And c.fCkName is null Group By a.fCkName",
     "单据 {1} 等 {2} 张：仓库 {3} 已不存在；请在[仓库管理]中重新建立该仓库。"},
    {"Select min(a.fInvNo),count(*),a.fCkName2 From tJXC_CkDj01 a Left Join tJXC_Ck c On c.fCkName=a.fCkName2"
     // A warehouse that approved documents only delivered to may be deleted; stock left in it is found there.
     " Where a.fCkName2<>'' And a.fInvSHR='' And c.fCkName is null Group By a.fCkName2",
     "单据 {1} 等 {2} 张：仓库 {3} 已不存在；请在[仓库管理]中重新建立该仓库。"},
    {"Select a.fInvNo,b.fRowID From tJXC_CkDj02 b Inner Join tJXC_CkDj01 a On a.fInvID=b.fInvID"
     " Where b.fInvSL=0 And a.fInvType<>0",
     "单据 {1}：第 {2} 行的数量为 0；请反审核后修改。"}};

// The copies of the header on its lines, one finding a document.
void CheckCopies(const Book& book, Findings& findings) {
    const std::string customer = book.stem == "tJXC_CkJh"
                                     ? "0"
                                     : "(case when a.fInvType=31 Or a.fInvType=32 then 0 else " +
                                           Differ(OrZero("b.fKhID"), OrZero("a.fKhID")) + " end)";
    const Difference copies[] = {
        {"单号", TextsDiffer("b.fInvNo", "a.fInvNo")},
        {"日期", Differ("b.fInvDate", "a.fInvDate")},
        {"货币", TextsDiffer("b.fInvHb", "a.fInvHb")},
        {"汇率", Differ("b.fInvHbDl", "a.fInvHbDl")},
        {"客户", customer},
        {"仓库", TextsDiffer("b.fCkName", "(case when b.fInv1=1 then a.fCkName2 else a.fCkName end)")},
        {"行别", "(case when b.fInv1=0 then 0 when b.fInv1=1 And (a.fCkName2<>'' Or a.fInvType=31 Or "
                 "a.fInvType=32) then 0 else 1 end)"}};
    const Rows rows = findings.Ask(OfBook("Select a.fInvNo,a.fInvID" + EachOf(copies, "max") +
                                              " From {H} a Inner Join {L} b On {ON} Where " + AnyOf(copies) +
                                              " Group By a.fInvID,a.fInvNo",
                                          book));
    for (size_t row = 0; row < rows.Count(); ++row)
        findings.Add("单据 " + rows.At(row, 0).AsText() + "：明细的" + WrongNames(copies, rows, row, 2) +
                     "与单据不符；请反审核（如已审核）后修改存盘，使明细重写。");
}

// Quantity times price; a price may have been rounded to two decimals or the company's, after its amount.
void CheckAmounts(const Book& book, std::int64_t decimals, Findings& findings) {
    const std::string slack = decimals <= 0 ? "0.5" : decimals == 1 ? "0.05" : "0.005";
    const std::string product = "(case when " + IsPlausible("b.fInvSL") + " And " + IsPlausible("b.fInvDJ") +
                                " then b.fInvSL*b.fInvDJ else 0 end)";
    Run({OfBook("Select b.fInvNo,b.fRowID,b.fInvJE,b.fInvSL,b.fInvDJ From {L} b Where b.fInv1=0 And abs(" +
                    OrZero("b.fInvJE") + "-" + OrZero(product) + ")>0.0051+" + slack +
                    "*abs(b.fInvSL)+0.000000001*abs(" + OrZero("b.fInvJE") + ")",
                book),
         "单据 {1}：第 {2} 行金额 {3} 不等于数量 {4} 乘单价 {5}；请反审核后修改。"},
        findings);
}

// A rate is a fraction. The tax follows from it and the amount, on top of it or contained in it: the company may have
// changed its way since. Documents that are changed while it takes no tax keep theirs, whatever becomes of their amounts.
void CheckTaxes(const Book& book, TaxWay way, Findings& findings) {
    Run({OfBook("Select fInvNo,fRowID,fInvTaxRate From {L} Where fInvTaxRate<0 Or fInvTaxRate>=1", book),
         "单据 {1}：第 {2} 行税率 {3} 不在 0 与 1 之间；请反审核后修改。"},
        findings);
    if (way == TaxWay::None)
        return;
    // Shown are four decimals of the rate, two of amount and tax.
    const auto isFar = [](const std::string& expected) {
        return "abs(" + OrZero("fInvTax") + "-" + expected + ")>0.0151+0.000051*abs(" + OrZero("fInvJE") +
               ")";
    };
    const std::string onTop = OrZero("fInvJE") + "*fInvTaxRate";
    Run({OfBook("Select fInvNo,fRowID,fInvTax,fInvJE,fInvTaxRate From {L} Where fInvTaxRate>=0 And "
                "fInvTaxRate<1 And " +
                    IsPlausible(OrZero("fInvJE")) + " And " + isFar(onTop) + " And " +
                    isFar(onTop + "/(1+fInvTaxRate)"),
                book),
         "单据 {1}：第 {2} 行税额 {3} 不符合金额 {4} 与税率 {5}；请反审核后修改。"},
        findings);
}

void CheckDates(const Book& book, const std::optional<Date>& periodStart, Findings& findings) {
    const Rows rows =
        findings.Ask(OfBook("Select fInvDate,min(fInvNo),count(*) From {H} Group By fInvDate", book));
    for (size_t row = 0; row < rows.Count(); ++row) {
        const std::string number = "单据 " + rows.At(row, 1).AsText() + "：日期";
        const auto date = ParseDate(rows.At(row, 0).AsText());
        if (!date)
            findings.Add(number + "“" + rows.At(row, 0).AsText() + "”不正确；请修改单据日期。");
        else if (book.stem == "tJXC_CkDj" && periodStart && *date < *periodStart)
            findings.Add(number + " " + IsoText(*date) + " 早于本期起始日期 " + IsoText(*periodStart) +
                         "；请核对[系统参数设置]的本期年月，或修改单据日期。");
        else if (YearOf(*date) < 1990 ||
                 YearOf(*date) > 2100) // the screens take any day of the period or later
            findings.Note(number + " " + IsoText(*date) + " 少见；如果是误输，请修改单据日期。");
    }
}

void CheckTypesOf(const Book& book, const CheckedTypes& types, Findings& findings) {
    const Rows rows =
        findings.Ask(OfBook("Select fInvType,min(fInvNo),count(*) From {H} Group By fInvType", book));
    for (size_t row = 0; row < rows.Count(); ++row) {
        const auto type = static_cast<int>(rows.At(row, 0).AsLong());
        if (!types.contains(type) || BookStem(type, false) != book.stem)
            findings.Add("单据 " + rows.At(row, 1).AsText() + " 等 " + rows.At(row, 2).AsText() +
                         " 张：单据类型 " + std::to_string(type) +
                         " 不存在，或不属于该册；请恢复该类型的设置。");
    }
}

} // namespace

void CheckBooks(const CheckedCompany& company, Findings& findings) {
    const auto decimals = company.parameters.Count() > 0 ? company.Parameter("fSysDeciDj").AsLong() : 2;
    const auto way = static_cast<TaxWay>(company.Parameter("fSysTaxWay").AsLong());
    for (const Book& book : AllBooks()) {
        for (const Rule& rule : BookRules(book))
            Run({OfBook(rule.sql, book), OfBook(rule.told, book)}, findings);
        CheckCopies(book, findings);
        CheckAmounts(book, decimals, findings);
        CheckTaxes(book, way, findings);
        CheckDates(book, company.periodStart, findings);
        if (book.closed)
            continue;
        for (const Rule& rule : OpenBookRules(book))
            Run({OfBook(rule.sql, book), rule.told}, findings);
        CheckTypesOf(book, company.types, findings);
    }
    for (const Rule& rule : kWarehouseRules)
        Run(rule, findings);
}

} // namespace jxc
