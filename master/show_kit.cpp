// A stored kit template on the screen: its header, its parts with their stock and what they cost today.

#include "base/json_value.h"
#include "base/text.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "master/frmCpTj.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/lookups/find_by_text.h"
#include "session/session.h"

namespace jxc {

namespace {

const std::string kGone = "该套件模板已不存在！";

std::string PriceText(const Value& price) {
    return FormatFixed(price.AsDouble(), session.DeciDj);
}

void ShowHeader(frmCpTj& s, const Recordset& row) {
    s.TjID = static_cast<std::int32_t>(row["fTjID"].AsLong());
    session.SelectedProductID = static_cast<std::int32_t>(row["fCpID"].AsLong());
    s.txtTjCode.text = s.oldCode = row["fTjCode"].AsText();
    s.txtTjName.text = s.oldName = row["fTjName"].AsText();
    s.txtTjMemo.text = row["fTjMemo"].AsText();
    s.txtTjPrice.text = PriceText(row["fTjJe"]);
    const std::string unit = row["fCpUnit"].AsText();
    s.txtCpCode.text = row["fCpCode"].AsText();
    s.txtCpName.text = ProductText(row).AsText() + (unit.empty() ? "" : "/" + unit);
    s.txtCpPrice.text = PriceText(row["fCpPrice0"]);
    for (TextBox* box : {&s.txtCpCode, &s.txtCpName, &s.txtCpPrice})
        box->tag = box->text;
}

// The number of parts.
int ShowParts(frmCpTj& s) {
    Recordset rows(Conn(), "select a.*,b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpPrice0,b.fCpPrice3 "
                           " from tJXC_CpTj02 a Left Join tJXC_Cp b On a.fCpPjID=b.fCpID "
                           " where a.fTjID = " +
                               std::to_string(s.TjID) + " Order By a.fRowID");
    const int parts = s.parts.Fill(rows);
    s.Grid2.Recalculate();
    s.Grid2.selectedRow = parts > 0 ? 1 : 0;
    RefreshPartStock(s);
    RefreshTotal(s);
    return parts;
}

void RemoveFromList(frmCpTj& s, std::int32_t id) {
    if (const int row = RowOfKey(s.Grid1, std::int64_t{id}); id != 0 && row > 0) {
        s.Grid1.RemoveRow(row);
        s.Grid1.selectedRow = 0;
    }
}

// Another user may give it parts at this moment: a template that has some stays.
void DeleteWithoutParts(std::int32_t id, const std::string& test) {
    Transaction transaction(Conn());
    if (HasRows("tJXC_CpTj02", "fTjID=" + std::to_string(id)))
        return;
    const Recordset header(Conn(), "select * from tJXC_CpTj01 Where fTjID=" + std::to_string(id));
    if (header.HasRow())
        WriteAudit(
            {"删除", "tJXC_CpTj01", std::to_string(id), header["fTjCode"].AsText(), JsonOf(header), ""});
    Conn().Execute(DeleteText("tJXC_CpTj01", test));
    transaction.Commit();
}

} // namespace

// The formula gives the amounts.
std::vector<Column> PartColumns() {
    using enum Figure;
    const auto nothing = [](const Recordset&) { return Value(); };
    return {{.caption = "配件编码", .field = "fCpCode", .width = 14, .maxBytes = 20, .typed = true},
            {.caption = "品名规格",
             .field = "fCpName",
             .width = 30,
             .made = ProductText,
             .maxBytes = 81,
             .typed = true},
            {"单位", "fCpUnit", 6},
            {"库存数", "fKcSl", 10, Quantity, nothing},
            {.caption = "数量", .field = "fCpPjSL", .width = 10, .figure = Quantity, .typed = true},
            {"零售价", "fCpPrice3", 10, Price},
            {"成本价", "fCpPrice0", 10, Price},
            {"金额", "fJe", 12, Money, nothing},
            {.caption = "备注", .field = "fCpPjMemo", .width = 16, .maxBytes = 50, .typed = true},
            {"fCpPjID", "fCpPjID", 0, Key}};
}

std::string StoredKit(std::int32_t id) {
    const std::string test = "fTjID=" + std::to_string(id);
    const Recordset header(Conn(), "select * from tJXC_CpTj01 Where " + test);
    if (header.AtEnd())
        return "";
    Json kit = Json::parse(JsonOf(header));
    Json& parts = kit["lines"] = Json::array();
    Recordset part(Conn(),
                   "select fCpPjID,fCpPjSL,fCpPjMemo from tJXC_CpTj02 Where " + test + " Order By fRowID");
    for (; !part.AtEnd(); part.MoveNext())
        parts.push_back(Json::array(
            {JsonValue(part["fCpPjID"]), JsonValue(part["fCpPjSL"]), JsonValue(part["fCpPjMemo"])}));
    return JsonText(kit);
}

void ClearKit(frmCpTj& s) {
    s.TjID = 0;
    session.SelectedProductID = 0;
    s.oldCode.clear();
    s.oldName.clear();
    s.asShown.clear();
    for (TextBox* box :
         std::initializer_list<TextBox*>{&s.txtTjCode, &s.txtTjName, &s.txtTjMemo, &s.txtCpCode, &s.txtCpName,
                                         &s.txtCpPrice, &s.txtTjPrice}) {
        box->text.clear();
        box->tag.clear();
    }
    s.Grid2.Clear();
}

void ShowKit(frmCpTj& s, const std::string& code, std::int32_t id) {
    if (code.empty() && id == 0)
        return;
    const std::string test = code.empty() ? "fTjID = " + std::to_string(id) : "fTjCode = " + InQuotes(code);
    // Before the rest: what changes from here on is another user's work.
    const std::string stored = StoredKit(
        id > 0 && code.empty()
            ? id
            : static_cast<std::int32_t>(Val(DbScalar("select fTjID from tJXC_CpTj01 where " + test))));
    const Recordset row(Conn(), "select a.*,b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpPrice0,b.fCpPrice3 "
                                " from tJXC_CpTj01 a Left Join tJXC_Cp b On a.fCpID=b.fCpID "
                                " where a." +
                                    test);
    if (row.AtEnd()) {
        RemoveFromList(s, id);
        ClearKit(s);
        return Warn(s.title, kGone);
    }
    ShowHeader(s, row);
    s.asShown = stored;
    if (ShowParts(s) > 0)
        return;
    Warn(s.title, s.oldName + ": " + kGone);
    DeleteWithoutParts(s.TjID, test);
    RemoveFromList(s, s.TjID);
    ClearKit(s);
}

void RefreshPartStock(frmCpTj& s) {
    Grid& grid = s.Grid2;
    std::vector<std::int64_t> products;
    for (int row = 1; row <= grid.RowCount(); ++row)
        if (const std::int64_t product = grid.Cell(row, part::kProduct).AsLong(); product != 0)
            products.push_back(product);
    if (products.empty())
        return;
    const std::map<std::int64_t, double> stock = GetStockQtys(s.cboCk.Chosen(), products);
    for (int row = 1; row <= grid.RowCount(); ++row)
        if (const std::int64_t product = grid.Cell(row, part::kProduct).AsLong(); product != 0) {
            const auto known = stock.find(product);
            grid.SetCell(row, part::kStock, known == stock.end() ? 0 : known->second);
        }
}

void RefreshTotal(frmCpTj& s) {
    s.txtTjPrice.text = FormatFixed(SumGridColumn(s.Grid2, part::kAmount), session.DeciDj);
}

} // namespace jxc
