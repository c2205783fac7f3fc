#include "settings/parameters.h"

#include "database/recordset.h"
#include "session/period.h"
#include "session/session.h"

namespace jxc {

std::string ParametersStatement() {
    return "select * from tJXC_InvSys";
}

Parameters ReadParameters() {
    const Recordset row(Conn(), ParametersStatement());
    if (row.AtEnd())
        throw DatabaseError("系统参数尚未设置，请先进行 [系统参数设置] ！");
    const auto sysDate = ParseDate(row["fSysDate"].AsText());
    if (!sysDate)
        throw DatabaseError("系统参数中没有本期年月，请先进行 [系统参数设置] ！");
    const auto flag = [&](const char* field) { return row[field].AsLong() == 1; };
    Parameters read;
    read.approveOnSave = flag("fSysAuto1");
    read.printOnSave = flag("fSysAuto2");
    read.quickPayment = flag("fSysAuto3");
    read.warnsOfNegativeStock = flag("fSysWarnKc");
    read.costMethod = static_cast<CostMethod>(row["fSysCostWay"].AsLong());
    read.periodStart = PeriodDate(*sysDate, static_cast<int>(row["fSysDay"].AsLong()));
    read.periodEnd = AddDays(AddMonths(read.periodStart, 1), -1);
    read.taxWay = static_cast<TaxWay>(row["fSysTaxWay"].AsLong());
    read.taxRate = row["fSysTaxRate"].AsDouble();
    read.quantityDecimals = static_cast<int>(row["fSysDeciSl"].AsLong());
    read.priceDecimals = static_cast<int>(row["fSysDeciDj"].AsLong());
    read.maxRows = static_cast<int>(row["fSysMaxRow"].AsLong());
    read.memo1 = row["fSysDjBz1"].AsText();
    read.memo2 = row["fSysDjBz2"].AsText();
    read.kits = flag("fSysFun3");
    read.handlersFromSalespeople = flag("fSysFun10");
    return read;
}

} // namespace jxc
