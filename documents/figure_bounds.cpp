#include "documents/figure_bounds.h"

#include "base/text.h"
#include "documents/document_entry.h"

namespace jxc {

namespace {

std::optional<FigureRefusal> LineOutOfBounds(frmDj02& s, double rate) {
    Grid& grid = s.Grid2;
    for (int row = 1; row <= grid.RowCount(); ++row) {
        int column = grid.ColumnOutOfBounds(row);
        if (column == 0 && Reaches(grid.Number(row, line::kAmount) * rate, below::kAmount))
            column = line::kAmount;
        if (column > 0)
            return FigureRefusal{"第 " + std::to_string(row) + " 行" +
                                     BoundText(grid.Column(column).caption, grid.Column(column).below),
                                 &grid, row, column};
    }
    return std::nullopt;
}

} // namespace

std::optional<FigureRefusal> FigureOutOfBounds(frmDj02& s) {
    const double rate = Val(s.txtInvHbDl.text);
    if (s.type.fSetHb_ && s.cboInvHb.Chosen().empty() && !s.cboInvHb.items.empty())
        return FigureRefusal{"请选择货币！", &s.cboInvHb};
    if (!(rate > 0))
        return FigureRefusal{"货币[" + s.cboInvHb.Chosen() + "]的汇率必须大于 0，请输入汇率！",
                             &s.txtInvHbDl};
    if (Reaches(rate, below::kRate))
        return FigureRefusal{BoundText("汇率", below::kRate), &s.txtInvHbDl};
    if (s.type.IsKit() && Reaches(KitQuantity(s), below::kQuantity))
        return FigureRefusal{BoundText("套数", below::kQuantity), &s.txtInvSL};
    if (auto refusal = LineOutOfBounds(s, rate))
        return refusal;
    if (Reaches(DocumentTotal(s.Grid2) * std::max(rate, 1.0), below::kAmount))
        return FigureRefusal{BoundText(s.lblSum.caption, below::kAmount), &s.Grid2};
    return std::nullopt;
}

} // namespace jxc
