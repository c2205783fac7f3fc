#include "host/window/company_users.h"

#include "database/recordset.h"
#include "host/user_settings.h"
#include "session/session.h"

namespace jxc {

namespace {

std::vector<std::string> Names(const std::string& sql) {
    std::vector<std::string> names;
    for (Recordset row(Conn(), sql); !row.AtEnd(); row.MoveNext())
        names.push_back(row[size_t{0}].AsText());
    return names;
}

} // namespace

std::vector<std::string> CompanyUsers() {
    std::vector<std::string> names =
        Names("Select fUserName From tHostUser Order By fSupervisor Desc, fUserName");
    if (names.empty())
        names = Names("Select fName From tRsBasic Order By fCode");
    if (names.empty())
        names.push_back("管理员");
    return names;
}

} // namespace jxc
