// Several papers, one behind the other: each keeps its size and counts its own pages.
#pragma once

#include <vector>

#include "view/paper.h"

namespace jxc {

class PaperStack : public Paper {
  public:
    // At least one.
    explicit PaperStack(std::vector<std::unique_ptr<Paper>> papers);

    int PageCount() const override;
    const QPageLayout& LayoutOf(int page) const override;
    void DrawPage(QPainter& painter, int page) const override;
    std::unique_ptr<Paper> On(const QPageLayout& layout) const override;

  private:
    // The paper on which a page of the whole is, and which of its pages.
    std::pair<const Paper*, int> PlaceOf(int page) const;

    std::vector<std::unique_ptr<Paper>> papers_;
    std::vector<int> ends_; // the last page of each, in the whole
};

} // namespace jxc
