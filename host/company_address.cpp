#include "host/company_address.h"

#include <regex>

#include "session/database/open_connection.h"
#include "session/session.h"

namespace jxc {

int DialectOf(const std::string& company) {
    return company.starts_with("postgresql://") || company.starts_with("postgres://") ? 1 : 0;
}

std::string WithoutPassword(const std::string& company) {
    if (DialectOf(company) == 0)
        return company;
    static const std::regex inUser("(//[^/@:]*):[^/@]*@");
    static const std::regex inQuery("([?&])password=[^&]*&?", std::regex::icase);
    std::string shown = std::regex_replace(std::regex_replace(company, inUser, "$1@"), inQuery, "$1");
    while (shown.ends_with('?') || shown.ends_with('&'))
        shown.pop_back();
    return shown;
}

void UseCompany(lzJxc& control, const std::string& company) {
    control.UserPath(company);
    control.SQLData(static_cast<std::int16_t>(DialectOf(company)));
}

OpenCompany::OpenCompany(const std::string& company) {
    lzJxc control;
    UseCompany(control, company);
    session.Conn = std::make_unique<Connection>();
    OpenConnection(session.SQLData, *session.Conn, session.UserPath, session.Password, session.UserID,
                   session.Default);
}

OpenCompany::~OpenCompany() {
    session.Conn.reset();
}

} // namespace jxc
