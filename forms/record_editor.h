// What editors of one record share: controls that hold its fields, the modes, and one transaction a save. Browsing shows
// a record with its controls disabled; adding, changing and deleting end by saving or cancelling. A finished add stays in
// add mode, a finished change or delete goes back to browsing.
#pragma once

#include <vector>

#include "controls/screen.h"
#include "database/recordset.h"
#include "forms/guard.h"
#include "forms/record_fields.h"

namespace jxc {

enum class EditorMode { Browse = 0, Add = 1, Change = 2, Delete = 3 };

struct RecordEditor : Screen {
    RecordEditor(std::string name, std::string title);
    void Open() override;
    Arrangement Arrange() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    Button cmdChange{*this, "cmdChange", "修改(&C)", "F4"};
    Button cmdSave{*this, "cmdSave", "保存(&S)", "F9"};
    Button cmdCancel{*this, "cmdCancel", "取消(&U)"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    EditorMode mode = EditorMode::Browse;
    std::vector<RecordField*> fields; // in the order of the screen
    int fieldsInARow = 1;
    std::vector<Guard>
        guards;          // of a record added or changed, behind those that follow from the fields' rules
    std::string asBegun; // TypedWork when adding or changing began
    std::vector<Value> asShown; // what the fields would have stored then

    bool IsTyping() const { return mode == EditorMode::Add || mode == EditorMode::Change; }

    // Reads what browsing shows, the record in hand included.
    virtual void Load() = 0;
    // Whether there is a record to change or delete; tells the person when there is none.
    virtual bool HasRecord() = 0;
    // Asks before a save; false leaves the mode as it is.
    virtual bool Confirmed() { return true; }
    // Both run inside the transaction of a save.
    virtual MayRefuse Refuse();
    virtual void Store() = 0;
    // After a save that has succeeded.
    virtual void Stored() {}
    // Puts the controls beside the fields into the state of the mode.
    virtual void ShapeByMode() {}
    // Empties the controls for a new record.
    virtual void Clear();
    // Where the focus goes in browse mode.
    virtual Control& Home() { return cmdChange; }
};

// What a person can type and choose on the screen, as it stands now: to be compared.
std::string TypedWork(const Screen& s);

void BeginMode(RecordEditor& s, EditorMode mode);
void LeaveMode(RecordEditor& s);
// Checks and stores in one transaction; a refusal is told after it, with nothing changed.
void SaveRecord(RecordEditor& s);

// The fields from the row, empty without one; and the row's from the fields.
void ShowFields(RecordEditor& s, const Recordset& row);
void WriteFields(const RecordEditor& s, Recordset& row);
// A required field without a text.
[[nodiscard]] MayRefuse RefuseEmptyField(const RecordEditor& s);

} // namespace jxc
