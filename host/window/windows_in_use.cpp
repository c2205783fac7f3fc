#include "host/window/windows_in_use.h"

#include <clocale>
#include <cstdlib>
#include <iostream>

#include <QLibraryInfo>
#include <QTranslator>

#include "host/embedding.h"
#include "host/exit_status.h"
#include "session/components.h"
#include "view/page_printer.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

bool isStarting = true; // until the application object stands

// Windows in memory know no size hints, and say so at each one. A display that cannot be reached is a message
// and a status; the toolkit would break off the program.
void TellMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (isStarting && type == QtFatalMsg) {
        std::cerr << "不能打开窗口：连接不上图形显示（DISPLAY 或 WAYLAND_DISPLAY）；其他命令见 jxc --help。"
                  << std::endl;
        std::_Exit(kFailure);
    }
    if (!text.startsWith("This plugin does not support propagateSizeHints"))
        std::cerr << S(qFormatLogMessage(type, context, text)) << std::endl;
}

// Without a display the windows are painted into memory.
void ChoosePlatform() {
    if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY"))
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    qInstallMessageHandler(TellMessage);
}

int& Prepared(int& argc) {
    ChoosePlatform();
    return argc;
}

// The toolkit's own windows, such as the file dialog, speak the user's language too.
void SpeakChinese(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    auto* texts = new QTranslator(&application);
    if (texts->load("qtbase_zh_CN", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(texts);
}

// Rows are coloured for dark texts on a light ground, whatever the desktop prefers. What is only shown must
// be as easy to read as what can be changed.
void SetColors() {
    QPalette palette(QColor(0xef, 0xef, 0xef));
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0x70, 0x70, 0x70));
    for (const auto role : {QPalette::Text, QPalette::WindowText})
        palette.setColor(QPalette::Disabled, role, QColor(0x48, 0x48, 0x48));
    QApplication::setPalette(palette);
}

} // namespace

WindowsInUse::WindowsInUse() : application_(Prepared(argc_), argv_) {
    isStarting = false;
    std::setlocale(LC_NUMERIC, "C"); // the application object sets the user's: numbers would take his comma
    QApplication::setApplicationName("jxc");
    QApplication::setOrganizationName("lzJxc");
    QApplication::setStyle(new FocusStyle); // the application takes it over
    SpeakChinese(application_);
    SetColors();
    RegisterAllScreens();
    ComponentsInUse().printer = std::make_unique<PreviewPrinter>();
}

} // namespace jxc
