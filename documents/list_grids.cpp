// Documents and lines into the two grids of the list.

#include "controls/grid_routines.h"
#include "documents/document_list.h"
#include "documents/list_columns.h"
#include "session/session.h"

namespace jxc {

size_t FillGrids(frmDj01& s, const ListQuery& query, bool empties) {
    Recordset rows(Conn(), query.sql);
    if (rows.RecordCount() == 0 && !empties)
        return 0;
    Grid& other = s.ListOf(!query.lines).InGrid();
    other.Clear();
    ClearSortMark(other);
    s.sums = SumsOfList(query.lines);
    const int filled = s.ListOf(query.lines).Fill(rows);
    s.lblSums[query.lines ? 1 : 0].caption = s.sums.Text(filled);
    s.lblSums[query.lines ? 0 : 1].caption.clear();
    ShowRowMenu(s);
    return rows.RecordCount();
}

void RefillList(frmDj01& s, const KeptPlace& kept) {
    if (s.shown.sql.empty())
        return;
    FillGrids(s, s.shown, true);
    RestorePlace(s.ListOf(s.shown.lines), kept);
    ShowRowMenu(s);
}

void RefreshList(frmDj01& s) {
    RefillList(s, KeepPlace(s.ListOf(s.shown.lines)));
}

Grid* FrontGrid(frmDj01& s) {
    return s.SSTab1.index == kDocumentTab ? &s.Grid1 : s.SSTab1.index == kLineTab ? &s.Grid2 : nullptr;
}

} // namespace jxc
