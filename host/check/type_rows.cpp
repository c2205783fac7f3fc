#include "host/check/type_rows.h"

#include "settings/document_types.h"

namespace jxc {

namespace {

int Choice(const Value& value) {
    return value.IsNull() ? -1 : static_cast<int>(value.AsLong());
}

TypeRow ShippedRow(const DocumentTypeRow& shipped) {
    TypeRow row;
    row.fSetNo = shipped.fSetNo;
    row.fSetTjType = shipped.fSetTjType.value_or(-1);
    row.fSetKhType = shipped.fSetKhType;
    row.fSetWlType = shipped.fSetWlType;
    row.fSetZjType = shipped.fSetZjType.value_or(-1);
    row.fSetCkType1 = shipped.fSetCkType1;
    row.fSetCrType1 = shipped.fSetCrType1;
    row.fSetCkType2 = shipped.fSetCkType2;
    return row;
}

} // namespace

CheckedTypes ReadTypes(Findings& findings) {
    const Rows rows = findings.Ask("Select fSetNo,fSetNoUse_,fSetTjType,fSetKhType,fSetWlType,fSetZjType,"
                                   "fSetCkType1,fSetCrType1,fSetCkType2,fSetJy_ From tJXC_InvSet"
                                   " Order By fSetNo,fRowID");
    CheckedTypes types;
    for (size_t at = 0; at < rows.Count(); ++at) {
        const auto cell = [&](size_t column) -> const Value& { return rows.At(at, column); };
        const bool used = !cell(1).IsNull() && cell(1).AsLong() != 1;
        const int number = Choice(cell(0));
        if (const auto known = types.find(number); known != types.end() && (known->second.used || !used))
            continue;
        CheckedType& type = types[number];
        type.used = used;
        type.row.fSetNo = number;
        int* const choices[] = {&type.row.fSetTjType, &type.row.fSetKhType,  &type.row.fSetWlType,
                                &type.row.fSetZjType, &type.row.fSetCkType1, &type.row.fSetCrType1,
                                &type.row.fSetCkType2};
        for (size_t i = 0; i < std::size(choices); ++i)
            *choices[i] = Choice(cell(i + 2));
        type.row.fSetJy_ = cell(9).AsLong() == 1;
    }
    return types;
}

std::set<int> ValuesOf(const CheckedTypes& types, int type, int TypeRow::*column) {
    std::set<int> values;
    if (const auto known = types.find(type); known != types.end())
        values.insert(known->second.row.*column);
    for (const DocumentTypeRow& shipped : DefaultDocumentTypes())
        if (shipped.fSetNo == type)
            values.insert(ShippedRow(shipped).*column);
    return values;
}

} // namespace jxc
