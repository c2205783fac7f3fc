#include "host/check/checked_company.h"

#include "base/text.h"
#include "database/recordset.h"
#include "session/period.h"
#include "session/session.h"
#include "settings/document_types.h"

namespace jxc {

namespace {

CheckedTypes ReadTypes() {
    CheckedTypes types;
    Recordset rows(Conn(), "Select * From tJXC_InvSet Order By fSetNo,fRowID");
    for (; !rows.AtEnd(); rows.MoveNext()) {
        const Value& unused = rows["fSetNoUse_"];
        const CheckedType type{!unused.IsNull() && unused.AsLong() != 1, TypeRowOf(rows)};
        const auto [known, isNew] = types.try_emplace(type.row.fSetNo, type);
        if (!isNew && type.used && !known->second.used)
            known->second = type;
    }
    return types;
}

} // namespace

Value CheckedCompany::Parameter(const std::string& field) const {
    for (size_t column = 0; parameters.Count() > 0 && column < parameters.names.size(); ++column)
        if (EqualsNoCase(parameters.names[column], field))
            return parameters.At(0, column);
    return {};
}

CheckedCompany ReadCompany(Findings& findings) {
    CheckedCompany company;
    findings.Try([&] { company.types = ReadTypes(); });
    company.parameters = findings.Ask("Select * From tJXC_InvSys");
    if (const auto month = ParseDate(company.Parameter("fSysDate").AsText()))
        company.periodStart = PeriodDate(*month, static_cast<int>(company.Parameter("fSysDay").AsLong()));
    return company;
}

std::set<int> ValuesOf(const CheckedTypes& types, int type, int TypeRow::*column) {
    std::set<int> values;
    if (const auto known = types.find(type); known != types.end())
        values.insert(known->second.row.*column);
    for (const DocumentTypeRow& shipped : DefaultDocumentTypes())
        if (shipped.fSetNo == type)
            values.insert(TypeRowOf(shipped).*column);
    return values;
}

std::string TypesOfIssuesOnly(const CheckedTypes& types) {
    return InList(TypesWhere(types, [&](int type, const TypeRow&) {
        return ValuesOf(types, type, &TypeRow::fSetTjType) == std::set<int>{Statistics::Issue};
    }));
}

} // namespace jxc
