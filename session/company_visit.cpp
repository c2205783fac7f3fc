#include "session/company_visit.h"

#include "controls/view.h"
#include "session/company_fields.h"
#include "session/database/open_connection.h"
#include "session/session.h"

namespace jxc {

namespace {

void CloseConnection() noexcept {
    try {
        if (session.Conn && session.Conn->IsOpen())
            session.Conn->Close();
    } catch (const std::exception&) {
        // The connection is given up either way; there is nobody left to tell.
    }
    session.Conn.reset();
}

} // namespace

void VisitCompany(const std::function<void()>& show) {
    std::string failure;
    try {
        if (!session.Conn)
            session.Conn = std::make_unique<Connection>();
        OpenConnection(session.SQLData, *session.Conn, session.UserPath, session.Password, session.UserID,
                       session.Default);
        session.CompanyFieldList.clear();
        CompanyFields();
        show();
    } catch (const std::exception& error) {
        failure = error.what();
    }
    CloseConnection();
    if (!failure.empty())
        Warn(session.CompName, failure);
}

} // namespace jxc
