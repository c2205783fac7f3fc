// Widths of the entry grid's columns, kept for all users in the dictionary of printed documents: a row's
// fieldID is the column's place. Only the supervisor may change them.

#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "session/session.h"

namespace jxc {

namespace {

const char* const kColumns = "select * from tJXC_rptListDetail Order by fieldID";

// The column that a row of the dictionary stands for; 0 when the grid does not show it.
int ColumnOf(const Grid& grid, const Recordset& row) {
    const std::int64_t column = row["fieldID"].AsLong();
    return column >= 1 && column <= grid.ColumnCount() && !grid.Column(static_cast<int>(column)).hidden
               ? static_cast<int>(column)
               : 0;
}

} // namespace

std::string ColumnWidthsStatement() {
    return kColumns;
}

void LoadColumnWidths(frmDj02& s) {
    for (Recordset row(Conn(), kColumns); !row.AtEnd(); row.MoveNext())
        if (const int column = ColumnOf(s.Grid2, row); column > 0 && row["FieldGridWidth"].AsDouble() > 0)
            s.Grid2.Column(column).width = row["FieldGridWidth"].AsDouble();
}

void SaveColumnWidths(frmDj02& s) {
    Transaction transaction(Conn());
    for (Recordset row(Conn(), kColumns, Access::Write); !row.AtEnd(); row.MoveNext())
        if (const int column = ColumnOf(s.Grid2, row); column > 0) {
            row.Set("FieldGridWidth", s.Grid2.Column(column).width);
            row.Update();
        }
    transaction.Commit();
    Inform(s.title, "栏目样式保存完毕！");
}

} // namespace jxc
