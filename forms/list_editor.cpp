#include "forms/list_editor.h"

#include "base/text.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

std::string Literal(const Value& key) {
    return key.IsText() ? InQuotes(key.Text()) : key.AsText();
}

std::string CountOf(const std::string& fromWhere) {
    return Conn().Query("Select Count(*) From " + fromWhere).At(0, 0).AsText();
}

void ShowRecord(ListEditor& s) {
    if (s.key.IsNull())
        return s.Clear();
    const Recordset row = RowInHand(s, Access::Read);
    if (row.AtEnd())
        return s.Clear();
    ShowFields(s, row);
    if (s.mark)
        s.mark->value = row[s.markField].AsLong() == 1;
    s.ShowRest(row);
}

void ChooseRow(ListEditor& s, int row) {
    s.Grid1.selectedRow = row;
    s.key = row > 0 ? s.Grid1.Cell(row, s.Grid1.ColumnCount()) : Value();
    ShowRecord(s);
}

void FillList(ListEditor& s) {
    Grid& grid = s.Grid1;
    grid.Clear();
    ClearSortMark(grid);
    for (Recordset row(Conn(), s.ListStatement()); !row.AtEnd(); row.MoveNext()) {
        grid.SetRowCount(grid.RowCount() + 1);
        for (int column = 1; column <= grid.ColumnCount(); ++column)
            grid.FillCell(grid.RowCount(), column, s.ShownCell(column, row[static_cast<size_t>(column - 1)]));
    }
}

int RowOfKey(const Grid& grid, const Value& key) {
    for (int row = 1; row <= grid.RowCount(); ++row)
        if (!key.IsNull() && EqualsNoCase(grid.Text(row, grid.ColumnCount()), key.AsText()))
            return row;
    return 0;
}

MayRefuse RefuseTwins(const ListEditor& s) {
    for (const EditorField& field : s.fields) {
        const std::string text = Trim(field.box->text);
        if (field.unique && CountOf(OtherRows(s) + " And " + field.field + "=" + InQuotes(text)) != "0")
            return Refusal{"[" + field.box->caption + "] " + text + " 已有存在！", field.box};
    }
    return std::nullopt;
}

// One row keeps the mark: it is moved by marking another, never just taken away.
MayRefuse RefuseLossOfMark(const ListEditor& s) {
    if (!s.mark || s.mode == EditorMode::Add)
        return std::nullopt;
    const bool held = RowInHand(s, Access::Read)[s.markField].AsLong() == 1;
    const bool kept = s.mode == EditorMode::Change && s.mark->value;
    if (!held || kept || (s.mode == EditorMode::Delete && CountOf(OtherRows(s)) == "0"))
        return std::nullopt;
    return Refusal{"必须有一个[" + s.mark->caption + "]：请先把另一行设为[" + s.mark->caption + "]。",
                   s.mode == EditorMode::Change ? s.mark : nullptr};
}

MayRefuse RefuseUsedKey(const ListEditor& s) {
    const bool deletes = s.mode == EditorMode::Delete;
    const bool renames =
        s.mode == EditorMode::Change && !EqualsNoCase(s.key.AsText(), s.KeyToStore().AsText());
    if (!(deletes && !s.MayDeleteUsed()) && !renames)
        return std::nullopt;
    const std::string name = WhereUsed(s.Uses(), s.UsedKey());
    if (name.empty())
        return std::nullopt;
    if (deletes)
        return Refusal{"[" + s.RecordName() + "] 已经用于“" + name + "”，不可删除！"};
    return Refusal{"[" + s.key.AsText() + "] 已经用于“" + name + "”，不可改名！"};
}

} // namespace

