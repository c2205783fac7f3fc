#include "host/window/window_program.h"

#include <cstdlib>

#include "host/company_address.h"
#include "host/window/main_window.h"
#include "host/window/sample_company_file.h"
#include "host/window/windows_in_use.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

std::string LastCompany() {
    return S(QSettings("lzJxc", "jxc").value("recent").toStringList().value(0));
}

bool IsGone(const std::string& company) {
    return DialectOf(company) == 0 && !QFileInfo::exists(Q(company));
}

// Without a display the toolkit would end the program without a word.
void RequireDisplay() {
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        if (const char* set = std::getenv(name); set && *set)
            return;
    throw std::runtime_error(
        "没有图形显示（DISPLAY 或 WAYLAND_DISPLAY），不能打开窗口；其他命令见 jxc --help。");
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

int RunWindows(const WindowStart& start) {
    lzJxc control;
    SetProperties(control, start.settings);
    RequireDisplay();
    const auto& [company, sample, user, settings] = start;
    if (!company.empty() && IsGone(company))
        throw std::runtime_error("帐套不存在：" + company);
    const WindowsInUse windows;
    MainWindow window;
    window.StandOver(settings);
    std::string wanted = company;
    if (wanted.empty() && !sample)
        wanted = LastCompany();
    window.show();
    if (!wanted.empty() && IsGone(wanted) && window.FindCompany(wanted))
        return QApplication::exec();
    if (wanted.empty() || IsGone(wanted))
        wanted = SampleCompany();
    if (!window.OpenCompanyOf(wanted, user.empty() ? control.UserName() : user) && company.empty() && !sample)
        window.OpenCompanyOf(SampleCompany(), "");
    return QApplication::exec();
}

} // namespace jxc
