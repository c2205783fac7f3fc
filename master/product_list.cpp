// The list of products: the columns that the company chose, the query, and the place in it.

#include "controls/grid_routines.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "forms/column_dictionary.h"
#include "master/frmCp.h"
#include "session/lookups/find_by_text.h"
#include "session/session.h"

namespace jxc {

namespace {

// The columns of the statement are those of the grid, in their order; a key stands last.
void FillInOrder(Grid& grid, Recordset& rows) {
    grid.Clear();
    ClearSortMark(grid);
    grid.SetRowCount(static_cast<int>(rows.RecordCount()));
    for (int row = 1; !rows.AtEnd(); rows.MoveNext(), ++row)
        for (int column = 1; column <= grid.ColumnCount(); ++column)
            grid.FillCell(row, column, rows[static_cast<size_t>(column - 1)]);
}

// A company may have hidden every column of the dictionary: the key alone is read then.
std::string ListStatement(const frmCp& s, const std::string& where) {
    return "Select " + (s.columns.empty() ? "" : s.columns + ",") + "fCpID from tJXC_Cp" +
           (where.empty() ? "" : " Where " + where) + " order by fCpCode";
}

// What tells products apart, where the company's dictionary has nothing.
std::vector<Column> ShippedColumns() {
    using enum Figure;
    return {{"编码", "fCpCode", 10},
            {"品名", "fCpName", 22},
            {"规格", "fCpGG", 20},
            {"单位", "fCpUnit", 6},
            {"参考码", "fCpBarCode", 15},
            {"零售价", "fCpPrice3", 10, Price},
            {"停用（Ｘ）", "fCpFlag", 9, Tick}};
}

// Two parts with a comma between are looked for each, as they are where a product is typed.
Filter NameFilter(frmCp& s) {
    Filter filter(s.chkCpName2, s.txtCpName2, "");
    filter.condition = [&s] {
        std::string test;
        for (const std::string& part :
             s.chkCpName2.value ? NameParts(s.txtCpName2.text) : std::vector<std::string>{})
            test += (test.empty() ? "" : " And ") + NameOrSpecTest(part);
        return test;
    };
    return filter;
}

void ShowPlace(frmCp& s) {
    Grid& grid = s.Grid1;
    grid.selectedRow = 0;
    if (grid.RowCount() == 0) {
        session.SelectedProductID = 0; // what is not seen is not picked
        return ClearProduct(s);
    }
    const std::int64_t shown = session.SelectedProductID;
    const int found = shown == 0 ? 0 : RowOfKey(grid, shown);
    grid.selectedRow = found > 0 ? found : 1;
    const Value key = grid.Cell(grid.selectedRow, grid.ColumnCount());
    ShowProduct(s, static_cast<std::int32_t>(key.AsLong()));
}

} // namespace

// A dictionary that shows nothing would leave no way to its own settings: it is completed then.
void SetUpProductColumns(frmCp& s) {
    s.columns = SetupGridColumns("tJXC_Cp", s.Grid1, 1);
    if (!s.columns.empty())
        return;
    CompleteDictionary("tJXC_Cp", ShippedColumns());
    s.columns = SetupGridColumns("tJXC_Cp", s.Grid1, 1);
}

void ListProducts(frmCp& s, const std::string& where) {
    Recordset rows(Conn(), ListStatement(s, where));
    FillInOrder(s.Grid1, rows);
    ShowPlace(s);
}

void QueryProducts(frmCp& s) {
    ListProducts(s, "1=1" + s.filters.Condition());
    if (s.Grid1.RowCount() == 0)
        return Warn(s.title, "未有符合条件的产品记录！");
    s.SSTab1.index = frmCp::kList;
    s.MoveFocus(&s.Grid1);
}

void ResetQuery(frmCp& s) {
    const std::pair<CheckBox&, TextBox&> boxes[] = {
        {s.chkCpCode2, s.txtCpCode2}, {s.chkCpName2, s.txtCpName2}, {s.chkCpBarCode2, s.txtCpBarCode2},
        {s.chkCpCk2, s.txtCpck2},     {s.chkCpCw2, s.txtCpCw2},     {s.chkCpZy2, s.txtCpZy2},
        {s.chkCpCd2, s.txtCpCd2},     {s.chkCpGys2, s.txtCpGYS2}};
    for (const auto& [box, text] : boxes) {
        box.value = false;
        text.text.clear();
    }
    for (size_t price = 0; price < std::size(s.chkPrice2); ++price) {
        s.chkPrice2[price].value = false;
        s.cboPrice2[price].SetIndex(0);
        s.txtPrice2[price].text.clear();
    }
}

void ChooseProductColumns(frmCp& s) {
    if (OpenBriefPicker("tJXC_Cp", "", BriefKind::SelectColumns).empty())
        return;
    SetUpProductColumns(s);
    ListProducts(s, "");
}

std::vector<Filter> ProductFilters(frmCp& s) {
    std::vector<Filter> filters{{s.chkCpCode2, s.txtCpCode2, "fCpCode Like {like}"},
                                NameFilter(s),
                                {s.chkCpBarCode2, s.txtCpBarCode2, "fCpBarCode Like {like}"},
                                {s.chkCpCk2, s.txtCpck2, "fCkName Like {like}"},
                                {s.chkCpCw2, s.txtCpCw2, "fCpCw Like {like}"},
                                {s.chkCpZy2, s.txtCpZy2, "fCpZy Like {like}"},
                                {s.chkCpCd2, s.txtCpCd2, "fCpCd Like {like}"},
                                {s.chkCpGys2, s.txtCpGYS2, "fKhName Like {like}"}};
    for (size_t price = 0; price < std::size(s.chkPrice2); ++price) {
        s.cboPrice2[price].items = {" =", "<=", ">=", "<>"};
        filters.emplace_back(s.chkPrice2[price], s.cboPrice2[price], s.txtPrice2[price],
                             "fCpPrice" + std::to_string(price));
    }
    return filters;
}

} // namespace jxc