ListEditor::ListEditor(std::string name, std::string title, const char* table, const char* key)
    : RecordEditor(std::move(name), std::move(title)), table(table), keyField(key) {
    Grid1.readOnly = true;
    Grid1.onSelect = [this](int row) { ChooseRow(*this, row); };
    Grid1.onDoubleClick = [this](int) { BeginMode(*this, EditorMode::Change); };
    Grid1.onHeading = [this](int column) {
        GridSort(Grid1, column);
        Grid1.selectedRow = RowOfKey(Grid1, this->key);
    };
    Grid1.onKey = [this](const std::string& pressed) {
        if (pressed == "Enter")
            BeginMode(*this, EditorMode::Change);
    };
    cmdAdd.onClick = [this] { BeginMode(*this, EditorMode::Add); };
    cmdDelete.onClick = [this] { BeginMode(*this, EditorMode::Delete); };
}

void ListEditor::Load() {
    FillList(*this);
    const int row = RowOfKey(Grid1, key);
    ChooseRow(*this, row > 0 ? row : Grid1.RowCount() > 0 ? 1 : 0);
}

// Another user may have removed the row since the list was filled.
bool ListEditor::HasRecord() {
    if (key.IsNull()) {
        Warn(title, "请先选定一行！");
        return false;
    }
    if (RowInHand(*this, Access::Read).AtEnd()) {
        Warn(title, "[" + RecordName() + "] 已不存在！");
        Load();
        return false;
    }
    ShowRecord(*this);
    return true;
}

bool ListEditor::Confirmed() {
    return mode != EditorMode::Delete || AskOkCancel(title, "确定删除 [" + RecordName() + "] ?");
}

MayRefuse ListEditor::Refuse() {
    if (mode != EditorMode::Add && RowInHand(*this, Access::Read).AtEnd())
        return Refusal{"[" + RecordName() + "] 已不存在！", &cmdCancel};
    if (mode == EditorMode::Delete) {
        if (MayRefuse used = RefuseUsedKey(*this))
            return used;
        return RefuseLossOfMark(*this);
    }
    for (const auto& check :
         {RefuseEmptyField(*this), RefuseTwins(*this), RefuseUsedKey(*this), RefuseLossOfMark(*this)})
        if (check)
            return check;
    return RefuseContent();
}

void ListEditor::Store() {
    newKey = mode == EditorMode::Delete ? Value() : KeyToStore();
    if (mode == EditorMode::Delete) {
        StoreElsewhere();
        Conn().Execute("Delete From " + std::string(table) + " Where " + keyField + "=" + Literal(key));
        return;
    }
    const bool marked = mark && (mark->value || CountOf(table) == "0");
    if (marked)
        Conn().Execute("Update " + std::string(table) + " Set " + markField + "=0 Where " + markField + "=1");
    Recordset row = RowInHand(*this, Access::Write);
    if (mode == EditorMode::Add)
        row.AddNew();
    WriteFields(*this, row);
    row.Set(keyField, newKey);
    if (mark)
        row.Set(markField, marked ? 1 : 0);
    WriteRest(row);
    row.Update();
    StoreElsewhere();
}

void ListEditor::ShapeByMode() {
    const bool browsing = mode == EditorMode::Browse;
    Grid1.enabled = cmdAdd.enabled = cmdDelete.enabled = browsing;
    if (mark)
        mark->enabled = mode == EditorMode::Add || mode == EditorMode::Change;
}

void ListEditor::Clear() {
    RecordEditor::Clear();
    if (mark)
        mark->value = false;
}

Value ListEditor::KeyToStore() const {
    return Trim(fields.front().box->text);
}

std::string ListEditor::UsedKey() const {
    return Literal(key);
}

Recordset RowInHand(const ListEditor& s, Access access) {
    const std::string which = s.key.IsNull() ? " is null" : "=" + Literal(s.key);
    return Recordset(Conn(), "select * from " + std::string(s.table) + " where " + s.keyField + which,
                     access);
}

std::string OtherRows(const ListEditor& s) {
    const bool all = s.mode == EditorMode::Add || s.key.IsNull();
    return s.table + std::string(" Where ") + (all ? "1=1" : s.keyField + ("<>" + Literal(s.key)));
}

std::string WhereUsed(std::span<const Use> uses, const std::string& literal) {
    for (const Use& use : uses)
        if (CountOf(use.place + literal) != "0")
            return use.name;
    return "";
}

} // namespace jxc
