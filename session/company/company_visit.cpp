#include "session/company/company_visit.h"

#include "base/log.h"
#include "controls/view.h"
#include "session/company/company_fields.h"
#include "session/company/open_connection.h"
#include "session/session.h"

namespace jxc {

namespace {

void CloseConnection() noexcept {
    try {
        if (session.Conn && session.Conn->IsOpen())
            session.Conn->Close();
    } catch (const std::exception& error) { // the connection is given up either way
        Log(session.CompName, error.what());
    }
    session.Conn.reset();
}

// Between the call of a host and its end. A second one would take the connection away from the open screen.
bool visiting = false;

// Nothing leaves the boundary to the host, whatever its view throws.
void Tell(const std::exception_ptr& failure) noexcept {
    try {
        try {
            std::rethrow_exception(failure);
        } catch (const std::exception& error) {
            WarnOfError(session.CompName, error);
        }
    } catch (const std::exception& error) {
        Log(session.CompName, error.what());
    } catch (...) {
        Log(session.CompName, "宿主的显示界面抛出了未知的异常。");
    }
}

} // namespace

void VisitCompany(const std::function<void()>& show) {
    CurrentView(); // a host without one is told so before anything is opened
    if (visiting)
        return Warn(session.CompName, "还有窗口没有关闭，请先关闭它，再打开另一个！");
    std::exception_ptr failure;
    visiting = true;
    session.DateDelimiter =
        session.IsJet() ? "#" : "'"; // also where a property bag chose the engine, or nobody
    try {
        if (!session.Conn)
            session.Conn = std::make_unique<Connection>();
        OpenOfSession(*session.Conn);
        session.Conn->SetWaitObserver([](int seconds) { return CurrentView().KeepWaiting(seconds); });
        session.CompanyFieldList.clear();
        CompanyFields();
        show();
    } catch (...) {
        failure = std::current_exception();
    }
    CloseConnection();
    visiting = false;
    if (failure)
        Tell(failure);
}

} // namespace jxc
