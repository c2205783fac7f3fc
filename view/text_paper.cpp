#include "view/text_paper.h"

#include <QAbstractTextDocumentLayout>

#include "view/paper_text.h"

namespace jxc {

namespace {

constexpr double kFootHeight = 16;
constexpr double kFootSize = 8;
constexpr double kUnitsPerPoint = 96 / 72.0; // the engine's own

} // namespace

TextPaper::TextPaper(QString html, const QPageLayout& layout) : Paper(layout), html_(std::move(html)) {
    document_.setDocumentMargin(0);
    document_.setDefaultFont(PaperFont(9));
    document_.setHtml(html_);
    const QSizeF room = Area() - QSizeF(0, kFootHeight);
    unit_ = 1 / kUnitsPerPoint;
    document_.setTextWidth(room.width() / unit_);
    if (const double width = document_.documentLayout()->documentSize().width(); width * unit_ > room.width())
        unit_ = room.width() / width;
    document_.setPageSize(room / unit_);
}

void TextPaper::DrawPage(QPainter& painter, int page) const {
    const QSizeF size = document_.pageSize();
    const double scale = painter.device()->logicalDpiY() / 72.0 * unit_;
    painter.save();
    painter.scale(scale, scale);
    painter.translate(0, -(page - 1) * size.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(0, (page - 1) * size.height(), size.width(), size.height());
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.setClipRect(context.clip);
    document_.documentLayout()->draw(&painter, context);
    painter.restore();
    PointPainter on(painter);
    const QString pages = PlaceText(page, PageCount());
    on.SetFont(kFootSize);
    on.Text((Area().width() - TextWidths().Of(pages) * kFootSize) / 2, Area().height() - 4, pages);
}

std::unique_ptr<Paper> TextPaper::On(const QPageLayout& layout) const {
    return std::make_unique<TextPaper>(html_, layout);
}

} // namespace jxc
