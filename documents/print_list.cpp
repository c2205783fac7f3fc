// The document list on paper, headed by the filters it was asked with, whatever they read now.

#include "documents/document_list.h"
#include "documents/list_columns.h"
#include "session/database/routines.h"
#include "session/print_grid.h"

namespace jxc {

// Nothing for a filter that is off: the list is not limited by it.
FieldList FilterSummary(const frmDj01& s) {
    const auto days = FilteredDays(s);
    const std::string warehouse = s.chkCk[0].value ? s.cboCk[0].text : "";
    return {"查询内容", "查询",
            "起始日期", days ? IsoText(days->first) : "",
            "截止日期", days ? IsoText(days->last.value_or(days->first)) : "",
            "仓库备注", DbScalar("Select fCkMemo from tJXC_Ck Where fCkName=" + InQuotes(warehouse))};
}

void PrintList(frmDj01& s) {
    const Grid* grid = FrontGrid(s);
    if (grid == &s.Grid1)
        PrintGrid(*grid, "单据查询", ListKey(false), "", s.shown.summary);
    else if (grid == &s.Grid2)
        PrintGrid(*grid, "单据明细查询", ListKey(true), "", s.shown.summary);
}

} // namespace jxc
