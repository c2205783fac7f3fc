#include "view/band_paper.h"

#include <QAbstractTextDocumentLayout>
#include <QDateTime>
#include <QImageReader>
#include <QPainter>

#include "view/bar_code.h"
#include "view/paper_text.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr double kFontSize = 9;
constexpr double kUnitsPerPoint = 1200 / 72.0; // so fine that texts are as wide on every device
constexpr int kUnitsPerInch = 1200;
constexpr double kPointsPerMillimetre = 72 / 25.4;
constexpr double kLongestRoll = 14000; // points: about five metres
const QString kLogo = "logo";

// What widths are measured for: no window's and no printer's.
class FineDevice : public QPaintDevice {
  public:
    QPaintEngine* paintEngine() const override { return nullptr; }

  protected:
    int metric(PaintDeviceMetric asked) const override {
        switch (asked) {
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return kUnitsPerInch;
        case PdmWidth:
        case PdmHeight:
            return 1 << 20;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
    }
};

FineDevice& TheFineDevice() {
    static FineDevice device;
    return device;
}

// Opens the company's picture and nothing else.
class BandDocument : public QTextDocument {
  public:
    explicit BandDocument(QString logo) : logo_(std::move(logo)) {}

  protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type == ImageResource && name.toString() == kLogo && !logo_.isEmpty())
            return QImageReader(logo_).read();
        return {};
    }

  private:
    const QString logo_;
};

QPageLayout PageLayoutOf(const PaperTemplate& paper) {
    const PaperSize& size = paper.size;
    const double height = size.height > 0 ? size.height : kLongestRoll / kPointsPerMillimetre;
    const QPageSize page(QSizeF(size.width, height), QPageSize::Millimeter, Q(size.name),
                         QPageSize::ExactMatch);
    const auto& [top, right, bottom, left] = paper.margins;
    return {page, paper.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF(left, top, right, bottom), QPageLayout::Millimeter};
}

QString Now() {
    return QDateTime::currentDateTime().toString("yyyy-MM-dd HH:mm");
}

bool IsBlank(const std::string& html) {
    return html.find_first_not_of(" \t\r\n") == std::string::npos;
}

// Without a picture of the company nothing stands in its place.
void RemoveMissingLogo(QTextDocument& document) {
    for (QTextCursor& image : ImagesOf(document))
        if (image.charFormat().toImageFormat().name() == kLogo)
            image.removeSelectedText();
}

} // namespace

BandPaper::BandPaper(const TemplatePrintJob& job, const QString& logo)
    : BandPaper(job, logo, Now(), nullptr) {}

BandPaper::BandPaper(const TemplatePrintJob& job, const QString& logo, const QString& printed,
                     const QPageLayout* layout)
    : Paper(layout ? *layout : QPageLayout()), job_(job), logo_(logo), printed_(printed),
      template_(ParseTemplate(job.layout)), data_(job_, S(printed)) {
    data_.RequireKnownKeys(template_);
    if (!layout)
        layout_ = PageLayoutOf(template_);
    if (template_.size.height > 0)
        Paginate();
    else
        PutOnRoll(layout != nullptr);
}

BandPaper::~BandPaper() = default;

std::unique_ptr<Paper> BandPaper::On(const QPageLayout& layout) const {
    return std::make_unique<BandPaper>(job_, logo_, printed_, &layout);
}

// Keys hold text of any language and length: what has no place to break breaks anywhere, so that columns stay under
// their headings.
std::unique_ptr<QTextDocument> BandPaper::LaidOut(Band band, const TemplateData::Page& page,
                                                  size_t line) const {
    auto document = std::make_unique<BandDocument>(logo_);
    document->setUndoRedoEnabled(false);
    document->documentLayout()->setPaintDevice(&TheFineDevice());
    document->setDocumentMargin(0);
    document->setDefaultFont(PaperFont(kFontSize));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document->setDefaultTextOption(option);
    document->setDefaultStyleSheet(Q(template_.style));
    document->setHtml(Q(data_.Filled(template_, band, page, line)));
    if (logo_.isEmpty())
        RemoveMissingLogo(*document);
    TurnImagesIntoCodes(*document, [this](const std::string& key) { return data_.Field(key).value_or(""); });
    document->setTextWidth(Area().width() * kUnitsPerPoint);
    return document;
}

