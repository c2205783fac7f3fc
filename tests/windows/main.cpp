// The tests of the windows run without a display, and leave the user's own settings and sample alone.
#include <cstdlib>
#include <iostream>

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "host/window/windows_in_use.h"

namespace {

// What a display in memory cannot do is no news.
void Tell(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith("This plugin does not support"))
        std::cerr << message.toStdString() << std::endl;
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const QTemporaryDir settings;
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        setenv(folder, settings.path().toUtf8().constData(), 1);
    qInstallMessageHandler(Tell);
    const jxc::WindowsInUse windows;
    return RUN_ALL_TESTS();
}
