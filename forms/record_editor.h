// What editors of one record share: text boxes that hold fields, the modes, and one transaction a
// save. Browsing shows a record with its boxes disabled; adding, changing and deleting end by saving or
// cancelling. A finished add stays in add mode, a finished change or delete goes back to browsing.
#pragma once

#include <optional>
#include <vector>

#include "controls/screen.h"
#include "database/recordset.h"

namespace jxc {

enum class EditorMode { Browse = 0, Add = 1, Change = 2, Delete = 3 };

// Why a record is not saved, and where the focus goes then.
struct Refusal {
    std::string text;
    Control* focus = nullptr;
};
using MayRefuse = std::optional<Refusal>;

struct EditorField {
    TextBox* box; // its caption is what messages call it
    const char* field;
    bool required = false;
    bool unique = false; // no other row holds the same text
};

struct RecordEditor : Screen {
    RecordEditor(std::string name, std::string title);
    void Open() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    Button cmdChange{*this, "cmdChange", "修改(&C)"};
    Button cmdSave{*this, "cmdSave", "保存(&S)"};
    Button cmdCancel{*this, "cmdCancel", "取消(&U)"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    EditorMode mode = EditorMode::Browse;
    std::vector<EditorField> fields;
    std::string asBegun; // TypedWork when adding or changing began

    // Has the box hold the field: its caption, its limit in bytes, no quotes.
    EditorField& Hold(TextBox& box, const char* field, const char* caption, int maxBytes,
                      bool numeric = false);

    // Reads what browsing shows, the record in hand included.
    virtual void Load() = 0;
    // Whether there is a record to change or delete; tells the person when there is none.
    virtual bool HasRecord() = 0;
    // Asks before a save; false leaves the mode as it is.
    virtual bool Confirmed() { return true; }
    // Both run inside the transaction of a save.
    virtual MayRefuse Refuse() = 0;
    virtual void Store() = 0;
    // After a save that has succeeded.
    virtual void Stored() {}
    // Puts the controls beside the fields into the state of the mode.
    virtual void ShapeByMode() = 0;
    // Empties the controls for a new record.
    virtual void Clear();
    // Where the focus goes in browse mode.
    virtual Control& Home() = 0;
};

// What a person can type and choose on the screen, as it stands now: to be compared.
std::string TypedWork(const RecordEditor& s);

void BeginMode(RecordEditor& s, EditorMode mode);
void LeaveMode(RecordEditor& s);
// Checks and stores in one transaction; a refusal is told after it, with nothing changed.
void SaveRecord(RecordEditor& s);

// The boxes from the row, empty without one; and the row's fields from the boxes, trimmed.
void ShowFields(RecordEditor& s, const Recordset& row);
void WriteFields(const RecordEditor& s, Recordset& row);
// A required field without a text.
MayRefuse RefuseEmptyField(const RecordEditor& s);

} // namespace jxc
