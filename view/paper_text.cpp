#include "view/paper_text.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QTextOption>

namespace jxc {

namespace {

constexpr int kReference = 100; // pixels of the font that is measured
constexpr QChar kEllipsis(0x2026);

QFont ReferenceFont(bool bold) {
    QFont font = PaperFont(1, bold);
    font.setPixelSize(kReference);
    return font;
}

constexpr int kWrap = Qt::TextWrapAnywhere; // Chinese texts have no blanks; codes may be longer than a line

} // namespace

QFont PaperFont(double points, bool bold) {
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    font.setBold(bold);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

TextWidths::TextWidths(bool bold) : font_(ReferenceFont(bold)) {
    const QFontMetricsF metrics(font_);
    lineHeight_ = metrics.height() / kReference;
    ascent_ = metrics.ascent() / kReference;
}

double TextWidths::OfCharacter(char32_t character) const {
    const auto found = known_.constFind(character);
    if (found != known_.constEnd())
        return *found;
    const double width =
        QFontMetricsF(font_).horizontalAdvance(QString::fromUcs4(&character, 1)) / kReference;
    known_.insert(character, width);
    return width;
}

double TextWidths::Of(const QString& text) const {
    double width = 0;
    for (const uint character : text.toUcs4())
        width += OfCharacter(character);
    return width;
}

QString TextWidths::Elided(const QString& text, double width) const {
    if (Of(text) <= width)
        return text;
    double used = OfCharacter(kEllipsis.unicode());
    QString kept;
    for (const uint unit : text.toUcs4()) {
        const char32_t character = unit;
        used += OfCharacter(character);
        if (used > width)
            break;
        kept += QString::fromUcs4(&character, 1);
    }
    return kept + kEllipsis;
}

PointPainter::PointPainter(QPainter& painter)
    : painter_(painter), scale_(painter.device()->logicalDpiY() / 72.0) {
    painter_.setPen(Qt::black);
}

void PointPainter::SetFont(double points, bool bold) {
    if (font_ == std::pair(points, bold))
        return;
    font_ = {points, bold};
    painter_.setFont(PaperFont(points, bold));
}

void PointPainter::Text(double x, double baseline, const QString& text) {
    painter_.drawText(At(x, baseline), text);
}

void PointPainter::Paragraph(const QRectF& box, int flags, const QString& text) {
    painter_.drawText(QRectF(At(box.x(), box.y()), box.size() * scale_), flags | kWrap, text);
}

void PointPainter::Line(double x1, double y1, double x2, double y2, double width) {
    painter_.setPen(QPen(Qt::black, width * scale_));
    painter_.drawLine(At(x1, y1), At(x2, y2));
}

void PointPainter::Fill(const QRectF& box, const QColor& color) {
    painter_.fillRect(QRectF(At(box.x(), box.y()), box.size() * scale_), color);
}

double ParagraphHeight(const QString& text, double points, bool bold, double width) {
    const double scale = kReference / points;
    // A hair narrower than the box, so that rounding at the device adds no line.
    const QRectF room(0, 0, width * scale * 0.99, 1e7);
    return QFontMetricsF(ReferenceFont(bold)).boundingRect(room, kWrap, text).height() / scale;
}

} // namespace jxc
