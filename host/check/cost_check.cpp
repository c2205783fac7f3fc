// Cost prices as far as they are determined: the whole-moving price of a product that nothing has moved but approved
// openings and receipts, and the costs on the lines of issues.

#include <cmath>
#include <map>

#include "base/text.h"
#include "host/check/checked_company.h"

namespace jxc {

namespace {

const std::string kLinesOfDocuments = "tJXC_CkDj02 b Inner Join tJXC_CkDj01 a On a.fInvID=b.fInvID";

const Rule kPriceRules[] = {{"Select c.fCpCode,count(*) From tJXC_CkTj_tmp t Inner Join tJXC_Cp c On "
                             "c.fCpID=t.fCpID Group By c.fCpCode Having count(*)>1",
                             "产品 {1}：整体成本价有 {2} 行重复；请刷新库存统计。"},
                            {"Select c.fCpCode,t.fKcDj From tJXC_CkTj_tmp t Inner Join tJXC_Cp c On "
                             "c.fCpID=t.fCpID Where t.fKcDj is null Or " +
                                 IsAbsurd("t.fKcDj"),
                             "产品 {1}：整体成本价“{2}”不是正常的数值；请刷新库存统计。"}};

void CheckMissingPrices(const std::string& received, Findings& findings) {
    Run({"Select min(c.fCpCode),min(a.fInvNo),b.fCpID From ((" + kLinesOfDocuments +
             ") Inner Join tJXC_Ck w On w.fCkName=b.fCkName) Inner Join tJXC_Cp c On c.fCpID=b.fCpID"
             " Where w.fCkType2=0 And w.fCkType3=0 And a.fInvSHR<>'' And a.fMonth is null"
             // What a close carries over gets its price with the next refresh.
             " And not (a.fInvType=0 And a.fInvJE is null) And a.fInvType In (" +
             received +
             ") And not exists (Select t.fCpID From tJXC_CkTj_tmp t Where t.fCpID=b.fCpID) Group By b.fCpID",
         "产品 {1}：没有整体成本价（单据 {2}）；请刷新库存统计。"},
        findings);
}

struct Stock {
    double quantity = 0, value = 0;
    std::string code;
    double price = 0;
};

// Of each product that only approved openings and receipts have moved: the last of them gave its price, from the stock
// and value before it. Which one was the last is not known; the price must follow from one of them.
void CheckWholeMovingPrices(const std::string& received, Findings& findings) {
    const Rows stored =
        findings.Ask("Select b.fCpID,min(c.fCpCode),sum(b.fKcSL),sum(b.fKcJE),min(t.fKcDj) From ((tJXC_CkTj "
                     "b Inner Join tJXC_Ck w On"
                     " w.fCkName=b.fCkName) Inner Join tJXC_Cp c On c.fCpID=b.fCpID) Inner Join "
                     "tJXC_CkTj_tmp t On t.fCpID=b.fCpID"
                     " Where w.fCkType2=0 And w.fCkType3=0 And not t.fKcDj is null Group By b.fCpID");
    std::map<std::int64_t, Stock> stock;
    for (size_t row = 0; row < stored.Count(); ++row)
        stock[stored.At(row, 0).AsLong()] = {stored.At(row, 2).AsDouble(), stored.At(row, 3).AsDouble(),
                                             stored.At(row, 1).AsText(), stored.At(row, 4).AsDouble()};
    const Rows keys = findings.Ask("Select count(*),min(fInvID),max(fInvID) From tJXC_CkDj01");
    const bool noneDeleted = keys.Count() > 0 && keys.At(0, 0).AsLong() > 0 &&
                             keys.At(0, 2).AsLong() - keys.At(0, 1).AsLong() + 1 == keys.At(0, 0).AsLong();
    if (!noneDeleted)
        return; // a document that was reversed and deleted may have moved the price
    const Rows lines = findings.Ask(
        "Select b.fCpID,b.fInvSL,b.fInvDJ*b.fInvHbDl From (" + kLinesOfDocuments +
        ") Inner Join (Select b.fCpID as fCpID From " + kLinesOfDocuments +
        " Group By b.fCpID Having max(case when a.fInvSHR='' Or a.fInvSHR is null then 1 else 0 end)=0"
        " And max(case when a.fInvType In (" +
        received +
        ") then 0 else 1 end)=0) u On u.fCpID=b.fCpID"
        " Where a.fInvType In (" +
        received + ")");
    std::map<std::int64_t, std::vector<double>> lawful;
    for (size_t row = 0; row < lines.Count(); ++row) {
        const auto found = stock.find(lines.At(row, 0).AsLong());
        if (found == stock.end())
            continue;
        const double quantity = lines.At(row, 1).AsDouble();
        const double after = found->second.quantity + quantity;
        const double value = lines.At(row, 2).AsDouble() * quantity + found->second.value;
        lawful[found->first].push_back(std::fabs(after) > 1e-9 ? value / after : 0);
    }
    for (auto& [product, prices] : lawful) {
        const Stock& of = stock[product];
        if (std::fabs(of.quantity) > 1e-9)
            prices.push_back(of.value / of.quantity); // as a refresh leaves it
        if (std::none_of(prices.begin(), prices.end(), [&](double price) { return Alike(of.price, price); }))
            // A document that was the last, was reversed and then deleted, leaves its price: hence no finding.
            findings.Note("产品 " + of.code + "：整体成本价为 " + NumberText(of.price) + "，按单据应为 " +
                          NumberText(prices.front()) + "；请刷新库存统计。");
    }
}

// Only issues carry a cost, and it is one of the prices at which the product is known.
void CheckLineCosts(const CheckedTypes& types, const std::string& received, Findings& findings) {
    const auto issues = [&](int type, const TypeRow&) {
        return ValuesOf(types, type, &TypeRow::fSetTjType).contains(Statistics::Issue);
    };
    const std::string others =
        InList(TypesWhere(types, [&](int type, const TypeRow& row) { return !issues(type, row); }));
    const std::string issued = InList(TypesWhere(types, issues));
    const std::string onlyIssued = TypesOfIssuesOnly(types);
    Run({"Select a.fInvNo,b.fRowID,b.fInvDJ2 From " + kLinesOfDocuments +
             " Where b.fInvDJ2<>0 And a.fInvType In (" + others + ")",
         "单据 {1}：第 {2} 行不是出库而有成本 {3}；请反审核后重新存盘。"},
        findings);
    for (const Book& book : AllBooks())
        if (!book.IsOfStock())
            Run({"Select fInvNo,fRowID,fInvDJ2 From " + book.Lines() + " Where fInvDJ2<>0",
                 "单据 {1}：第 {2} 行不是出库而有成本 {3}；请反审核后重新存盘。"},
                findings);
    Run({"Select a.fInvNo,b.fRowID,b.fInvDJ2 From " + kLinesOfDocuments +
             " Where a.fInvSHR<>'' And b.fInvDJ2<0 And a.fInvType In (" + issued + ")",
         "单据 {1}：第 {2} 行的成本为 {3}，是负数；请反审核后修改存盘、重新审核。"},
        findings);
    // Where goods were received at a price before; what came in later, or got its price on the list later, leaves
    // the issue without a cost.
    Run({"Select a.fInvNo,b.fRowID From (" + kLinesOfDocuments +
             ") Inner Join (Select b.fCkName as fCkName,b.fCpID as fCpID,min(b.fInvID) as k From " +
             kLinesOfDocuments +
             " Where a.fInvSHR<>'' And b.fInvSL>0 And b.fInvDJ>0 And b.fInvHbDl>0 And a.fInvType In (" +
             received +
             ") Group By b.fCkName,b.fCpID) r On r.fCkName=b.fCkName And r.fCpID=b.fCpID"
             " Where a.fInvSHR<>'' And a.fInvType In (" +
             onlyIssued + ") And (b.fInvDJ2 is null Or b.fInvDJ2=0) And r.k<b.fInvID",
         "单据 {1}：第 {2} 行没有成本；请反审核后修改存盘、重新审核。"},
        findings);
}

// More than ten times beside every price at which a product was received or is listed.
void CheckAbsurdCosts(const CheckedTypes& types, const std::string& received, Findings& findings) {
    std::map<std::int64_t, std::pair<double, double>> known;
    const auto learn = [&](const Value& product, const Value& price) {
        const double figure = price.AsDouble();
        if (!(figure > 0 && figure < kAbsurdFigure))
            return;
        const auto [place, isNew] = known.try_emplace(product.AsLong(), figure, figure);
        place->second = {std::min(place->second.first, figure), std::max(place->second.second, figure)};
    };
    for (const Book& book : AllBooks())
        if (book.IsOfStock()) {
            const Rows rows =
                findings.Ask("Select b.fCpID,min(b.fInvDJ*b.fInvHbDl),max(b.fInvDJ*b.fInvHbDl) From " +
                             book.Lines() + " b Inner Join " + book.Headers() + " a On " + book.On("b", "a") +
                             " Where b.fInvDJ>0 And b.fInvDJ<1000000000000.0 And b.fInvHbDl<1000000.0"
                             " And a.fInvType In (" +
                             received + ") Group By b.fCpID");
            for (size_t row = 0; row < rows.Count(); ++row)
                for (const size_t column : {1, 2})
                    learn(rows.At(row, 0), rows.At(row, column));
        }
    for (const char* sql : {"Select fCpID,fCpPrice0 From tJXC_Cp", "Select fCpID,fKcDj From tJXC_CkTj",
                            "Select fCpID,fKcDj From tJXC_CkTj_tmp"}) {
        const Rows rows = findings.Ask(sql);
        for (size_t row = 0; row < rows.Count(); ++row)
            learn(rows.At(row, 0), rows.At(row, 1));
    }
    const std::string issued = TypesOfIssuesOnly(types);
    const Rows costs = findings.Ask(
        "Select b.fCpID,min(c.fCpCode),min(case when b.fInvDJ2>0 then b.fInvDJ2 end),max(b.fInvDJ2),"
        "min(a.fInvNo) From (" +
        kLinesOfDocuments +
        ") Inner Join tJXC_Cp c On c.fCpID=b.fCpID Where a.fInvSHR<>'' And a.fInvType In (" + issued +
        ") Group By b.fCpID");
    for (size_t row = 0; row < costs.Count(); ++row) {
        const auto found = known.find(costs.At(row, 0).AsLong());
        if (found == known.end())
            continue;
        const auto [least, most] = found->second;
        const Value& lowest = costs.At(row, 2);
        const double highest = costs.At(row, 3).AsDouble();
        if (highest > 10 * most || (!lowest.IsNull() && lowest.AsDouble() < least / 10))
            findings.Add("产品 " + costs.At(row, 1).AsText() + "：出库成本 " +
                         (highest > 10 * most ? NumberText(highest) : lowest.AsText()) + "（单据 " +
                         costs.At(row, 4).AsText() +
                         " 等）与该产品的各种价格相差悬殊；请反审核后修改存盘、重新审核。");
    }
}

} // namespace

void CheckCosts(const CheckedCompany& company, Findings& findings) {
    const CheckedTypes& types = company.types;
    const std::string received =
        InList(TypesWhere(types, [](int, const TypeRow& row) { return row.ReceivesStock(); }));
    for (const Rule& rule : kPriceRules)
        Run(rule, findings);
    CheckMissingPrices(received, findings);
    CheckWholeMovingPrices(received, findings);
    CheckLineCosts(types, received, findings);
    CheckAbsurdCosts(types, received, findings);
}

} // namespace jxc
