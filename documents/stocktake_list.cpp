// The products of a warehouse with their stock, for a stocktake: the person types what was counted.

#include <algorithm>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/load_lines.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

struct Listed {
    std::int32_t id;
    ProductSought product; // with its stock here
};

std::string SourceOf(int option, const std::string& warehouse) {
    switch (option) {
    case 0:
        return " From tJXC_CkTj a Right join tJXC_Cp b On (b.fCpID=a.fCpID)  Where 1=1 ";
    case 1:
        return " From tJXC_CkTj a Left join tJXC_Cp b On b.fCpID=a.fCpID  Where a.fCkName = " +
               InQuotes(warehouse);
    default:
        return " From tJXC_CkTj a Right join tJXC_Cp b On (b.fCpID=a.fCpID)  Where b.fCkName = " +
               InQuotes(warehouse);
    }
}

std::string ListStatement(int option, const std::string& warehouse) {
    return "select b.fCpID,b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpBarCode,b.fCpPrice0,b.fCpPrice1,"
           "b.fCpPrice2,b.fCpPrice3,b.fCpSlMin,b.fCpSlMax,a.fCkName,a.fKcSl" +
           SourceOf(option, warehouse) + " Order By b.fCpCode";
}

Listed ReadProduct(const Recordset& row) {
    Listed listed{static_cast<std::int32_t>(row["fCpID"].AsLong()), {}};
    listed.product.code = row["fCpCode"].AsText();
    listed.product.name = row["fCpName"].AsText();
    listed.product.spec = row["fCpGG"].AsText();
    listed.product.unit = row["fCpUnit"].AsText();
    listed.product.stock = row["fKcSl"].AsDouble();
    for (size_t i = 0; i < std::size(listed.product.price); ++i)
        listed.product.price[i] = row["fCpPrice" + std::to_string(i)].AsDouble();
    return listed;
}

// A stock row whose product is gone lists nothing that could be counted.
std::vector<Listed> ReadList(int option, const std::string& warehouse, const StockSigns& signs) {
    std::vector<Listed> list;
    for (Recordset row(Conn(), ListStatement(option, warehouse)); !row.AtEnd(); row.MoveNext()) {
        const bool elsewhere = !row["fCkName"].IsNull() && !EqualsNoCase(row["fCkName"].AsText(), warehouse);
        if (!elsewhere && !row["fCpID"].IsNull() && signs.Hold(row["fKcSl"].AsDouble()))
            list.push_back(ReadProduct(row));
    }
    return list;
}

void ShowList(frmDj02& s, const std::vector<Listed>& list) {
    Grid& grid = s.Grid2;
    grid.Clear();
    grid.SetRowCount(static_cast<int>(list.size()));
    int row = 0;
    for (const Listed& listed : list) {
        FillProduct(s, ++row, listed.product, listed.id);
        grid.SetCell(row, line::kCounted, std::max(listed.product.stock, 0.0));
    }
    grid.selectedRow = list.empty() ? 0 : 1;
    grid.selectedColumn = line::kCounted;
}

// The products and their counts, as one text.
std::string Counts(const Grid& grid) {
    std::string counts;
    for (int row = 1; row <= grid.RowCount(); ++row)
        if (const std::string code = grid.Text(row, line::kCode);
            !code.empty() && !grid.Text(row, line::kCounted).empty())
            counts += code + " " + NumberText(grid.Number(row, line::kCounted)) + "\n";
    return counts;
}

// A list that is still as it was made goes without a question, what somebody has typed does not.
bool MayReplaceCounts(const frmDj02& s) {
    const std::string counts = Counts(s.Grid2);
    return counts.empty() || counts == s.listedCounts ||
           AskOkCancel(s.title, "表中已有输入的盘点数，重新统计将清空。继续？");
}

} // namespace

bool StocktakeList(frmDj02& s, int option, const StockSigns& signs) {
    return LoadsWhole(s, [&] {
        const std::vector<Listed> list = ReadList(option, StockWarehouse(s), signs);
        if (!MayHoldLines(s, static_cast<int>(list.size())) || !MayReplaceCounts(s))
            return false;
        ShowList(s, list);
        s.listedCounts = Counts(s.Grid2);
        RefreshTotals(s);
        return true;
    });
}

bool ListForStocktake(frmDj02& s) {
    const auto chosen =
        std::ranges::find_if(s.optPd, [](const OptionButton& option) { return option.value; });
    const bool listed = StocktakeList(s, static_cast<int>(chosen - std::begin(s.optPd)),
                                      {s.chkPd[0].value, s.chkPd[1].value, s.chkPd[2].value});
    if (!listed)
        return false;
    s.fraPdTj.visible = false;
    s.MoveFocus(&s.Grid2);
    if (s.Grid2.RowCount() == 0)
        CurrentView().Signal("没有符合条件的产品。");
    return true;
}

} // namespace jxc
