#include "host/check.h"

#include <cmath>
#include <map>

#include "controls/text.h"
#include "session/database/recordset.h"
#include "session/session.h"

namespace jxc {

namespace {

using Violations = std::vector<std::string>;

const char* const kLiveBooks[] = {"tJXC_CkDj", "tJXC_CkHt", "tJXC_CkJh", "tJXC_CkXjBj"};

// A counter of a product in a warehouse, by the fields that the documents determine alone.
struct Counters {
    std::map<std::string, double> fields{{"fQcSl", 0}, {"fQcJe", 0}, {"fRkSl", 0}, {"fRkJe", 0},
                                         {"fCkSl", 0}, {"fCkJe", 0}, {"fDkSl", 0}, {"fPdSl", 0}};
};
using StockKey = std::pair<std::string, std::int64_t>; // warehouse, product

struct CounterNames {
    const char* quantity;
    const char* value;
};
constexpr CounterNames kByStatistics[] = {
    {"fQcSl", "fQcJe"}, {"fRkSl", "fRkJe"}, {"fCkSl", "fCkJe"}, {"fDkSl", nullptr}, {"fPdSl", nullptr}};

void CountLine(const Recordset& line, std::map<StockKey, Counters>& counted) {
    const std::int64_t statistics = line["fSetTjType"].IsNull() ? -1 : line["fSetTjType"].AsLong();
    if (statistics < 0 || statistics > 4 || line["fSetCrType1"].AsLong() == -1 ||
        line["fSetCkType1"].AsLong() < 0)
        return;
    const CounterNames& names = kByStatistics[statistics];
    double quantity = line["fInvSL"].AsDouble();
    const bool in = line["fInvInOut"].AsLong() == 1;
    if (statistics == 2 ? in : !in)
        quantity = -quantity;
    auto& fields = counted[{LowerCase(line["fCkName"].AsText()), line["fCpID"].AsLong()}].fields;
    fields[names.quantity] = AddDecimal(fields[names.quantity], quantity);
    if (names.value)
        fields[names.value] = AddDecimal(fields[names.value],
                                         quantity * line["fInvDJ"].AsDouble() * line["fInvHbDl"].AsDouble());
}

std::map<StockKey, Counters> Recount() {
    std::map<StockKey, Counters> counted;
    Recordset line(
        Conn(),
        "Select b.fCkName,b.fCpID,b.fInvSL,b.fInvDJ,b.fInvHbDl,b.fInvInOut,c.fSetTjType,c.fSetCrType1,"
        "c.fSetCkType1 From (tJXC_CkDj02 b Inner Join tJXC_CkDj01 a On a.fInvID=b.fInvID)"
        " Inner Join tJXC_InvSet c On a.fInvType=c.fSetNo Where a.fInvSHR<>''");
    for (; !line.AtEnd(); line.MoveNext())
        CountLine(line, counted);
    return counted;
}

bool Differs(double a, double b) {
    return std::fabs(a - b) > 1e-6 * std::max({1.0, std::fabs(a), std::fabs(b)});
}

void CompareStockRow(const Recordset& row, const Counters& counted, Violations& violations) {
    const std::string place = "仓库 " + row["fCkName"].AsText() + "，产品 " + row["fCpID"].AsText() + "：";
    for (const auto& [field, expected] : counted.fields)
        if (Differs(row[field].AsDouble(), expected))
            violations.push_back(place + field + " 为 " + row[field].AsText() + "，按单据应为 " +
                                 NumberText(expected));
    const double stock = row["fQcSl"].AsDouble() + row["fRkSl"].AsDouble() - row["fCkSl"].AsDouble() +
                         row["fDkSl"].AsDouble() + row["fPdSl"].AsDouble();
    if (Differs(row["fKcSL"].AsDouble(), stock))
        violations.push_back(place + "fKcSL 为 " + row["fKcSL"].AsText() + "，按各项应为 " +
                             NumberText(stock));
    if (Differs(row["fKcJE"].AsDouble(), row["fKcSL"].AsDouble() * row["fKcDj"].AsDouble()))
        violations.push_back(place + "fKcJE 不等于 fKcSL 乘 fKcDj");
}

void CheckCounters(Violations& violations) {
    std::map<StockKey, Counters> counted = Recount();
    for (Recordset row(Conn(), "Select * From tJXC_CkTj Order By fCkName,fCpID"); !row.AtEnd();
         row.MoveNext()) {
        const StockKey key{LowerCase(row["fCkName"].AsText()), row["fCpID"].AsLong()};
        CompareStockRow(row, counted[key], violations);
        counted.erase(key);
    }
    for (const auto& [key, missing] : counted)
        for (const auto& [field, expected] : missing.fields)
            if (expected != 0) {
                violations.push_back("仓库 " + key.first + "，产品 " + std::to_string(key.second) +
                                     "：库存表没有该行");
                break;
            }
}

void Report(const std::string& sql, const std::string& what, Violations& violations) {
    for (Recordset row(Conn(), sql); !row.AtEnd(); row.MoveNext())
        violations.push_back(what + row[size_t{0}].AsText());
}

void CheckBook(const std::string& stem, Violations& violations) {
    const std::string headers = stem + "01";
    const std::string lines = stem + "02";
    Report("select fInvNo from " + headers + " Group By fInvNo Having count(*)>1", headers + " 单号重复：",
           violations);
    Report("select fInvID from " + headers + " Group By fInvID Having count(*)>1", headers + " fInvID 重复：",
           violations);
    Report("select distinct b.fInvID from " + lines + " b Left Join " + headers +
               " a On a.fInvID=b.fInvID Where a.fInvID is null",
           lines + " 有明细而没有单据：", violations);
    Report("select a.fInvNo from " + headers + " a Left Join " + lines +
               " b On a.fInvID=b.fInvID Where b.fInvID is null",
           headers + " 单据没有明细：", violations);
    Report("select distinct a.fInvNo from " + headers + " a Inner Join " + lines +
               " b On a.fInvID=b.fInvID Where a.fInvNo<>b.fInvNo",
           lines + " 明细的单号与单据不符：", violations);
}

// A type with a second warehouse stores each line twice; assembly has one row for the finished product
// instead.
void CheckPairs(Violations& violations) {
    Report("select a.fInvNo from (tJXC_CkDj01 a Inner Join tJXC_CkDj02 b On a.fInvID=b.fInvID)"
           " Inner Join tJXC_InvSet c On a.fInvType=c.fSetNo"
           " Where c.fSetCkType2<>-1 And a.fInvType<>31 And a.fInvType<>32"
           " Group By a.fInvNo Having count(*)<>2*sum(b.fInv1)",
           "单据的出入仓明细不成对：", violations);
}

// What approval placed in the ledger belongs to one approved document, with its amount.
void CheckAccounts(Violations& violations) {
    Recordset entry(
        Conn(),
        "select a.fAcntNo,a.fInvID,a.fDate,a.fType1,a.fMoneyA,a.fMoneyB,b.fInvDate,b.fInvJE,b.fInvSHR"
        " From tAccountDetail a Left Join tJXC_CkDj01 b On a.fInvID=b.fInvNo Where a.fBrief='自动挂入'");
    for (; !entry.AtEnd(); entry.MoveNext()) {
        const std::string what =
            "帐户单 " + entry["fAcntNo"].AsText() + "（单据 " + entry["fInvID"].AsText() + "）";
        const double amount =
            entry["fType1"].AsLong() == 0 ? entry["fMoneyA"].AsDouble() : entry["fMoneyB"].AsDouble();
        // By number alone: a join over the date as well may go through all documents of the day.
        const bool sameDay = entry["fDate"] == entry["fInvDate"];
        if (!sameDay || entry["fInvSHR"].AsText().empty())
            violations.push_back(what + "没有已审核的单据");
        else if (Differs(amount, entry["fInvJE"].AsDouble()))
            violations.push_back(what + "金额与单据不符");
    }
    Report("select fAcntNo from tAccountDetail Group By fAcntNo Having count(*)>1", "帐户单号重复：",
           violations);
}

} // namespace

std::vector<std::string> CheckCompany() {
    Violations violations;
    CheckCounters(violations);
    for (const char* stem : kLiveBooks)
        CheckBook(stem, violations);
    CheckPairs(violations);
    CheckAccounts(violations);
    return violations;
}

} // namespace jxc
