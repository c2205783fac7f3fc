#include "host/company_address.h"

#include "database/server_address.h"
#include "session/company/open_connection.h"
#include "session/session.h"

namespace jxc {

int DialectOf(const std::string& company) {
    return IsServerAddress(company) ? 1 : 0;
}

std::string WithoutPassword(const std::string& company) {
    return ShownAddress(company);
}

void UseCompany(lzJxc& control, const std::string& company) {
    control.UserPath(company);
    control.SQLData(static_cast<std::int16_t>(DialectOf(company)));
}

OpenCompany::OpenCompany(const std::string& company, OpenFor purpose) {
    lzJxc control;
    UseCompany(control, company);
    session.Conn = std::make_unique<Connection>();
    if (purpose == OpenFor::Looking)
        OpenToRead(session.SQLData, *session.Conn, session.UserPath);
    else
        OpenOfSession(*session.Conn);
}

OpenCompany::~OpenCompany() {
    session.Conn.reset();
}

} // namespace jxc
