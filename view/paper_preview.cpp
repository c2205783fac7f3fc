#include "view/paper_preview.h"

#include <cmath>

#include <QPrintDialog>
#include <QPrinter>

#include "view/page_printer.h"
#include "view/qt_text.h"
#include "view/save_dialog.h"

namespace jxc {

namespace {

constexpr double kSteps[] = {0.5, 0.75, 1, 1.25, 1.5, 2, 3};
constexpr int kAround = 12; // pixels of ground around the sheet
constexpr int kBeside = 50; // pixels of scroll bar and margins beside it
constexpr int kFiner = 2;   // drawn so and shown smaller: at the window's resolution letters stand unevenly

// The sheet with one page, as large as the zoom says.
class SheetView : public QWidget {
  public:
    explicit SheetView(const Paper& paper) : paper_(paper) { setObjectName("sheet"); }

    void Show(int page, double zoom) {
        page_ = page;
        zoom_ = zoom;
        const QSizeF points = paper_.Layout().fullRect(QPageLayout::Point).size();
        setFixedSize((points * PixelsPerPoint()).toSize() + QSize(2 * kAround, 2 * kAround));
        drawn_ = {};
        update();
    }

    int WidthAt(double zoom) const {
        const double points = paper_.Layout().fullRect(QPageLayout::Point).width();
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
        painter.translate(paper_.Layout().paintRect(QPageLayout::Point).topLeft() * pixels);
        paper_.DrawPage(painter, page_);
        painter.end();
        drawn_.setDevicePixelRatio(ratio);
    }

    const Paper& paper_;
    int page_ = 1;
    double zoom_ = 1;
    QImage drawn_;
};

class PreviewWindow : public QDialog {
  public:
    PreviewWindow(const Paper& paper, const std::string& title, QWidget* parent)
        : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
          paper_(paper), title_(title), sheet_(new SheetView(paper)) {
        setObjectName("preview");
        setWindowTitle(Q(title));
        resize(900, 680);
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(Bar());
        area_->setWidget(sheet_);
        area_->setAlignment(Qt::AlignCenter);
        area_->setBackgroundRole(QPalette::Mid);
        area_->setObjectName("area");
        layout->addWidget(area_);
        AddKeys();
        while (zoom_ > 0 && sheet_->WidthAt(kSteps[zoom_]) > width() - kBeside)
            --zoom_;
        Turn(1);
        area_->setFocus();
    }

  private:
    QLayout* Bar() {
        auto* bar = new QHBoxLayout;
        const auto add = [&](const char* name, const char* caption, auto action) {
            auto* button = new QPushButton(caption);
            button->setObjectName(name);
            button->setAutoDefault(false);
            connect(button, &QPushButton::clicked, this, action);
            bar->addWidget(button);
            return button;
        };
        toFirst_ = add("first", "首页", [this] { Turn(1); });
        toPrevious_ = add("previous", "上一页", [this] { Turn(page_ - 1); });
        place_->setObjectName("place");
        place_->setMinimumWidth(fontMetrics().horizontalAdvance("第 00000 页，共 00000 页"));
        place_->setAlignment(Qt::AlignCenter);
        bar->addWidget(place_);
        toNext_ = add("next", "下一页", [this] { Turn(page_ + 1); });
        toLast_ = add("last", "末页", [this] { Turn(paper_.PageCount()); });
        bar->addSpacing(16);
        add("larger", "放大(+)", [this] { Zoom(1); });
        add("smaller", "缩小(-)", [this] { Zoom(-1); });
        bar->addStretch();
        add("print", "打印(&P)...", [this] { Print(); });
        add("pdf", "存为 PDF(&F)...", [this] { SavePdf(); });
        add("close", "关闭(&C)", [this] { accept(); });
        return bar;
    }

    void AddKeys() {
        const auto on = [this](const QKeySequence& keys, auto action) {
            connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
        };
        on(Qt::Key_PageDown, [this] { Turn(page_ + 1); });
        on(Qt::Key_PageUp, [this] { Turn(page_ - 1); });
        on(Qt::CTRL | Qt::Key_Home, [this] { Turn(1); });
        on(Qt::CTRL | Qt::Key_End, [this] { Turn(paper_.PageCount()); });
        on(Qt::Key_Plus, [this] { Zoom(1); });
        on(Qt::Key_Minus, [this] { Zoom(-1); });
        on(QKeySequence::Print, [this] { Print(); });
        on(QKeySequence::Save, [this] { SavePdf(); });
    }

    void Turn(int page) {
        const int pages = paper_.PageCount();
        page_ = std::clamp(page, 1, pages);
        place_->setText(PlaceText(page_, pages));
        for (QPushButton* back : {toFirst_, toPrevious_})
            back->setEnabled(page_ > 1);
        for (QPushButton* forth : {toNext_, toLast_})
            forth->setEnabled(page_ < pages);
        sheet_->Show(page_, kSteps[zoom_]);
        area_->verticalScrollBar()->setValue(0);
    }

    void Zoom(int step) {
        zoom_ = std::clamp(zoom_ + step, 0, static_cast<int>(std::size(kSteps)) - 1);
        Turn(page_);
    }

    void Print() {
        QPrinter printer(QPrinter::HighResolution);
        printer.setPageLayout(paper_.Layout());
        QPrintDialog dialog(&printer, this);
        dialog.setMinMax(1, paper_.PageCount());
        if (dialog.exec() == QDialog::Accepted)
            PrintOn(printer, paper_);
    }

    void SavePdf() {
        SaveTo(*this, title_, "存为 PDF", ".pdf", [this](const QString& file) { WritePdf(paper_, file); });
    }

    const Paper& paper_;
    const std::string title_;
    SheetView* sheet_;
    QScrollArea* area_ = new QScrollArea;
    QLabel* place_ = new QLabel;
    QPushButton* toFirst_ = nullptr;
    QPushButton* toPrevious_ = nullptr;
    QPushButton* toNext_ = nullptr;
    QPushButton* toLast_ = nullptr;
    int page_ = 1;
    int zoom_ = 2; // the whole width is seen at first
};

} // namespace

void PreviewPaper(const Paper& paper, const std::string& title, QWidget* parent) {
    PreviewWindow(paper, title, parent).exec();
}

} // namespace jxc
