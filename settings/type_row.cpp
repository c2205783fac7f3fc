#include "settings/type_row.h"

#include "session/session.h"
#include "settings/document_types.h"

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

TypeRow TypeRowOf(const DocumentTypeRow& shipped) {
    const auto flag = [](std::optional<std::int16_t> cell) { return cell == 1; };
    TypeRow row;
    row.fSetNo = shipped.fSetNo;
    row.fSetName = shipped.fSetName;
    row.fSetTjType = shipped.fSetTjType.value_or(kNoChoice);
    row.fSetKhType = shipped.fSetKhType;
    row.fSetWlType = shipped.fSetWlType;
    row.fSetZjType = shipped.fSetZjType.value_or(kNoChoice);
    row.fSetDjBack_ = flag(shipped.fSetDjBack_);
    row.fSetDjDd_ = flag(shipped.fSetDjDd_);
    row.fSetAutoNo = shipped.fSetAutoNo;
    row.fSetCkName1 = shipped.fSetCkName1.value_or("");
    row.fSetCkType1 = shipped.fSetCkType1;
    row.fSetCrType1 = shipped.fSetCrType1;
    row.fSetCkName2 = shipped.fSetCkName2.value_or("");
    row.fSetCkType2 = shipped.fSetCkType2;
    row.fSetDjType1 = shipped.fSetDjType1;
    row.fSetDjType2 = shipped.fSetDjType2;
    row.fSetHb_ = flag(shipped.fSetHb_);
    row.fSetHbSl_ = flag(shipped.fSetHbSl_);
    row.fSetKc_ = flag(shipped.fSetKc_);
    row.fSetJy_ = flag(shipped.fSetJy_);
    return row;
}

std::optional<TypeRow> ReadTypeRow(int type) {
    const Recordset row(Conn(), TypeRowStatement(type));
    if (row.AtEnd())
        return std::nullopt;
    return TypeRowOf(row);
}

} // namespace jxc
