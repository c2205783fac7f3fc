#include "documents/figure_bounds.h"

#include <algorithm>

#include "documents/document_model.h"

namespace jxc {

namespace {

struct LineBound {
    int column;
    double DocumentLine::*figure;
    double below;
};
constexpr LineBound kLineBounds[] = {
    {line::kCounted, &DocumentLine::counted, below::kQuantity},
    {line::kQuantity, &DocumentLine::quantity, below::kQuantity},
    {line::kPrice, &DocumentLine::price, below::kPrice},
    {line::kAmount, &DocumentLine::amount, below::kAmount},
    {line::kTaxRate, &DocumentLine::taxRate, below::kTaxRate},
    {line::kTax, &DocumentLine::tax, below::kAmount},
};

const LineBound* BoundReached(const DocumentLine& figures, double rate) {
    for (const LineBound& bound : kLineBounds)
        if (Reaches(figures.*bound.figure, bound.below))
            return &bound;
    const auto amount = std::find_if(std::begin(kLineBounds), std::end(kLineBounds),
                                     [](const LineBound& bound) { return bound.column == line::kAmount; });
    return Reaches(figures.amount * rate, below::kAmount) ? amount : nullptr;
}

std::optional<FigureRefusal> LineOutOfBounds(const DocumentData& document) {
    int at = 0;
    for (const DocumentLine& figures : document.lines) {
        ++at;
        if (const LineBound* bound = BoundReached(figures, document.rate))
            return FigureRefusal{"第 " + std::to_string(at) + " 行" +
                                     BoundText(FigureCaption(document.type, bound->column), bound->below),
                                 FigureRefusal::Figure::OfLine, at, bound->column};
    }
    return std::nullopt;
}

} // namespace

std::optional<FigureRefusal> FigureOutOfBounds(const DocumentData& document) {
    using Figure = FigureRefusal::Figure;
    if (!(document.rate > 0))
        return FigureRefusal{"货币[" + document.currency + "]的汇率必须大于 0，请输入汇率！", Figure::Rate};
    if (Reaches(document.rate, below::kRate))
        return FigureRefusal{BoundText("汇率", below::kRate), Figure::Rate};
    if (document.type.IsKit() && Reaches(document.kitQuantity, below::kQuantity))
        return FigureRefusal{BoundText("套数", below::kQuantity), Figure::KitQuantity};
    if (auto refusal = LineOutOfBounds(document))
        return refusal;
    if (Reaches(TotalOf(document.lines) * std::max(document.rate, 1.0), below::kAmount))
        return FigureRefusal{BoundText("金额合计", below::kAmount), Figure::Total};
    return std::nullopt;
}

} // namespace jxc
