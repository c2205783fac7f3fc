#include "documents/list_columns.h"

#include "documents/document_data.h"
#include "documents/document_list.h"
#include "forms/column_dictionary.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr Color kApproved = Rgb(0xE0, 0xE0, 0xE0);
constexpr Color kStopped = Rgb(0x80, 0x80, 0x80);
constexpr Color kReturn = Rgb(255, 0, 0);
constexpr int kStoppedFlag = 1;

Value StatusText(const Recordset& row) {
    const char* const texts[] = {"", "中止执行", "执行中", "完毕"};
    const std::int64_t status = row["fFlag"].AsLong();
    return status >= 1 && status <= 3 ? texts[status] : "";
}

std::vector<Column> DocumentColumns() {
    using enum Figure;
    return {{"日期", "fInvDate", 10, Day}, {"单号", "fInvNo", 15},
            {"客户", "CompName", 24},      {"仓库", "fCkName", 10},
            {"仓库2", "fCkName2", 10},     {"订单号", "fHtNo", 15},
            {"摘要", "fInvMemo", 12},      {"状态", "fFlag", 8, Text, StatusText},
            {"登录人", "fInvDLR", 8},      {"经办人", "fInvJbr", 8},
            {"审核人", "fInvSHR", 8},      {"fInvType", "fInvType", 0, Key},
            {"fInvID", "fInvID", 0, Key}};
}

// A line memo that the company does not name is not used.
std::vector<Column> LineColumns(const Parameters& parameters) {
    using enum Figure;
    return {{"日期", "fInvDate", 10, Day},
            {"单据类", "fSetName", 10},
            {"单号", "fInvNo", 15},
            {"客户", "CompName", 24},
            {"仓库", "fCkName", 10},
            {"编码", "fCpCode", 12},
            {"品名规格", "fCpName", 30, Text, ProductText},
            {"单位", "fCpUnit", 6},
            {"数量", "fInvSL", 9, Quantity},
            {"单价", "fInvDJ", 10, Price},
            {"金额", "fInvJE", 12, Money},
            {"税额", "fInvTax", 10, Money},
            {.caption = parameters.memo1, .field = "fInvOther1", .width = 14, .ownCaption = true},
            {.caption = parameters.memo2, .field = "fInvOther2", .width = 14, .ownCaption = true},
            {"登录人", "fInvDLR", 8},
            {"经办人", "fInvJbr", 8},
            {"审核人", "fInvSHR", 8},
            {"fInvType", "fInvType", 0, Key},
            {"fInvID", "fInvID", 0, Key}};
}

std::vector<Column> ShippedColumns(bool lines, const Parameters& parameters) {
    return lines ? LineColumns(parameters) : DocumentColumns();
}

double AmountOf(const Recordset& row) {
    return row["fInvJE"].AsDouble() * row["fInvHbDl"].AsDouble();
}

void ColorByApproval(Grid& grid, int at, const Recordset& row) {
    grid.SetRowColor(at, 1, row["fInvSHR"].AsText().empty() ? kNormalColor : kApproved);
}

void ColorDocument(Grid& grid, int at, const Recordset& row) {
    ColorByApproval(grid, at, row);
    const bool stopped = row["fFlag"].AsLong() == kStoppedFlag;
    grid.SetRowTextColor(at, stopped ? kStopped : row["fInvType"].AsLong() < 0 ? kReturn : kNormalColor);
}

void SetUpGridOf(frmDj01& s, bool lines, const Parameters& parameters) {
    s.ListOf(lines).SetUp(CompanysColumns(ListKey(lines), ShippedColumns(lines, parameters)));
}

} // namespace

ListSums SumsOfList(bool lines) {
    const ListSums::Figure amount{"金额合计", kAmountDecimals};
    return lines ? ListSums({{"数量合计", session.DeciSl}, amount}) : ListSums({amount});
}

std::string ListKey(bool lines) {
    return lines ? "lzJxc_Dj02" : "lzJxc_Dj01";
}

void SetUpListGrids(frmDj01& s, const Parameters& parameters) {
    for (const bool lines : {false, true})
        SetUpGridOf(s, lines, parameters);
    s.documents.onRow = [&s](int at, const Recordset& row) {
        ColorDocument(s.Grid1, at, row);
        s.sums.Add(0, AmountOf(row));
    };
    s.lines.onRow = [&s](int at, const Recordset& row) {
        ColorByApproval(s.Grid2, at, row);
        s.sums.Add(0, row["fInvSL"].AsDouble());
        s.sums.Add(1, AmountOf(row));
    };
}

void ChooseListColumns(frmDj01& s) {
    const bool lines = s.SSTab1.index == kLineTab || (s.SSTab1.index == kFilterTab && !s.chkDj.value);
    const Parameters parameters = ReadParameters();
    if (!ChooseColumns(ListKey(lines), ShippedColumns(lines, parameters)))
        return;
    const KeptPlace kept = KeepPlace(s.ListOf(lines));
    SetUpGridOf(s, lines, parameters);
    if (s.shown.lines == lines)
        RefillList(s, kept);
}

} // namespace jxc
