// The controls of an editor that hold a field of its record each: declared as members, they show, empty, allow and write
// themselves.
#pragma once

#include <string>
#include <vector>

#include "database/recordset.h"
#include "forms/fields.h"

namespace jxc {

struct RecordEditor;

// What saving asks of a field.
struct FieldRules {
    bool required = false;
    bool unique = false; // no other row holds the same text
    bool numeric = false;
};

// One field of the record, and the control that holds it.
class RecordField {
  public:
    RecordField(RecordEditor& editor, Control& control, std::string field, FieldRules rules = {});
    virtual ~RecordField() = default;
    RecordField(const RecordField&) = delete;
    RecordField& operator=(const RecordField&) = delete;

    virtual void Show(const Value& stored) = 0;
    virtual void Clear() = 0;
    virtual Value ToStore() const = 0;

    Control& control; // its caption is what messages call it
    const std::string field;
    const FieldRules rules;
};

// A text, stored without the blanks around it.
struct TextRecordField : TextField, RecordField {
    TextRecordField(RecordEditor& editor, std::string name, std::string field, std::string caption,
                    int maxBytes, FieldRules rules = {});
    void Show(const Value& stored) override { text = stored.AsText(); }
    void Clear() override { text.clear(); }
    Value ToStore() const override;
};

// One of a few kinds, stored as its number from 0.
struct ChoiceRecordField : ListBox, RecordField {
    ChoiceRecordField(RecordEditor& editor, std::string name, std::string field, std::string caption,
                      std::vector<std::string> kinds);
    void Show(const Value& stored) override;
    void Clear() override { SetIndex(0); }
    Value ToStore() const override;
};

// A tick, stored as 1 or 0.
struct TickRecordField : CheckBox, RecordField {
    TickRecordField(RecordEditor& editor, std::string name, std::string field, std::string caption);
    void Show(const Value& stored) override { value = stored.AsLong() == 1; }
    void Clear() override { value = false; }
    Value ToStore() const override { return value ? 1 : 0; }
};

} // namespace jxc
