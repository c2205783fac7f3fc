#include "settings/frmBrief.h"

#include <set>

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "forms/column_dictionary.h"
#include "forms/edit_filter.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

std::string EntriesOf(const frmBrief& s) {
    return " from briefDetail where briefType=" + InQuotes(s.code);
}

// The entries stored, by code.
std::string StoredEntries(const frmBrief& s) {
    AuditedFields fields;
    for (Recordset entry(Conn(), "select *" + EntriesOf(s)); !entry.AtEnd(); entry.MoveNext())
        fields.emplace_back(entry["BriefCode"].AsText(), entry["BriefName"]);
    return JsonOf(fields);
}

// The grid with these columns of the rows that `tail` names.
void Fill(frmBrief& s, const std::string& title, std::vector<Column> columns, const std::string& tail) {
    s.title = title;
    s.list.SetUp(std::move(columns));
    Recordset rows(Conn(), "select " + s.list.FieldList() + tail);
    s.list.Fill(rows);
}

void FillLists(frmBrief& s) {
    Fill(s, "代码表", {{"编号", "BriefType", 12}, {"名称", "BriefTypeName", 24}},
         " from Brief Order By BriefType");
}

void FillEntries(frmBrief& s) {
    const std::string name = DbScalar("select BriefTypeName from Brief where BriefType=" + InQuotes(s.code));
    Fill(s, "代码表：" + (name.empty() ? s.code : name),
         {{.caption = "编号", .field = "BriefCode", .width = 12, .maxBytes = 20, .typed = true},
          {.caption = "名称", .field = "BriefName", .width = 24, .maxBytes = 50, .typed = true}},
         EntriesOf(s) + " Order By BriefCode");
    s.stored = StoredEntries(s);
}

void FillColumns(frmBrief& s) {
    Fill(s, "栏目设置",
         {{.caption = "显示", .field = "FieldSelected", .figure = Figure::Tick, .typed = true},
          {"名称", "FieldName_" + std::to_string(session.Language), 24},
          {"FieldName", "FieldName", 0, Figure::Key}},
         " from rptListDetail where ftable=" + InQuotes(s.table) + " Order By fieldID");
}

bool IsBlank(const Grid& grid, int row) {
    return Trim(grid.Text(row, 1)).empty() && Trim(grid.Text(row, 2)).empty();
}

// The entries as typed: no quote, no code twice, no entry without a name; rows with nothing in them are left
// out. False after a message.
bool EntriesAreSound(frmBrief& s) {
    std::set<std::string> codes;
    for (int row = s.Grid1.RowCount(); row >= 1; --row)
        if (IsBlank(s.Grid1, row))
            s.Grid1.RemoveRow(row);
    for (int row = 1; row <= s.Grid1.RowCount(); ++row) {
        const std::string code = Trim(s.Grid1.Text(row, 1));
        const std::string name = Trim(s.Grid1.Text(row, 2));
        if (!CheckNoQuote(code) || !CheckNoQuote(name))
            return false;
        if (code.empty() || name.empty()) {
            Warn(s.title, "第 " + std::to_string(row) + " 行：编号与名称不能为空值！");
            return false;
        }
        if (!codes.insert(UpperCase(code)).second) {
            Warn(s.title, "编号 " + code + " 重复！");
            return false;
        }
    }
    return true;
}

// False when the entries are not any more those that were shown.
bool SaveEntries(const frmBrief& s) {
    Transaction transaction(Conn());
    const std::string before = StoredEntries(s);
    if (before != s.stored)
        return false;
    Conn().Execute("Delete" + EntriesOf(s));
    Recordset entries(Conn(), "select *" + EntriesOf(s), Access::Write);
    for (int row = 1; row <= s.Grid1.RowCount(); ++row) {
        entries.AddNew();
        entries.Set("briefType", s.code);
        entries.Set("BriefCode", Trim(s.Grid1.Text(row, 1)));
        entries.Set("BriefName", Trim(s.Grid1.Text(row, 2)));
        entries.Update();
    }
    WriteAudit({"修改", "briefDetail", s.code, s.title, before, StoredEntries(s)});
    transaction.Commit();
    return true;
}

void SaveColumns(const frmBrief& s) {
    Transaction transaction(Conn());
    for (int row = 1; row <= s.Grid1.RowCount(); ++row)
        Conn().Execute("Update rptListDetail Set fieldID=" + std::to_string(row) + ",FieldSelected=" +
                       (s.Grid1.Number(row, 1) != 0 ? "1" : "0") + " Where ftable=" + InQuotes(s.table) +
                       " And FieldName=" + InQuotes(s.Grid1.Text(row, 3)));
    transaction.Commit();
}

