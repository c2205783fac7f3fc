// Something to print, page by page: each page can be drawn alone, so that a preview draws the one that is
// shown and no other. Lengths are points, whatever the device: the same pages come out on the window, in a
// PDF and on a printer.
#pragma once

#include <memory>

#include <QPageLayout>
#include <QString>

class QPainter;

namespace jxc {

class Paper {
  public:
    explicit Paper(const QPageLayout& layout) : layout_(layout) {}
    virtual ~Paper() = default;

    // The size, direction and margins of every page; of several papers together those of the first one's pages.
    const QPageLayout& Layout() const { return layout_; }
    virtual const QPageLayout& LayoutOf(int /*page*/) const { return layout_; }
    virtual int PageCount() const = 0; // at least 1
    // Draws a page, counted from 1. The painter stands at the corner of the printable area and is not scaled:
    // the device's resolution tells how large a point is.
    virtual void DrawPage(QPainter& painter, int page) const = 0;
    // The same on another layout, such as the person chose in the printer's window.
    virtual std::unique_ptr<Paper> On(const QPageLayout& layout) const = 0;

  protected:
    QSizeF Area() const { return layout_.paintRect(QPageLayout::Point).size(); }

    QPageLayout layout_;
};

// "第 2 页，共 5 页": where in the whole a page stands.
QString PlaceText(int page, int pages);

// A4 with the margins that every printer can keep.
QPageLayout StandardPage(QPageLayout::Orientation orientation);

} // namespace jxc
