// Where the keyboard is, for all windows of the program: a frame around the widget that has the focus, and a
// style that shows the selection of grids, trees and lists faintly while the focus is elsewhere. The toolkit
// itself marks check boxes, options and buttons only after its own Tab key, which the screens do not use.
#pragma once

#include <QPointer>
#include <QProxyStyle>
#include <QWidget>

namespace jxc {

class FocusStyle : public QProxyStyle {
  public:
    FocusStyle() : QProxyStyle("Fusion") {}
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

// Follows the focus as long as it lives. Needs a QApplication.
class FocusMark : public QObject {
  public:
    FocusMark();
    ~FocusMark() override;

    bool eventFilter(QObject* object, QEvent* event) override; // the framed widget moves with its holders

  private:
    void Follow(QWidget* focused);
    void Place();
    QPointer<QWidget> framed_;
    QPointer<QWidget> frame_; // stands in the window, so that no holder cuts it off
};

} // namespace jxc
