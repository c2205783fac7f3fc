#include <QApplication>

#include "trade.h"
#include "view/qt_view.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    jxc::QtView view;
    const jxc::ViewInUse inUse(view); // windows for people
    Trade(argc > 1 ? argv[1] : "shop.db");
}
