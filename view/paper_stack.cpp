#include "view/paper_stack.h"

#include <algorithm>

namespace jxc {

PaperStack::PaperStack(std::vector<std::unique_ptr<Paper>> papers)
    : Paper(papers.front()->Layout()), papers_(std::move(papers)) {
    int pages = 0;
    for (const auto& paper : papers_)
        ends_.push_back(pages += paper->PageCount());
}

int PaperStack::PageCount() const {
    return ends_.back();
}

std::pair<const Paper*, int> PaperStack::PlaceOf(int page) const {
    const auto end = std::ranges::lower_bound(ends_, page);
    const auto at = static_cast<size_t>(end - ends_.begin());
    return {papers_.at(at).get(), page - (at == 0 ? 0 : ends_[at - 1])};
}

const QPageLayout& PaperStack::LayoutOf(int page) const {
    const auto [paper, own] = PlaceOf(page);
    return paper->LayoutOf(own);
}

void PaperStack::DrawPage(QPainter& painter, int page) const {
    const auto [paper, own] = PlaceOf(page);
    paper->DrawPage(painter, own);
}

std::unique_ptr<Paper> PaperStack::On(const QPageLayout& layout) const {
    std::vector<std::unique_ptr<Paper>> changed;
    changed.reserve(papers_.size());
    for (const auto& paper : papers_)
        changed.push_back(paper->On(layout));
    return std::make_unique<PaperStack>(std::move(changed));
}

} // namespace jxc
