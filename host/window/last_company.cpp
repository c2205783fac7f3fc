// What the main window begins with when no company is named: the last one, else the sample or none at all. Nobody gets
// into the sample without having been told: real work entered there would be lost.

#include "controls/view.h"
#include "host/company_address.h"
#include "host/window/main_window.h"
#include "host/window/recent_companies.h"
#include "host/window/sample_company_file.h"
#include "view/qt_text.h"

namespace jxc {

bool IsGone(const std::string& company) {
    return DialectOf(company) == 0 && !QFileInfo::exists(Q(company));
}

void MainWindow::OpenLastCompany(const std::string& user) {
    const std::string last = RecentCompanies(memory_).Last();
    if (last.empty())
        return OpenSample(user); // the program is new here
    const bool opened = IsGone(last) ? FindCompany(last) : OpenCompanyOf(last, user);
    if (!opened && WantsSample())
        OpenSample("");
}

void MainWindow::OpenSample(const std::string& user) {
    Guard([&] { OpenCompanyOf(OwnSampleCompany(), user); });
}

// The company that was worked on last is not where it was: the person says where it is now.
bool MainWindow::FindCompany(const std::string& company) {
    if (AskYesNo(S(windowTitle()),
                 "找不到上次的帐套：\n" + company +
                     "\n\n它可能已经移动、改名，或者所在的磁盘没有接上。\n\n要查找该帐套吗？"))
        Guard([this] { ChooseCompany(); });
    return HasCompany();
}

bool MainWindow::WantsSample() {
    MessageBox box{S(windowTitle()),
                   "没有打开帐套。\n\n要打开样例公司吗？它只供试用，请不要在其中录入真实业务。",
                   BoxIcon::Question,
                   {BoxButton::Yes, BoxButton::No}};
    box.preset = 1;
    return CurrentView().ShowBox(box) == BoxButton::Yes;
}

} // namespace jxc
