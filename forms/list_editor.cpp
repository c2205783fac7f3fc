#include "forms/list_editor.h"

#include "base/text.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "session/audit/audit.h"
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
    s.ShowRest(row);
}

void ChooseRow(ListEditor& s, int row) {
    s.Grid1.selectedRow = row;
    s.key = row > 0 ? s.Grid1.Cell(row, s.Grid1.ColumnCount()) : Value();
    ShowRecord(s);
}

std::string ListStatement(const ListEditor& s) {
    return "select " + s.list.FieldList() + " from " + s.table.name + s.ListCondition() + " Order By " +
           s.table.order;
}

void FillList(ListEditor& s) {
    Recordset rows(Conn(), ListStatement(s));
    s.list.Fill(rows);
}

MayRefuse RefuseTwins(const ListEditor& s) {
    for (const RecordField* field : s.fields) {
        const std::string text = field->ToStore().AsText();
        if (field->rules.unique &&
            CountOf(OtherRows(s) + " And " + field->field + "=" + InQuotes(text)) != "0")
            return Refusal{"[" + field->control.caption + "] " + text + " 已有存在！", &field->control};
    }
    return std::nullopt;
}

// One row keeps the mark: it is moved by marking another, never just taken away.
MayRefuse RefuseLossOfMark(const ListEditor& s) {
    if (!s.mark || s.mode == EditorMode::Add)
        return std::nullopt;
    const bool held = RowInHand(s, Access::Read)[s.mark->field].AsLong() == 1;
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
    if (!(deletes && !s.table.mayDeleteUsed) && !renames)
        return std::nullopt;
    const std::string name = WhereUsed(s.table.uses, s.UsedKey());
    if (name.empty())
        return std::nullopt;
    if (deletes)
        return Refusal{"[" + s.RecordName() + "] 已经用于“" + name + "”，不可删除！"};
    return Refusal{"[" + s.key.AsText() + "] 已经用于“" + name + "”，不可改名！"};
}

// One row alone has it.
void TakeMarkFromOthers(const ListEditor& s) {
    const std::string& table = s.table.name;
    const std::string& field = s.mark->field;
    Recordset other(Conn(), "select * from " + table + " Where " + field + "=1", Access::Write);
    for (; !other.AtEnd(); other.MoveNext()) {
        if (s.mode != EditorMode::Add && other[s.table.key] == s.key)
            continue; // its own row is written whole
        const std::string before = JsonOf(other);
        other.Set(field, 0);
        const std::string key = other[s.table.key].AsText();
        WriteAudit({"修改", table, key, key, before, JsonOf(other)});
        other.Update();
    }
}

} // namespace

ListEditor::ListEditor(std::string name, std::string title, EditedTable table)
    : RecordEditor(std::move(name), std::move(title)), table(std::move(table)) {
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

void ListEditor::SetColumns(std::vector<Column> columns) {
    columns.push_back({.caption = table.key, .field = table.key, .figure = Figure::Key});
    list.SetUp(std::move(columns));
}

Arrangement ListEditor::Arrange() {
    Arrangement plain = RecordEditor::Arrange();
    plain.grid = &Grid1;
    plain.commands = {&cmdAdd, &cmdChange, &cmdDelete};
    return plain;
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
    return FirstRefusal(guards);
}

void ListEditor::Store() {
    newKey = mode == EditorMode::Delete ? Value() : KeyToStore();
    if (mode == EditorMode::Delete) {
        StoreElsewhere();
        WriteAudit(
            {"删除", table.name, key.AsText(), RecordName(), JsonOf(RowInHand(*this, Access::Read)), ""});
        Conn().Execute("Delete From " + table.name + " Where " + table.key + "=" + Literal(key));
        return;
    }
    const bool adds = mode == EditorMode::Add;
    const std::string before = adds ? "" : JsonOf(RowInHand(*this, Access::Read));
    const bool marked = mark && (mark->value || CountOf(table.name) == "0");
    if (marked)
        TakeMarkFromOthers(*this);
    Recordset row = RowInHand(*this, Access::Write);
    if (adds)
        row.AddNew();
    WriteFields(*this, row);
    row.Set(table.key, newKey);
    if (mark)
        row.Set(mark->field, marked ? 1 : 0);
    WriteRest(row);
    WriteAudit({adds ? "新增" : "修改", table.name, newKey.AsText(), RecordName(), before, JsonOf(row)});
    row.Update();
    StoreElsewhere();
}

void ListEditor::ShapeByMode() {
    Grid1.enabled = cmdAdd.enabled = cmdDelete.enabled = mode == EditorMode::Browse;
}

std::string ListEditor::RecordName() const {
    return fields.front()->control.Shown().AsText();
}

std::string ListEditor::UsedKey() const {
    return Literal(key);
}

Recordset RowInHand(const ListEditor& s, Access access) {
    const std::string which = s.key.IsNull() ? " is null" : "=" + Literal(s.key);
    return Recordset(Conn(), "select * from " + s.table.name + " where " + s.table.key + which, access);
}

std::string OtherRows(const ListEditor& s) {
    const bool all = s.mode == EditorMode::Add || s.key.IsNull();
    return s.table.name + " Where " + (all ? "1=1" : s.table.key + "<>" + Literal(s.key));
}

std::string WhereUsed(const std::vector<Use>& uses, const std::string& literal) {
    for (const Use& use : uses)
        if (CountOf(use.place + literal) != "0")
            return use.name;
    return "";
}

} // namespace jxc
