#include "host/window/company_users.h"

#include "session/database/recordset.h"
#include "session/session.h"

namespace jxc {

std::vector<CompanyUser> CompanyUsers() {
    std::vector<CompanyUser> users;
    for (Recordset row(Conn(), "Select fName From tRsBasic Order By fCode"); !row.AtEnd(); row.MoveNext())
        users.push_back({row["fName"].AsText(), "9999999999", users.empty()});
    if (users.empty())
        users.push_back({"管理员", "9999999999", true});
    return users;
}

std::string SupervisorOf(const std::vector<CompanyUser>& users) {
    for (const CompanyUser& user : users)
        if (user.supervisor)
            return user.name;
    return users.empty() ? "" : users.front().name;
}

} // namespace jxc
