// The list of kit templates: the query, the place in it, paper, and the choice for an opener.

#include "controls/view.h"
#include "database/recordset.h"
#include "master/frmCpTj.h"
#include "session/printing/print_grid.h"
#include "session/session.h"

namespace jxc {

namespace {

std::string ListStatement(const std::string& where) {
    return "select distinct a.* from (tJXC_CpTj01 a Left Join tJXC_Cp b On a.fCpID=b.fCpID)"
           " Left Join (tJXC_CpTj02 K Left Join tJXC_Cp c On K.fCpPjID=c.fCpID) on a.fTjID=K.fTjID" +
           (where.empty() ? "" : " Where " + where) + " Order By a.fTjCode";
}

} // namespace

std::vector<Column> KitColumns() {
    return {{"编号", "fTjCode", 14},
            {"模板名称", "fTjName", 24},
            {"说明", "fTjMemo", 40},
            {"fTjID", "fTjID", 0, Figure::Key}};
}

std::vector<Filter> KitFilters(frmCpTj& s) {
    s.cboPrice.items = {" =", "<=", ">=", "<>"};
    return {{s.chkCode[0], s.txtCode[0], "a.fTjCode Like {like}"},
            {s.chkCode[1], s.txtCode[1], "b.fCpCode Like {like}"},
            {s.chkCode[2], s.txtCode[2], "c.fCpCode Like {like}"},
            {s.chkName[0], s.txtName[0], "a.fTjName Like {like}"},
            {s.chkName[1], s.txtName[1], "b.fCpName Like {like}"},
            {s.chkName[2], s.txtName[2], "c.fCpName Like {like}"},
            {s.chkPrice, s.cboPrice, s.txtPrice, "a.fTjJe "}};
}

void ResetQuery(frmCpTj& s) {
    for (size_t i = 0; i < std::size(s.chkCode); ++i) {
        s.chkCode[i].value = s.chkName[i].value = false;
        s.txtCode[i].text.clear();
        s.txtName[i].text.clear();
    }
    s.chkPrice.value = false;
    s.cboPrice.SetIndex(0);
    s.txtPrice.text.clear();
}

void ListKits(frmCpTj& s, const std::string& where) {
    Recordset rows(Conn(), ListStatement(where));
    s.list.Fill(rows);
    Grid& grid = s.Grid1;
    const int shown = s.TjID == 0 ? 0 : RowOfKey(grid, std::int64_t{s.TjID});
    grid.selectedRow = shown > 0 ? shown : grid.RowCount() > 0 ? 1 : 0;
    if (grid.selectedRow == 0)
        return ClearKit(s);
    ShowKit(s, "", static_cast<std::int32_t>(grid.Cell(grid.selectedRow, grid.ColumnCount()).AsLong()));
}

void QueryKits(frmCpTj& s) {
    ListKits(s, "1=1" + s.filters.Condition());
    if (s.Grid1.RowCount() == 0)
        return Warn(s.title, "未有符合条件的套件产品模板记录！");
    s.SSTab1.index = frmCpTj::kListPage;
    s.MoveFocus(&s.Grid1);
}

void PrintKits(const frmCpTj& s) {
    const std::string& caption =
        s.SSTab1.captions[s.SSTab1.index == frmCpTj::kPartsPage ? frmCpTj::kPartsPage : frmCpTj::kListPage];
    if (s.SSTab1.index != frmCpTj::kPartsPage)
        return PrintGrid(s.Grid1, caption, caption, "");
    PrintGrid(s.Grid2, caption, caption, s.txtTjPrice.text,
              {s.txtTjCode.caption, s.txtTjCode.text, s.txtTjName.caption, s.txtTjName.text,
               s.txtTjMemo.caption, s.txtTjMemo.text, s.txtCpCode.caption, s.txtCpCode.text,
               s.txtCpName.caption, s.txtCpName.text, s.txtCpPrice.caption, s.txtCpPrice.text});
}

void SelectKit(frmCpTj& s) {
    if (s.Grid1.RowCount() == 0 || s.TjID == 0)
        return Warn(s.title, "请先选定一行！");
    s.CpTjSelect = true;
    s.TjCode = s.txtTjCode.text;
    s.Close();
}

} // namespace jxc
