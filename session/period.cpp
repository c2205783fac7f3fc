#include "session/period.h"

#include <cstdlib>

#include "database/recordset.h"
#include "session/session.h"

namespace jxc {

Date PeriodDate(Date date, int day) {
    const Date monthBefore = AddDays(date, -DayOf(date));
    if (day >= 0)
        return AddDays(monthBefore, day);
    return AddDays(monthBefore, -DayOf(monthBefore) + std::abs(day));
}

std::string PeriodStatement() {
    return "select fSysDate,fSysDay,fSysDeciSl,fSysDeciDj,fSysCostWay from tJXC_InvSys";
}

void LoadPeriodSettings() {
    const Recordset row(Conn(), PeriodStatement());
    if (row.AtEnd())
        return;
    session.SysDay = static_cast<std::int16_t>(row["fSysDay"].AsLong());
    session.SysDate = ParseDate(row["fSysDate"].AsText());
    if (session.SysDate) {
        session.PeriodStart = PeriodDate(*session.SysDate, session.SysDay);
        session.PeriodEnd = AddDays(AddMonths(*session.PeriodStart, 1), -1);
    }
    session.DeciSl = static_cast<std::int16_t>(row["fSysDeciSl"].AsLong());
    session.DeciDj = static_cast<std::int16_t>(row["fSysDeciDj"].AsLong());
    session.CostWay = static_cast<std::uint8_t>(row["fSysCostWay"].AsLong());
}

void LoadSystemStartDate() {
    const Recordset row(Conn(), "select CompDate from SystemSets");
    session.SystemStartDate = row.AtEnd() ? session.SysDate : ParseDate(row["CompDate"].AsText());
}

} // namespace jxc
