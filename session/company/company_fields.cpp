#include "session/company/company_fields.h"

#include "database/recordset.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

std::string CompanyName(const Recordset& header) {
    const std::string full = header["FullName"].AsText();
    return full.empty() ? header["CompName"].AsText() : full;
}

void CompanyFields() {
    const Recordset row(Conn(), "select * from myCompany");
    if (row.AtEnd())
        return;
    const auto add = [](const std::string& key, const std::string& value) {
        session.CompanyFieldList.push_back("<" + key + ">");
        session.CompanyFieldList.push_back(value);
    };
    const auto field = [&](const char* name) { return row[name].AsText(); };
    add(GetResStr(159) + GetResStr(160), CompanyName(row));
    add(GetResStr(162), field("compadd"));
    add(GetResStr(161), field("Province") + field("cityname") + field("compadd"));
    add(GetResStr(163), field("Telphone"));
    add(GetResStr(164), field("fax"));
    add(GetResStr(165), field("postcode"));
    add(GetResStr(167), field("http"));
    add(GetResStr(166), field("E_Mail"));
    add(GetResStr(168), field("CompTax"));
    add(GetResStr(169), field("CompAcnt"));
}

} // namespace jxc
