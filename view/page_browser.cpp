#include "view/page_browser.h"

#include <cmath>

namespace jxc {

namespace {

constexpr double kSteps[] = {0.5, 0.75, 1, 1.25, 1.5, 2, 3};
constexpr int kAround = 12; // pixels of ground around the sheet
constexpr int kBeside = 50; // pixels of scroll bar and margins beside it
constexpr int kFiner = 2;   // drawn so and shown smaller: at the window's resolution letters stand unevenly

} // namespace

// The sheet with one page, as large as the zoom says.
class SheetView : public QWidget {
  public:
    SheetView() { setObjectName("sheet"); }

    void Show(const Paper& paper, int page, double zoom) {
        paper_ = &paper;
        page_ = page;
        zoom_ = zoom;
        const QSizeF points = paper_->LayoutOf(page_).fullRect(QPageLayout::Point).size();
        setFixedSize((points * PixelsPerPoint()).toSize() + QSize(2 * kAround, 2 * kAround));
        drawn_ = {};
        update();
    }

    int WidthAt(const Paper& paper, double zoom) const {
        const double points = paper.Layout().fullRect(QPageLayout::Point).width();
        return static_cast<int>(points * logicalDpiX() * zoom / 72) + 2 * kAround;
    }

    void paintEvent(QPaintEvent*) override {
        if (drawn_.isNull())
            Draw();
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(kAround, kAround, drawn_);
    }

  private:
    double PixelsPerPoint() const { return logicalDpiY() * zoom_ / 72; }

    void Draw() {
        const double ratio = devicePixelRatioF() * kFiner;
        const double pixels = PixelsPerPoint() * ratio;
        drawn_ = QImage(((size() - QSize(2 * kAround, 2 * kAround)) * ratio), QImage::Format_RGB32);
        drawn_.fill(Qt::white);
        const double perMeter = pixels * 72 / 0.0254;
        drawn_.setDotsPerMeterX(static_cast<int>(std::lround(perMeter)));
        drawn_.setDotsPerMeterY(static_cast<int>(std::lround(perMeter)));
        QPainter painter(&drawn_);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.translate(paper_->LayoutOf(page_).paintRect(QPageLayout::Point).topLeft() * pixels);
        paper_->DrawPage(painter, page_);
        painter.end();
        drawn_.setDevicePixelRatio(ratio);
    }

    const Paper* paper_ = nullptr;
    int page_ = 1;
    double zoom_ = 1;
    QImage drawn_;
};

PageBrowser::PageBrowser(const Paper& paper, QWidget* parent)
    : QWidget(parent), paper_(&paper), sheet_(new SheetView), area_(new QScrollArea), bar_(new QHBoxLayout),
      place_(new QLabel) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar_);
    AddButtons();
    area_->setWidget(sheet_);
    area_->setAlignment(Qt::AlignCenter);
    area_->setBackgroundRole(QPalette::Mid);
    area_->setObjectName("area");
    layout->addWidget(area_);
    setFocusProxy(area_);
}

void PageBrowser::AddButtons() {
    const auto add = [&](const char* name, const char* caption, auto action) {
        auto* button = new QPushButton(caption);
        button->setObjectName(name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action);
        bar_->addWidget(button);
        return button;
    };
    toFirst_ = add("first", "首页", [this] { Turn(1); });
    toPrevious_ = add("previous", "上一页", [this] { TurnBy(-1); });
    place_->setObjectName("place");
    place_->setMinimumWidth(fontMetrics().horizontalAdvance("第 00000 页，共 00000 页"));
    place_->setAlignment(Qt::AlignCenter);
    bar_->addWidget(place_);
    toNext_ = add("next", "下一页", [this] { TurnBy(1); });
    toLast_ = add("last", "末页", [this] { TurnToLast(); });
    bar_->addSpacing(16);
    add("larger", "放大(+)", [this] { Zoom(1); });
    add("smaller", "缩小(-)", [this] { Zoom(-1); });
    bar_->addStretch();
}

void PageBrowser::FitInto(int width) {
    while (zoom_ > 0 && sheet_->WidthAt(*paper_, kSteps[zoom_]) > width - kBeside)
        --zoom_;
    Turn(page_);
}

void PageBrowser::Take(const Paper& paper) {
    paper_ = &paper;
    const int place = area_->verticalScrollBar()->value();
    Turn(page_);
    area_->verticalScrollBar()->setValue(place);
}

void PageBrowser::Turn(int page) {
    const int pages = paper_->PageCount();
    page_ = std::clamp(page, 1, pages);
    place_->setText(PlaceText(page_, pages));
    for (QPushButton* back : {toFirst_, toPrevious_})
        back->setEnabled(page_ > 1);
    for (QPushButton* forth : {toNext_, toLast_})
        forth->setEnabled(page_ < pages);
    sheet_->Show(*paper_, page_, kSteps[zoom_]);
    area_->verticalScrollBar()->setValue(0);
}

void PageBrowser::Zoom(int steps) {
    zoom_ = std::clamp(zoom_ + steps, 0, static_cast<int>(std::size(kSteps)) - 1);
    Turn(page_);
}

} // namespace jxc
