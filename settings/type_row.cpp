#include "settings/type_row.h"

#include "session/session.h"

namespace jxc {

std::string TypeRowStatement(int type) {
    return "select * from tJXC_InvSet where fSetNo=" + std::to_string(type) +
           " And fSetNoUse_<>1 Order by fRowID";
}

TypeRow TypeRowOf(const Recordset& row) {
    const auto choice = [&](const char* field) {
        return row[field].IsNull() ? kNoChoice : static_cast<int>(row[field].AsLong());
    };
    const auto flag = [&](const char* field) { return row[field].AsLong() == 1; };
    TypeRow read;
    read.fSetNo = choice("fSetNo");
    read.fSetName = row["fSetName"].AsText();
    read.fSetTjType = choice("fSetTjType");
    read.fSetKhType = choice("fSetKhType");
    read.fSetWlType = choice("fSetWlType");
    read.fSetZjType = choice("fSetZjType");
    read.fSetDjBack_ = flag("fSetDjBack_");
    read.fSetDjDd_ = flag("fSetDjDd_");
    read.fSetAutoNo = row["fSetAutoNo"].AsText();
    read.fSetCkName1 = row["fSetCkName1"].AsText();
    read.fSetCkType1 = choice("fSetCkType1");
    read.fSetCrType1 = choice("fSetCrType1");
    read.fSetCkName2 = row["fSetCkName2"].AsText();
    read.fSetCkType2 = choice("fSetCkType2");
    read.fSetDjType1 = choice("fSetDjType1");
    read.fSetDjType2 = choice("fSetDjType2");
    read.fSetHb_ = flag("fSetHb_");
    read.fSetHbSl_ = flag("fSetHbSl_");
    read.fSetKc_ = flag("fSetKc_");
    read.fSetJy_ = flag("fSetJy_");
    return read;
}

std::optional<TypeRow> ReadTypeRow(int type) {
    const Recordset row(Conn(), TypeRowStatement(type));
    if (row.AtEnd())
        return std::nullopt;
    return TypeRowOf(row);
}

} // namespace jxc
