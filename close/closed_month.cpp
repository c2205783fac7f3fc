#include "close/closed_month.h"

#include "base/value.h"
#include "database/recordset.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

std::string MonthName(Date month) {
    const std::string number = std::to_string(MonthOf(month));
    return std::to_string(YearOf(month)) + "年" + (number.size() < 2 ? "0" : "") + number + "月";
}

void ClearMonth(const std::string& table, Date month) {
    Conn().Execute("Delete From " + table + " Where " + MonthTest("fMonth", month));
}

bool IsClosed(Date month) {
    const auto has = [&](const std::string& table) {
        return !Recordset(Conn(),
                          "Select Top 1 fMonth From " + table + " Where " + MonthTest("fMonth", month))
                    .AtEnd();
    };
    return has("tJXC_CkDj_Bak01") || has("tJXC_CkTj_Bak");
}

void MovePeriod(Date month, Date other, const std::string& action) {
    Conn().Execute("Update tJXC_InvSys Set fSysDate=" + DayValue(other));
    WriteAudit({.action = action,
                .table = "tJXC_InvSys",
                .key = "",
                .name = MonthName(month),
                .before = JsonOf({{"fSysDate", IsoText(month)}}),
                .after = JsonOf({{"fSysDate", IsoText(other)}})});
}

std::optional<Date> StoredMonth() {
    const Recordset row(Conn(), "select fSysDate from tJXC_InvSys");
    return row.AtEnd() ? std::nullopt : ParseDate(row["fSysDate"].AsText());
}

} // namespace jxc
