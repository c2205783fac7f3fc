// The table of document types as a grid: column n of the grid is column n of the table, counted from 0.

#include <algorithm>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "forms/edit_filter.h"
#include "session/audit/audit.h"
#include "session/session.h"
#include "settings/document_numbers.h"
#include "settings/document_types.h"
#include "settings/frmSystem.h"

namespace jxc {

namespace {

enum Place { kRowID = 0, kNo = 1, kName = 2, kAutoNo = 9, kTestNo = 10, kDefaultNo = 22, kMark = 23 };

using Items = std::vector<std::string>;
const Items kStatistics{"--------", "0.期初", "1.入库", "2.出库", "3.调库", "4.盘点"};
const Items kPartners{"--------", "0.供销商", "1.供应商", "2.销售商", "3.代销商"};
const Items kOwed{"--------", "0.", "1.应收", "2.应付", "3.", "4."};
const Items kCash{"--------", "0.", "1.", "2.", "3.实付", "4.实收"};
const Items kWarehouses{"--------", "0.=不限=", "1.总部仓", "2.零售仓", "3.代销仓", "4.生产仓", "5.非代销仓"};
const Items kDirections{"--------", "0.", "1.入库", "2.出库"};
const Items kReferencePrices{"--------", "0.", "1.成本价", "2.批发价", "3.代销价", "4.零售价"};
const Items kPrices{"--------", "0.", "1.成本价", "2.批发价", "3.代销价", "4.零售价", "5.参考价折扣"};

Column Typed(std::string caption, std::string field, double width, int maxBytes) {
    return {.caption = std::move(caption),
            .field = std::move(field),
            .width = width,
            .maxBytes = maxBytes,
            .typed = true};
}
Column List(std::string caption, std::string field, const Items& items) {
    return {.caption = std::move(caption),
            .field = std::move(field),
            .width = 11,
            .figure = Figure::Choice,
            .items = items,
            .typed = true};
}
Column Check(std::string caption, std::string field) {
    return {.caption = std::move(caption),
            .field = std::move(field),
            .width = 7,
            .figure = Figure::Tick,
            .typed = true};
}

std::vector<Column> TypeColumns() {
    return {{.caption = "No",
             .field = "fSetNo",
             .width = 5,
             .figure = Figure::Number,
             .decimals = 0,
             .typed = true},
            Typed("单据类", "fSetName", 14, 20),
            List("统计归类", "fSetTjType", kStatistics),
            List("客户类", "fSetKhType", kPartners),
            List("应收应付 (往来帐)", "fSetWlType", kOwed),
            List("实收实付 (资金帐)", "fSetZjType", kCash),
            Check("退货 (红字)", "fSetDjBack_"),
            Check("参考 订单号", "fSetDjDd_"),
            Typed("自动单号", "fSetAutoNo", 18, 0), // too long a rule is told, not cut
            {.caption = "(模拟单号)", .field = "fSetTestNo", .width = 18},
            Typed("仓库1", "fSetCkName1", 12, 20),
            List("仓库类1", "fSetCkType1", kWarehouses),
            List("出入类1", "fSetCrType1", kDirections),
            Typed("仓库2", "fSetCkName2", 12, 20),
            List("仓库类2", "fSetCkType2", kWarehouses),
            List("参考单价 显示", "fSetDjType1", kReferencePrices),
            List("实际单价 显示", "fSetDjType2", kPrices),
            Check("货币", "fSetHb_"),
            Check("税率栏", "fSetHbSl_"),
            Check("库存栏", "fSetKc_"),
            Check("结余栏", "fSetJy_"),
            {.caption = "缺省单号", .field = "fSetDefaultNo", .figure = Figure::Key},
            {.caption = "修改", .field = "", .figure = Figure::Key}};
}

CellType TypeOfColumn(const frmSystem& s, int column) {
    return s.Grid1.Column(column).type;
}

// A list cell holds the place of its item, the first of which stands for -1.
Value ShownCell(const frmSystem& s, int column, const Value& stored) {
    switch (TypeOfColumn(s, column)) {
    case CellType::List:
        return stored.IsNull() ? Value() : Value(stored.AsLong() + 1);
    case CellType::Text:
        return stored.AsText();
    default:
        return stored.IsNull() ? Value() : Value(static_cast<std::int64_t>(Val(stored.AsText())));
    }
}

Value StoredCell(const frmSystem& s, int column, const Value& shown) {
    switch (TypeOfColumn(s, column)) {
    case CellType::List:
        return shown.IsNull() ? -1 : shown.AsLong() - 1;
    case CellType::Text:
        return shown.AsText();
    default:
        return static_cast<std::int64_t>(Val(shown.AsText()));
    }
}

template <typename CellOf>
void FillRow(frmSystem& s, int row, const CellOf& cellOf) {
    for (int column = kNo; column < kMark; ++column)
        s.Grid1.FillCell(row, column, ShownCell(s, column, cellOf(static_cast<size_t>(column))));
}

void OfferBuiltInTypes(frmSystem& s) {
    const auto types = DefaultDocumentTypes();
    s.Grid1.SetRowCount(static_cast<int>(types.size()));
    int row = 0;
    for (const DocumentTypeRow& type : types) {
        const std::vector<Value> cells = RecordCells(type, ++row);
        FillRow(s, row, [&](size_t place) { return cells[place]; });
        s.Grid1.FillCell(row, kMark, 1);
    }
}

bool IsMarked(const frmSystem& s, int row) {
    return s.Grid1.Number(row, kMark) != 0;
}

std::string TypeStatement(const frmSystem& s, int row) {
    return "select * from tJXC_InvSet where fSetNo=" + NumberText(s.Grid1.Number(row, kNo)) +
           " And fSetNoUse_<>1 Order by fRowID";
}

void WriteType(const frmSystem& s, int row) {
    Recordset record(Conn(), TypeStatement(s, row), Access::Write);
    const std::string before = JsonOf(record);
    if (record.AtEnd()) {
        record.AddNew();
        record.Set(size_t{kRowID}, row);
        record.Set("fSetNoUse_", 0);
    }
    for (int column = kNo; column < kMark; ++column)
        record.Set(static_cast<size_t>(column), StoredCell(s, column, s.Grid1.Cell(row, column)));
    WriteAudit({before.empty() ? "新增" : "修改", "tJXC_InvSet", record["fSetNo"].AsText(),
                record["fSetName"].AsText(), before, JsonOf(record)});
    record.Update();
}

// Two types of one number would be one type with two rows.
bool NumbersAreSound(frmSystem& s) {
    for (int row = 1; row <= s.Grid1.RowCount(); ++row)
        for (int other = 1; other < row; ++other)
            if (s.Grid1.Number(row, kNo) == s.Grid1.Number(other, kNo)) {
                Warn(s.title, "第 " + std::to_string(row) + " 行：单据类号 " +
                                  NumberText(s.Grid1.Number(row, kNo)) + " 与第 " + std::to_string(other) +
                                  " 行重复！");
                return false;
            }
    return true;
}

std::string RuleOf(const frmSystem& s, int row) {
    return s.Grid1.Text(row, kAutoNo);
}

void FillTypeGrid(frmSystem& s) {
    s.types.SetUp(TypeColumns());
    s.Grid1.Column(kNo).below = 32768;
    s.Grid1.Column(kNo).thousands = false;
    Recordset record(Conn(), "select * from tJXC_InvSet where fSetNoUse_<>1 Order by fRowID");
    if (record.AtEnd())
        return OfferBuiltInTypes(s);
    s.Grid1.Column(kNo).locked = true; // another number would make another type, and leave this one
    s.Grid1.SetRowCount(static_cast<int>(record.RecordCount()));
    for (int row = 1; !record.AtEnd(); record.MoveNext(), ++row)
        FillRow(s, row, [&](size_t place) { return record[place]; });
}

} // namespace

void LoadTypeGrid(frmSystem& s) {
    FillTypeGrid(s);
    s.typesAsLoaded = TypedTypes(s);
}

// The numbers that a test has given are no work.
std::string TypedTypes(const frmSystem& s) {
    std::string typed;
    for (int row = 1; row <= s.Grid1.RowCount(); ++row)
        for (int column = kNo; column < kMark; ++column)
            if (column != kTestNo)
                typed.append(s.Grid1.Text(row, column)).push_back('\x1f');
    return typed;
}

bool SaveTypeGrid(frmSystem& s) {
    if (!NumbersAreSound(s) || !AskOkCancel(s.title, "确定：保存系统单据设置?"))
        return false;
    Transaction transaction(Conn());
    for (int row = 1; row <= s.Grid1.RowCount(); ++row)
        if (IsMarked(s, row))
            WriteType(s, row);
    transaction.Commit();
    s.Grid1.Column(kNo).locked = true; // they stand now
    s.typesAsLoaded = TypedTypes(s);
    Inform(s.title, "系统单据设置完毕！");
    return true;
}

void OnCellChange(frmSystem& s, int column, int row) {
    Grid& grid = s.Grid1;
    grid.FillCell(row, kMark, 1);
    if (column == kAutoNo && !CheckNumberRule(RuleOf(s, row)))
        return grid.FillCell(row, kAutoNo, grid.Cell(row, kDefaultNo));
    if (TypeOfColumn(s, column) == CellType::Text && !CheckNoQuote(grid.Text(row, column))) {
        std::string text = grid.Text(row, column);
        std::erase(text, '\'');
        grid.FillCell(row, column, text);
    }
}

void TakeDefaultRules(frmSystem& s) {
    for (int row = 1; row <= s.Grid1.RowCount(); ++row) {
        const bool shipped = !s.Grid1.Text(row, kDefaultNo).empty();
        const int from = shipped ? kDefaultNo : kAutoNo;
        const int to = shipped ? kAutoNo : kDefaultNo;
        if (s.Grid1.Text(row, from) == s.Grid1.Text(row, to))
            continue;
        s.Grid1.FillCell(row, to, s.Grid1.Cell(row, from));
        s.Grid1.FillCell(row, kMark, 1);
    }
}

void TestRules(frmSystem& s) {
    for (int row = 1; row <= s.Grid1.RowCount(); ++row) {
        std::string rule = RuleOf(s, row);
        if (CheckNumberRule(rule)) {
            s.Grid1.FillCell(row, kTestNo, NextDocumentNo(Today(), rule, kSeriesTest));
            continue;
        }
        if (!AskOkCancel(s.title, "第" + std::to_string(row) + "行（" + s.Grid1.Text(row, kName) +
                                      "）：自动单号 " + rule + " 设置错误！"))
            return;
    }
}

} // namespace jxc
