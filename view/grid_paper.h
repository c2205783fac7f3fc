// A grid on paper, painted directly: title and header above, a heading row on every page, the amount below,
// page n of m and the time of print at the foot. It takes the time of the rows shown, whatever the grid
// holds.
//
// Columns keep their widths in proportion and fill the page: upright where the texts stay large enough, else
// lying. Numbers, codes and dates are never cut: their column's font shrinks, and where that is not enough
// the column gets wider. Other texts are cut with an ellipsis.
#pragma once

#include <vector>

#include <QDateTime>

#include "session/components.h"
#include "view/paper.h"
#include "view/paper_text.h"

namespace jxc {

class GridPaper : public Paper {
  public:
    // The grid of the job must outlive this and stay as it is. `printed` is the time told at the foot.
    explicit GridPaper(const GridPrintJob& job, const QDateTime& printed = QDateTime::currentDateTime());
    GridPaper(const GridPrintJob& job, const QDateTime& printed, const QPageLayout& layout);

    int PageCount() const override;
    void DrawPage(QPainter& painter, int page) const override;
    std::unique_ptr<Paper> On(const QPageLayout& layout) const override;

  private:
    struct PrintedColumn {
        int column = 0;    // of the grid
        double wanted = 0; // its width where the page has room for all
        double figure = 0; // its widest figure at 1 point
        double left = 0;
        double width = 0;
        double size = 0; // of the font, in points
    };

    struct HeaderPair {
        QString text;
        QRectF place;
    };

    void MeasureColumns();
    void LayOut();
    void LayOutHeader();
    double WantedWidth() const;
    double WidestFigure(int column) const;
    QString CellText(int row, int column) const;
    QString Caption(int column) const;
    int RowsOn(int page) const; // that have room there
    int RowsBefore(int page) const;
    double DrawHeader(PointPainter& on) const;
    double DrawHeadings(PointPainter& on, double top) const;
    void DrawRow(PointPainter& on, int row, double top) const;
    void DrawFoot(PointPainter& on, int page) const;

    const GridPrintJob job_;
    const QDateTime printed_;
    const TextWidths plain_;
    const TextWidths bold_{true};
    std::vector<PrintedColumn> columns_;
    std::vector<HeaderPair> pairs_;
    double size_ = 0;
    double rowHeight_ = 0;
    double headingHeight_ = 0;
    double headerHeight_ = 0;
};

} // namespace jxc