void Confirm(frmBrief& s) {
    if (s.Is(BriefKind::EditEntries)) {
        if (!EntriesAreSound(s))
            return;
        if (!SaveEntries(s))
            return Warn(s.title, "代码表已被其他用户修改，请退出后重新打开。");
    } else if (s.Is(BriefKind::SelectColumns)) {
        if (SumGridColumn(s.Grid1, 1) == 0)
            return Warn(s.title, "请至少选择一个栏目！");
        SaveColumns(s);
    }
    const int row = s.Grid1.selectedRow;
    if (s.Is(BriefKind::SelectColumns))
        s.chosen = s.table;
    else if (row > 0)
        s.chosen = s.Grid1.Text(row, s.Is(BriefKind::ChooseList) ? 1 : 2);
    s.Close();
}

// What is saved by the ok button; the name of a column is stored when it is given.
std::string TypedWork(const frmBrief& s) {
    const bool columns = s.Is(BriefKind::SelectColumns);
    std::string work;
    for (int row = 1; row <= s.Grid1.RowCount(); ++row)
        for (int column = 1; column <= s.Grid1.ColumnCount() && !IsBlank(s.Grid1, row); ++column)
            if (!columns || column != 2)
                work.append(s.Grid1.Text(row, column)).push_back('\x1f');
    return work;
}

void MoveRow(Grid& grid, int distance) {
    const int from = grid.selectedRow;
    const int to = from + distance;
    if (from < 1 || to < 1 || to > grid.RowCount())
        return;
    for (int column = 1; column <= grid.ColumnCount(); ++column) {
        const Value moved = grid.Cell(from, column);
        grid.FillCell(from, column, grid.Cell(to, column));
        grid.FillCell(to, column, moved);
    }
    grid.selectedRow = to;
}

// Another caption for the selected column, or another code list behind it.
void RenameColumn(frmBrief& s) {
    const int row = s.Grid1.selectedRow;
    if (row < 1)
        return;
    OpenFieldSettings(s.table, s.Grid1.Text(row, 3));
    if (session.RptSetResult.empty() || session.RptSetResult == s.Grid1.Text(row, 2))
        return;
    s.Grid1.SetCell(row, 2, session.RptSetResult);
    s.chosen = s.table; // also when the order is left alone, the columns are to be shown anew
}

} // namespace

frmBrief::frmBrief() : Screen("frmBrief") {
    AddNumberProperty("kind", kind);
    AddTextProperty("table", table);
    AddTextProperty("code", code);
    AddTextProperty("chosen", chosen);
    cmdAdd.onClick = [this] { GridAppendRow(Grid1, 1); };
    cmdDelete.onClick = [this] { GridAppendRow(Grid1, 2); };
    cmdUp.onClick = [this] { MoveRow(Grid1, -1); };
    cmdDown.onClick = [this] { MoveRow(Grid1, 1); };
    cmdRename.onClick = [this] { RenameColumn(*this); };
    cmdOk.onClick = [this] { Confirm(*this); };
    cmdCancel.onClick = [this] { Close(); };
    cmdCancel.dropsWork = true;
    Grid1.onDoubleClick = [this](int) {
        if (Is(BriefKind::ChooseList))
            Confirm(*this);
    };
    Grid1.onKey = [this](const std::string& key) {
        if (key == "Enter" && Is(BriefKind::ChooseList))
            Confirm(*this);
    };
}

void frmBrief::Open() {
    chosen.clear();
    const bool entries = Is(BriefKind::EditEntries);
    const bool columns = Is(BriefKind::SelectColumns);
    cmdAdd.visible = cmdDelete.visible = entries;
    cmdUp.visible = cmdDown.visible = cmdRename.visible = columns;
    Grid1.onEnterKey = nullptr;
    if (entries)
        Grid1.onEnterKey = [this] { GridAppendRow(Grid1, 1); };
    if (entries)
        FillEntries(*this);
    else if (columns)
        FillColumns(*this);
    else
        FillLists(*this);
    asOpened = TypedWork(*this);
    MoveFocus(&Grid1);
}

Arrangement frmBrief::Arrange() {
    return {.grid = &Grid1,
            .commands = {&cmdAdd, &cmdDelete, &cmdUp, &cmdDown, &cmdRename},
            .closingCommands = {&cmdOk, &cmdCancel},
            .width = 520,
            .height = 460};
}

std::string frmBrief::UnsavedWork() const {
    return TypedWork(*this) != asOpened ? "代码表尚未保存，放弃所作的修改？" : "";
}

void frmBrief::SaveWork() {
    if (LeaveFocus(*this)) // what stands in the cell in hand counts
        Confirm(*this);
}

} // namespace jxc
