// From whom the products of a purchase plan are bought: row by row, one supplier for all, or each product's current one.

#include <algorithm>

#include "base/text.h"
#include "controls/view.h"
#include "forms/suggest.h"
#include "plans/frmJh02.h"
#include "session/lookups/database_routines.h"
#include "session/lookups/find_by_text.h"
#include "session/session.h"

namespace jxc {

namespace {

void Give(frmJh02& s, int row, const std::string& name, std::int64_t id) {
    s.Grid1.SetCell(row, plan::kSupplier, name);
    s.Grid1.SetCell(row, plan::kSupplierId, id);
    s.touched = true;
}

void GiveChosen(frmJh02& s) {
    if (s.cboKhList.Index() < 0)
        return;
    const int first = s.chkKhAll.value ? 1 : s.Grid1.selectedRow;
    const int last = s.chkKhAll.value ? s.Grid1.RowCount() : s.Grid1.selectedRow;
    for (int row = first; row <= last && row > 0; ++row)
        Give(s, row, s.cboKhList.CompanyName(), s.cboKhList.Id());
}

void Seek(frmJh02& s) {
    if (Trim(s.txtKhSeek.text).empty())
        return;
    if (s.cboKhList.Seek(s.txtKhSeek.text) > 0)
        return s.MoveFocus(&s.cboKhList);
    s.cboKhList.items = {""};
    s.cboKhList.SetIndex(0);
    Warn(s.title, "未有符合条件的供应商资料！");
}

std::vector<std::int64_t> ProductsWithoutSupplier(const Grid& grid) {
    std::vector<std::int64_t> products;
    for (int row = 1; row <= grid.RowCount(); ++row)
        if (grid.Text(row, plan::kSupplier).empty())
            products.push_back(grid.Cell(row, plan::kProduct).AsLong());
    return products;
}

} // namespace

void WireSuppliers(frmJh02& s) {
    SuggestCardsIn(s.txtKhSeek);
    s.txtKhSeek.onKey = [&s](const std::string& key) {
        if (key == "Enter")
            Seek(s);
    };
    s.cboKhList.caption = "选用";
    s.cboKhList.onChoose = [&s] { GiveChosen(s); };
    s.cboKhList.onKey = [&s](const std::string& key) { // the first one found is chosen already
        if (key == "Enter")
            GiveChosen(s);
    };
    s.chkKhAll.onChange = [&s] {
        if (s.chkKhAll.value)
            GiveChosen(s);
    };
    s.Grid1.onSelect = [&s](int) { ShowSupplier(s); };
}

void ShowSupplier(frmJh02& s) {
    const int row = s.Grid1.selectedRow;
    const std::string name = row > 0 ? s.Grid1.Text(row, plan::kSupplier) : "";
    if (name.empty())
        return s.cboKhList.SetIndex(-1);
    std::vector<std::string>& items = s.cboKhList.items;
    const std::string wanted = CustomerRow(name, s.Grid1.Cell(row, plan::kSupplierId).AsLong());
    auto known = std::ranges::find(items, wanted);
    if (known == items.end())
        known = items.insert(items.end(), wanted);
    s.cboKhList.SetIndex(static_cast<int>(known - items.begin()));
}

void TakeCurrentSuppliers(frmJh02& s) {
    std::map<std::int64_t, std::pair<std::string, std::int64_t>> suppliers;
    const std::vector<std::int64_t> products = ProductsWithoutSupplier(s.Grid1);
    if (!products.empty())
        for (Recordset row(Conn(), "Select fCpID,fKhID,fKhName From tJXC_Cp Where fCpID" + InKeys(products));
             !row.AtEnd(); row.MoveNext())
            suppliers[row["fCpID"].AsLong()] = {row["fKhName"].AsText(), row["fKhID"].AsLong()};
    int left = 0;
    for (int row = 1; row <= s.Grid1.RowCount(); ++row) {
        if (!s.Grid1.Text(row, plan::kSupplier).empty())
            continue;
        const auto& [name, id] = suppliers[s.Grid1.Cell(row, plan::kProduct).AsLong()];
        if (name.empty())
            ++left;
        else
            Give(s, row, name, id);
    }
    ShowSupplier(s);
    Inform(s.title,
           left == 0 ? "每一记录都已有供应商。" : "尚有 " + std::to_string(left) + " 条记录没有供应商。");
}

} // namespace jxc
