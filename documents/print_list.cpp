// The document list on paper, headed by the dates and the warehouse it was asked with, whatever they read
// now. A filter that was not ticked limited nothing, and its value stays empty.

#include "documents/document_list.h"
#include "documents/list_columns.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/printing/print_grid.h"

namespace jxc {

namespace {

FieldList FilterSummary(const ListQuery& query) {
    const auto text = [](const std::optional<Date>& day) { return day ? IsoText(*day) : ""; };
    return {"查询内容", "查询",
            "起始日期", text(query.from),
            "截止日期", text(query.to),
            "仓库备注", DbScalar("Select fCkMemo from tJXC_Ck Where fCkName=" + InQuotes(query.warehouse))};
}

} // namespace

void PrintList(frmDj01& s) {
    const Grid* grid = FrontGrid(s);
    if (grid == &s.Grid1)
        PrintGrid(*grid, "单据查询", ListKey(false), "", FilterSummary(s.shown));
    else if (grid == &s.Grid2)
        PrintGrid(*grid, "单据明细查询", ListKey(true), "", FilterSummary(s.shown));
}

} // namespace jxc
