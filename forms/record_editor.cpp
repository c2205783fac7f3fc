#include "forms/record_editor.h"

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/grid.h"
#include "controls/view.h"
#include "forms/edit_filter.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

namespace {

void SetMode(RecordEditor& s, EditorMode mode) {
    s.mode = mode;
    const bool browsing = mode == EditorMode::Browse;
    for (const RecordField* field : s.fields)
        field->control.enabled = s.IsTyping();
    s.cmdChange.enabled = s.cmdQuit.enabled = browsing;
    s.cmdSave.enabled = s.cmdCancel.enabled = !browsing;
    s.cmdSave.caption = mode == EditorMode::Delete ? "确认删除(&S)" : "保存(&S)";
    s.ShapeByMode();
}

} // namespace

RecordEditor::RecordEditor(std::string name, std::string title) : Screen(std::move(name)) {
    this->title = std::move(title);
    cmdChange.onClick = [this] { BeginMode(*this, EditorMode::Change); };
    cmdSave.onClick = [this] { SaveRecord(*this); };
    cmdCancel.onClick = [this] { LeaveMode(*this); };
    cmdQuit.onClick = [this] { Close(); };
    cmdCancel.dropsWork = true;
}

void RecordEditor::Open() {
    LeaveMode(*this);
}

std::string RecordEditor::UnsavedWork() const {
    return IsTyping() && TypedWork(*this) != asBegun ? "资料尚未保存，放弃所输入的内容？" : "";
}

void RecordEditor::SaveWork() {
    if (LeaveFocus(*this)) // what stands in the field in hand counts
        SaveRecord(*this);
}

Arrangement RecordEditor::Arrange() {
    Arrangement plain;
    const auto inARow = static_cast<size_t>(fieldsInARow);
    for (size_t at = 0; at < fields.size(); ++at) {
        if (at % inARow == 0)
            plain.fields.emplace_back();
        plain.fields.back().push_back(&fields[at]->control);
    }
    plain.commands = {&cmdChange};
    plain.closingCommands = {&cmdSave, &cmdCancel, &cmdQuit};
    return plain;
}

MayRefuse RecordEditor::Refuse() {
    MayRefuse refusal = RefuseEmptyField(*this);
    return refusal ? refusal : FirstRefusal(guards);
}

void RecordEditor::Clear() {
    for (RecordField* field : fields)
        field->Clear();
}

std::string TypedWork(const Screen& s) {
    std::string work;
    const auto add = [&](const std::string& text) { work.append(text).push_back('\x1f'); };
    for (const Control* control : s.Controls()) {
        add(control->Shown().AsText());
        const auto* grid = dynamic_cast<const Grid*>(control);
        if (!grid || grid->readOnly)
            continue;
        for (int row = 1; row <= grid->RowCount(); ++row)
            for (int column = 1; column <= grid->ColumnCount(); ++column)
                add(grid->Text(row, column));
    }
    return work;
}

void BeginMode(RecordEditor& s, EditorMode mode) {
    if (mode != EditorMode::Add && !s.HasRecord())
        return;
    SetMode(s, mode);
    if (mode == EditorMode::Add)
        s.Clear();
    s.asBegun = TypedWork(s);
    s.asShown.clear();
    for (const RecordField* field : s.fields)
        s.asShown.push_back(field->ToStore());
    s.MoveFocus(mode == EditorMode::Delete ? &s.cmdSave : &s.fields.front()->control);
}

void LeaveMode(RecordEditor& s) {
    SetMode(s, EditorMode::Browse);
    s.Load();
    s.MoveFocus(&s.Home());
}

void SaveRecord(RecordEditor& s) {
    if (!s.Confirmed())
        return;
    MayRefuse refusal;
    {
        Transaction transaction(Conn());
        refusal = s.Refuse();
        if (!refusal) {
            s.Store();
            transaction.Commit();
        }
    }
    if (refusal)
        return TellRefusal(s, *refusal);
    s.Stored();
    const bool added = s.mode == EditorMode::Add;
    LeaveMode(s);
    if (added)
        BeginMode(s, EditorMode::Add);
}

void ShowFields(RecordEditor& s, const Recordset& row) {
    for (RecordField* field : s.fields)
        if (row.AtEnd())
            field->Clear();
        else
            field->Show(row[field->field]);
}

void WriteFields(const RecordEditor& s, Recordset& row) {
    for (size_t at = 0; at < s.fields.size(); ++at)
        if (s.mode == EditorMode::Add || at >= s.asShown.size() ||
            !(s.fields[at]->ToStore() == s.asShown[at]))
            row.Set(s.fields[at]->field, s.fields[at]->ToStore());
}

MayRefuse RefuseEmptyField(const RecordEditor& s) {
    for (const RecordField* field : s.fields)
        if (field->rules.required && field->ToStore().AsText().empty())
            return Refusal{"[" + field->control.caption + "]" + GetResStr(34) + "！", &field->control};
    return std::nullopt;
}

} // namespace jxc
