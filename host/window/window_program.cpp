#include "host/window/window_program.h"

#include <cstdlib>
#include <stdexcept>

#include "host/window/main_window.h"
#include "host/window/windows_in_use.h"

namespace jxc {

namespace {

// Without a display the toolkit would end the program without a word.
void RequireDisplay() {
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        if (const char* set = std::getenv(name); set && *set)
            return;
    throw std::runtime_error(
        "没有图形显示（DISPLAY 或 WAYLAND_DISPLAY），不能打开窗口；其他命令见 jxc --help。");
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
    window.show();
    const std::string signsIn = user.empty() ? control.UserName() : user;
    if (sample)
        window.OpenSample(signsIn);
    else if (company.empty())
        window.OpenLastCompany(signsIn);
    else
        window.OpenCompanyOf(company, signsIn);
    return QApplication::exec();
}

} // namespace jxc
