#include "host/window/window_program.h"

#include "host/window/main_window.h"
#include "host/window/sample_company_file.h"
#include "host/window/windows_in_use.h"
#include "view/text.h"

namespace jxc {

namespace {

std::string LastCompany() {
    const QStringList recent = QSettings("lzJxc", "jxc").value("recent").toStringList();
    const QString last = recent.value(0);
    return last.startsWith("postgres") || QFileInfo::exists(last) ? S(last) : "";
}

std::string SampleCompany() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/lzJxc";
    QDir().mkpath(folder);
    const QString file = folder + "/样例公司.db";
    if (!QFileInfo::exists(file))
        MakeSampleCompany(S(file));
    return S(file);
}

} // namespace

int RunWindows(const std::string& company, const std::string& user, bool sample) {
    const WindowsInUse windows;
    MainWindow window;
    std::string wanted = company;
    if (wanted.empty() && !sample)
        wanted = LastCompany();
    if (wanted.empty())
        wanted = SampleCompany();
    window.show();
    if (!window.OpenCompanyOf(wanted, user) && company.empty() && !sample)
        window.OpenCompanyOf(SampleCompany(), "");
    return QApplication::exec();
}

} // namespace jxc
