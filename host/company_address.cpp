#include "host/company_address.h"

#include "session/database/open_connection.h"
#include "session/session.h"

namespace jxc {

int DialectOf(const std::string& company) {
    return company.starts_with("postgresql://") || company.starts_with("postgres://") ? 1 : 0;
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
