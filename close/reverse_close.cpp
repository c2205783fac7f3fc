#include "close/reverse_close.h"

#include <map>
#include <set>

#include "base/text.h"
#include "close/closed_month.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

Date MonthBefore(Date month) {
    return AddDays(month, -DayOf(month));
}

namespace {

// A stock as it was closed or opened with: quantity and price.
using Stocks =
    std::map<std::pair<std::string, std::int64_t>, std::pair<double, double>>; // by warehouse and product

Stocks ClosedStocks(Date month) {
    Stocks stocks;
    Recordset row(Conn(),
                  "Select fCkName,fCpID,fKcSl,fKcDj From tJXC_CkTj_Bak Where " + MonthTest("fMonth", month));
    for (; !row.AtEnd(); row.MoveNext())
        stocks[{LowerCase(row["fCkName"].AsText()), row["fCpID"].AsLong()}] = {row["fKcSl"].AsDouble(),
                                                                               row["fKcDj"].AsDouble()};
    return stocks;
}

// The opening documents as the close numbered them, with those whose lines are not what was closed.
std::set<std::string> Corrected(Date month) {
    const Stocks closed = ClosedStocks(month);
    std::set<std::string> corrected;
    std::map<std::string, size_t> lines, rows; // by warehouse
    std::map<std::string, std::string> numbers;
    Recordset row(Conn(), "Select b.fInvNo,b.fCkName,a.fCpID,a.fInvSL,a.fInvDJ From tJXC_CkDj01 b Left Join "
                          "tJXC_CkDj02 a On a.fInvID=b.fInvID Where b.fInvType=0");
    for (; !row.AtEnd(); row.MoveNext()) {
        const std::string warehouse = LowerCase(row["fCkName"].AsText()), number = row["fInvNo"].AsText();
        const auto stock = closed.find({warehouse, row["fCpID"].AsLong()});
        if (stock == closed.end() ||
            stock->second != std::pair(row["fInvSL"].AsDouble(), row["fInvDJ"].AsDouble()))
            corrected.insert(number);
        ++lines[warehouse];
        numbers[warehouse] = number;
    }
    for (const auto& [key, stock] : closed)
        ++rows[key.first];
    for (const auto& [warehouse, number] : numbers) // a line may be gone
        if (lines[warehouse] != rows[warehouse])
            corrected.insert(number);
    return corrected;
}

} // namespace

std::vector<std::string> OpeningDocumentsByHand(Date month) {
    const std::set<std::string> numbers = Corrected(MonthBefore(month));
    return {numbers.begin(), numbers.end()};
}

void ClearOpeningDocuments() {
    Recordset row(Conn(), "Select fInvID From tJXC_CkDj01 Where fInvType = 0", Access::Write);
    for (; !row.AtEnd(); row.MoveNext()) {
        Conn().Execute("Delete From tJXC_CkDj02 Where fInvID = " + row["fInvID"].AsText());
        row.Delete();
    }
}

void RestoreDocuments(Date month) {
    for (const std::string part : {"01", "02"})
        Conn().Execute("Insert Into tJXC_CkDj" + part + " Select * From tJXC_CkDj_Bak" + part + " Where " +
                       MonthTest("fMonth", MonthBefore(month)) + " Order By fInvID");
}

void ClearClosedDocuments(Date month) {
    ClearMonth("tJXC_CkDj_Bak01", MonthBefore(month));
    ClearMonth("tJXC_CkDj_Bak02", MonthBefore(month));
}

void ClearClosedStatistics(Date month) {
    ClearMonth("tJXC_CkTj_Bak", MonthBefore(month));
}

void StepBackPeriod(Date month) {
    const Date before = MonthBefore(month);
    MovePeriod(month, AddDays(before, 1 - DayOf(before)), "反结转");
}

} // namespace jxc
