// An editor over the rows of one table: a list to choose from and the fields of the chosen row beside it.
#pragma once

#include <vector>

#include "forms/columns.h"
#include "forms/record_editor.h"

namespace jxc {

// A place that may hold a row's key: "<table> Where <field>=", and what people call it.
struct Use {
    std::string place;
    std::string name;
};

// The table edited: its key field, the order of its list, and where keys are used. A key in use is not renamed, and its
// row not deleted unless `mayDeleteUsed`.
struct EditedTable {
    std::string name, key, order;
    std::vector<Use> uses = {};
    bool mayDeleteUsed = false;
};

struct ListEditor : RecordEditor {
    ListEditor(std::string name, std::string title, EditedTable table);
    Arrangement Arrange() override;

    Grid Grid1{*this, "Grid1"};
    Button cmdAdd{*this, "cmdAdd", "增加(&A)", "F2"};
    Button cmdDelete{*this, "cmdDelete", "删除(&D)", "F8"};

    const EditedTable table;
    Columns list{Grid1};
    Value key;    // of the row in hand; null for none
    Value newKey; // that a save in progress gives it

    // Of one row in the table a box is ticked: the home currency, the supervisor. Null for none.
    TickRecordField* mark = nullptr;

    // The columns of the list; the key stands behind them.
    void SetColumns(std::vector<Column> columns);

    void Load() override;
    bool HasRecord() override;
    bool Confirmed() override;
    MayRefuse Refuse() override;
    void Store() override;
    void Stored() override { key = newKey; }
    void ShapeByMode() override;
    Control& Home() override { return Grid1; }

    // What limits the list, with "Where"; "" for nothing.
    virtual std::string ListCondition() const { return ""; }
    // What messages call the row in hand.
    virtual std::string RecordName() const;
    // The key of the row to be written; the text of the first field unless keys are numbers.
    virtual Value KeyToStore() const { return fields.front()->ToStore(); }
    // The key as the places of use hold it, a literal of a statement.
    virtual std::string UsedKey() const;
    // What stands beside the fields.
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
std::string WhereUsed(const std::vector<Use>& uses, const std::string& literal);

} // namespace jxc
