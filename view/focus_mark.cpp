#include "view/focus_mark.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStyleOptionViewItem>

namespace jxc {

namespace {

constexpr int kThick = 2;

// A list that drops down has the keyboard although the box beneath keeps the focus.
bool HasKeyboard(const QWidget* view) {
    const QWidget* focused = QApplication::focusWidget();
    return view->window()->windowType() == Qt::Popup || view == focused ||
           (focused && view->isAncestorOf(focused));
}

bool IsFaint(const QStyleOption& option, const QWidget* widget) {
    return option.state & QStyle::State_Selected && qobject_cast<const QAbstractItemView*>(widget) &&
           !HasKeyboard(widget);
}

QStyleOptionViewItem Faint(const QStyleOptionViewItem& option) {
    QStyleOptionViewItem faint = option;
    const QColor strong = option.palette.color(QPalette::Active, QPalette::Highlight);
    const QColor ground = option.palette.color(QPalette::Active, QPalette::Base);
    const auto mixed = [](int a, int b) { return (a + 5 * b) / 6; };
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        faint.palette.setColor(group, QPalette::Highlight,
                               QColor(mixed(strong.red(), ground.red()),
                                      mixed(strong.green(), ground.green()),
                                      mixed(strong.blue(), ground.blue())));
        faint.palette.setColor(group, QPalette::HighlightedText, option.palette.color(group, QPalette::Text));
    }
    return faint;
}

// Draws with the option as it is, or with a faint one where the selection does not have the keyboard.
template <typename Draw>
void DrawFaintly(const QStyleOption* option, const QWidget* widget, const Draw& draw) {
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (!item || !IsFaint(*item, widget))
        return draw(option);
    const QStyleOptionViewItem faint = Faint(*item);
    draw(&faint);
}

// The widget to be framed: inner lines of lists and dates stand for the whole.
QWidget* FramedBy(QWidget* focused) {
    if (!focused || focused->isWindow() || focused->window()->windowType() == Qt::Popup)
        return nullptr;
    QWidget* holder = focused->parentWidget();
    const bool inner = qobject_cast<QComboBox*>(holder) || qobject_cast<QAbstractSpinBox*>(holder);
    return inner ? holder : focused;
}

class Frame : public QWidget {
  public:
    explicit Frame(QWidget* window) : QWidget(window) {
        setObjectName("focusFrame");
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(rect(), palette().color(QPalette::Active, QPalette::Highlight));
    }
    void resizeEvent(QResizeEvent*) override {
        setMask(QRegion(rect()) - rect().adjusted(kThick, kThick, -kThick, -kThick));
    }
};

} // namespace

void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    DrawFaintly(option, widget, [&](const QStyleOption* shown) {
        QProxyStyle::drawPrimitive(element, shown, painter, widget);
    });
}

void FocusStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    DrawFaintly(option, widget, [&](const QStyleOption* shown) {
        QProxyStyle::drawControl(element, shown, painter, widget);
    });
}

FocusMark::FocusMark() {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Follow(now); });
}

FocusMark::~FocusMark() {
    delete frame_;
}

// A window that is left for another program keeps its mark.
void FocusMark::Follow(QWidget* focused) {
    QWidget* framed = FramedBy(focused);
    if (!framed || framed == framed_)
        return;
    for (QWidget* holder = framed_; holder; holder = holder->isWindow() ? nullptr : holder->parentWidget())
        holder->removeEventFilter(this);
    framed_ = framed;
    if (!frame_ || frame_->window() != framed->window()) {
        delete frame_;
        frame_ = new Frame(framed->window());
    }
    for (QWidget* holder = framed; holder; holder = holder->isWindow() ? nullptr : holder->parentWidget())
        holder->installEventFilter(this);
    Place();
}

void FocusMark::Place() {
    if (!framed_ || !frame_)
        return;
    const QRect place(framed_->mapTo(framed_->window(), QPoint(0, 0)), framed_->size());
    frame_->setGeometry(place.adjusted(-kThick, -kThick, kThick, kThick));
    frame_->setVisible(framed_->isVisible());
    frame_->raise();
}

bool FocusMark::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        Place();
        break;
    default:
        break;
    }
    return false;
}

} // namespace jxc