double BandPaper::HeightOf(Band band, const TemplateData::Page& page, size_t line) const {
    if (IsBlank(template_.Of(band)))
        return 0;
    return LaidOut(band, page, line)->size().height() / kUnitsPerPoint;
}

double BandPaper::RoomForLines(bool first) const {
    const TemplateData::Page any{.page = 1, .pages = 1, .first = 0, .end = data_.LineCount()};
    return Area().height() - HeightOf(first ? Band::Header : Band::Continued, any) -
           HeightOf(Band::Headings, any) - HeightOf(Band::Subtotal, any) - HeightOf(Band::Footer, any);
}

// The last line stands with the sums: where these do not fit behind it, it goes with them to another page.
void BandPaper::Paginate() {
    const TemplateData::Page all{.page = 1, .pages = 1, .first = 0, .end = data_.LineCount()};
    const double total = HeightOf(Band::Total, all);
    const double further = RoomForLines(false);
    double room = RoomForLines(true);
    if (std::min(room, further) <= 0)
        throw TemplateError("打印模板的表头和表尾占满了纸张，没有产品行的位置。");
    pages_ = {{}};
    const auto turn = [&](size_t line) {
        pages_.back().end = line;
        pages_.push_back({.first = line, .end = line});
        room = further;
    };
    for (size_t line = 0; line < data_.LineCount(); ++line) {
        const double height = HeightOf(Band::Row, all, line);
        const double needed = height + (line + 1 == data_.LineCount() ? total : 0);
        if (needed > room && line > pages_.back().first)
            turn(line);
        room -= height;
    }
    pages_.back().end = data_.LineCount();
    for (size_t at = 0; at < pages_.size(); ++at) {
        pages_[at].page = static_cast<int>(at) + 1;
        pages_[at].pages = static_cast<int>(pages_.size());
    }
}

// A printer that keeps its own paper gets the roll's bands on pages of that; so does a roll longer than any.
void BandPaper::PutOnRoll(bool onPrintersPaper) {
    const TemplateData::Page all{.page = 1, .pages = 1, .first = 0, .end = data_.LineCount()};
    pages_ = {all};
    double height = 0;
    for (const Band band : {Band::Header, Band::Headings, Band::Subtotal, Band::Total, Band::Footer})
        height += HeightOf(band, all);
    for (size_t line = 0; line < data_.LineCount(); ++line)
        height += HeightOf(Band::Row, all, line);
    const QMarginsF margins = layout_.margins(QPageLayout::Point);
    const double length = height + margins.top() + margins.bottom() + 1;
    if (onPrintersPaper ? height > Area().height() : length > kLongestRoll)
        return Paginate();
    if (onPrintersPaper)
        return;
    const QSizeF size(template_.size.width * kPointsPerMillimetre, length);
    layout_ = QPageLayout(QPageSize(size, QPageSize::Point, Q(template_.size.name), QPageSize::ExactMatch),
                          QPageLayout::Portrait, margins, QPageLayout::Point);
}

// Gives where the next one begins.
double BandPaper::Draw(QPainter& painter, double top, Band band, const TemplateData::Page& page,
                       size_t line) const {
    if (IsBlank(template_.Of(band)))
        return top;
    const auto document = LaidOut(band, page, line);
    const double scale = painter.device()->logicalDpiY() / double{kUnitsPerInch};
    painter.save();
    painter.translate(0, top * painter.device()->logicalDpiY() / 72.0);
    painter.scale(scale, scale);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    document->documentLayout()->draw(&painter, context);
    painter.restore();
    return top + document->size().height() / kUnitsPerPoint;
}

void BandPaper::DrawPage(QPainter& painter, int number) const {
    const TemplateData::Page& page = pages_.at(static_cast<size_t>(number - 1));
    double top = Draw(painter, 0, number == 1 ? Band::Header : Band::Continued, page);
    top = Draw(painter, top, Band::Headings, page);
    for (size_t line = page.first; line < page.end; ++line)
        top = Draw(painter, top, Band::Row, page, line);
    top = Draw(painter, top, Band::Subtotal, page);
    if (number == PageCount())
        top = Draw(painter, top, Band::Total, page);
    Draw(painter, std::max(top, Area().height() - HeightOf(Band::Footer, page)), Band::Footer, page);
}

} // namespace jxc
