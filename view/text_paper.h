// An HTML page on paper, laid out by the toolkit's text engine: for designed documents of some pages, not for
// grids of thousands of rows. A page wider than the paper is made smaller until it fits.
#pragma once

#include <QTextDocument>

#include "view/paper.h"

namespace jxc {

class TextPaper : public Paper {
  public:
    explicit TextPaper(QString html, const QPageLayout& layout = StandardPage(QPageLayout::Portrait));

    int PageCount() const override { return document_.pageCount(); }
    void DrawPage(QPainter& painter, int page) const override;
    std::unique_ptr<Paper> On(const QPageLayout& layout) const override;

  private:
    QString html_;
    QTextDocument document_;
    double unit_ = 1; // points of paper that one of the document's units takes
};

} // namespace jxc
