#include "forms/record_fields.h"

#include <algorithm>

#include "base/text.h"
#include "forms/record_editor.h"

namespace jxc {

RecordField::RecordField(RecordEditor& editor, Control& control, std::string field, FieldRules rules)
    : control(control), field(std::move(field)), rules(rules) {
    editor.fields.push_back(this);
}

TextRecordField::TextRecordField(RecordEditor& editor, std::string name, std::string field,
                                 std::string caption, int maxBytes, FieldRules rules)
    : TextField(editor, std::move(name), std::move(caption), maxBytes, rules.numeric),
      RecordField(editor, *this, std::move(field), rules) {}

Value TextRecordField::ToStore() const {
    return Trim(text);
}

ChoiceRecordField::ChoiceRecordField(RecordEditor& editor, std::string name, std::string field,
                                     std::string caption, std::vector<std::string> kinds)
    : ListBox(editor, std::move(name)), RecordField(editor, *this, std::move(field)) {
    this->caption = std::move(caption);
    items = std::move(kinds);
}

void ChoiceRecordField::Show(const Value& stored) {
    const std::int64_t kind = stored.AsLong();
    SetIndex(kind >= 0 && kind < static_cast<std::int64_t>(items.size()) ? static_cast<int>(kind) : -1);
}

Value ChoiceRecordField::ToStore() const {
    return std::max(Index(), 0);
}

TickRecordField::TickRecordField(RecordEditor& editor, std::string name, std::string field,
                                 std::string caption)
    : CheckBox(editor, std::move(name), std::move(caption)), RecordField(editor, *this, std::move(field)) {}

} // namespace jxc
