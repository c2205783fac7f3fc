// Trades with nobody at the desk: the window is painted into memory, looked at and closed.
#include <cstdlib>
#include <iostream>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include "trade.h"
#include "view/qt_view.h"

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication application(argc, argv);
    jxc::QtView view;
    const jxc::ViewInUse inUse(view);
    QStringList shown;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&shown] {
        if (QWidget* window = QApplication::activeModalWidget()) {
            shown.append(window->windowTitle());
            window->close();
        }
    });
    look.start(50);
    Trade(argc > 1 ? argv[1] : "shop.db");
    std::cout << shown.join(", ").toStdString() << std::endl;
    return shown == QStringList{"入库单：新增"} ? EXIT_SUCCESS : EXIT_FAILURE;
}
