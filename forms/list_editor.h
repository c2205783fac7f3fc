// An editor over the rows of one table: a list to choose from and the fields of the chosen row beside it.
#pragma once

#include <span>

#include "controls/grid.h"
#include "forms/record_editor.h"

namespace jxc {

// A place that may hold a row's key: "<table> Where <field>=", and what people call it.
struct Use {
    const char* place;
    const char* name;
};

struct ListEditor : RecordEditor {
    // `key`: the table's key field. Columns of Grid1 are set by the editor, the last one hidden for the key.
    ListEditor(std::string name, std::string title, const char* table, const char* key);

    Grid Grid1{*this, "Grid1"};
    Button cmdAdd{*this, "cmdAdd", "增加(&A)"};
    Button cmdDelete{*this, "cmdDelete", "删除(&D)"};

    const char* const table;
    const char* const keyField;
    Value key;    // of the row in hand; null for none
    Value newKey; // that a save in progress gives it

    // Of one row in the table a box is ticked: the home currency, the supervisor. Null for none.
    CheckBox* mark = nullptr;
    const char* markField = "";

    void Load() override;
    bool HasRecord() override;
    bool Confirmed() override;
    MayRefuse Refuse() override;
    void Store() override;
    void Stored() override { key = newKey; }
    void ShapeByMode() override;
    void Clear() override;
    Control& Home() override { return Grid1; }

    // The list's rows: fields as the grid's columns, the key last.
    virtual std::string ListStatement() const = 0;
    virtual Value ShownCell(int /*column*/, const Value& cell) const { return cell; }
    // What messages call the row in hand.
    virtual std::string RecordName() const { return fields.front().box->text; }
    // The key of the row to be written; the text of the first field unless keys are numbers.
    virtual Value KeyToStore() const;
    virtual std::span<const Use> Uses() const = 0;
    // The key as the places of use hold it.
    virtual std::string UsedKey() const;
    virtual bool MayDeleteUsed() const { return false; }
    virtual MayRefuse RefuseContent() { return std::nullopt; }
    // Controls beside the fields.
    virtual void ShowRest(const Recordset& /*row*/) {}
    virtual void WriteRest(Recordset& /*row*/) {}
    // Other tables that follow, after the row is written or before it is deleted.
    virtual void StoreElsewhere() {}
};

// The row of the table with the editor's key in hand, to read or to write.
Recordset RowInHand(const ListEditor& s, Access access);
// Other rows than the one in hand.
std::string OtherRows(const ListEditor& s);
// Which of the places holds the key, a literal of a statement; "" when none does.
std::string WhereUsed(std::span<const Use> uses, const std::string& literal);

} // namespace jxc
