// Texts on paper: how wide they are, and drawing them at sizes in points on a device of any resolution.
#pragma once

#include <utility>

#include <QFont>
#include <QHash>
#include <QPainter>
#include <QString>

namespace jxc {

// The application's font without hinting and kerning: a text is as wide as its characters together, in
// proportion to its size.
QFont PaperFont(double points, bool bold = false);

class TextWidths {
  public:
    explicit TextWidths(bool bold = false);
    // The width in points at a size of 1 point.
    double Of(const QString& text) const;
    // The text, cut with an ellipsis if it is wider.
    QString Elided(const QString& text, double width) const;
    double LineHeight() const { return lineHeight_; }
    double Ascent() const { return ascent_; }

  private:
    double OfCharacter(char32_t character) const;

    QFont font_;
    double lineHeight_ = 0;
    double ascent_ = 0;
    mutable QHash<char32_t, double> known_;
};

// Draws in points with a painter that is not scaled.
class PointPainter {
  public:
    explicit PointPainter(QPainter& painter);
    void SetFont(double points, bool bold = false);
    void Text(double x, double baseline, const QString& text);
    // Wrapped inside the box.
    void Paragraph(const QRectF& box, int flags, const QString& text);
    void Line(double x1, double y1, double x2, double y2, double width = 0.5);
    void Fill(const QRectF& box, const QColor& color);

  private:
    QPointF At(double x, double y) const { return {x * scale_, y * scale_}; }
    QPainter& painter_;
    double scale_;                   // pixels a point
    std::pair<double, bool> font_{}; // in use
};

// The height of a text wrapped to a width.
double ParagraphHeight(const QString& text, double points, bool bold, double width);

} // namespace jxc
