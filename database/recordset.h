// A result to walk through, or a set of rows to change one at a time. The two patterns in which every screen
// opens it: Read for lookups, lists and reports, Write for "select * from <table> where <key>" followed by
// field assignments and Update. The whole result is in memory, so RecordCount is always known.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "database/schema.h"

namespace jxc {

enum class Access { Read, Write };

// Whoever uses it against its rules (moves on from what is not written, writes what was opened to read, takes a place that
// is none, deletes twice) gets a std::logic_error.
class Recordset {
  public:
    // Opens `sql`. With Write it must be "select [distinct] <columns or *> from <one table> [where ..] [order
    // by ..]"; anything else is a DatabaseError.
    Recordset(Connection& connection, std::string_view sql, Access access = Access::Read);

    [[nodiscard]] bool AtEnd() const { return row_ >= RecordCount(); }
    // Whether there is a row to read or assign: one that was read, or one that is being added.
    [[nodiscard]] bool HasRow() const { return adding_ || !AtEnd(); }
    // Assigned fields must have been written by Update before; otherwise a std::logic_error.
    void MoveNext();
    // Goes to a row by its place from 0, for sets that are read once and changed in another order.
    void MoveTo(size_t row);
    [[nodiscard]] size_t RecordCount() const { return rows_.Count(); }

    // A field of the current or new row, as last assigned, by name in any case or by ordinal from 0. A
    // name that the tables do not have, or a row that is not there, is a DatabaseError.
    const Value& operator[](std::string_view name) const { return Field(OrdinalOf(name)); }
    const Value& operator[](size_t ordinal) const { return Field(ordinal); }
    size_t OrdinalOf(std::string_view name) const;
    size_t FieldCount() const { return rows_.names.size() - firstField_; }
    const std::string& FieldName(size_t ordinal) const { return rows_.names[firstField_ + ordinal]; }

    // Starts a new row; the fields assigned until Update make it. Fields not assigned are null. Once written,
    // the new row is not among the rows of this recordset.
    void AddNew();
    // Assigns a field of the current or new row. Money fields round to four decimals; a date field takes
    // 'yyyy-mm-dd' or null, a number field no text but a numeric one. A wrong kind is a DatabaseError.
    void Set(std::string_view name, Value value);
    void Set(size_t ordinal, Value value);
    // Writes the assigned fields. A changed row that meanwhile vanished is a ConflictError, at this call or,
    // inside a transaction on a server, at the connection's next Flush, Query or CommitTrans.
    void Update();
    // Deletes the current row.
    void Delete();

  private:
    const Value& Field(size_t ordinal) const;
    const FieldDef& Definition(size_t ordinal);
    void RequireRow() const;
    Value& Cell(size_t ordinal);
    void ReadRows(std::string_view sql);
    std::vector<std::string> NamesToWrite() const;
    std::vector<Value> ValuesToWrite();
    void ChangeRow(Engine& engine);
    bool MustCompare(const Engine& engine) const;
    bool MustFollow() const;
    void RunOnRow(const std::string& text, std::span<const Value> values,
                  const std::shared_ptr<Value>& address);
    std::shared_ptr<Value> AddressToWrite();
    Value& AddressAsRead() { return rows_.cells[row_ * rows_.names.size()]; }
    void ForgetAssigned();

    Connection& connection_;
    Rows rows_;             // Write: with each row's address before its fields; null for a deleted row
    size_t firstField_ = 0; // 1 behind an address
    size_t row_ = 0;
    mutable size_t last_ = 0;              // the field taken last
    mutable std::vector<size_t> follower_; // the one taken after each field, the last time
    bool adding_ = false;
    std::vector<Value> newRow_;
    std::vector<size_t> assigned_;        // ordinals, since AddNew or the last Update
    std::vector<bool> isAssigned_;        // by ordinal: whether it is among them
    std::vector<Value> before_;           // the current row before the first of them
    std::string tableName_;               // Write: the table
    const TableDef* table_ = nullptr;     // Write: its definition
    std::vector<const FieldDef*> fields_; // Write: the definition of each column, once it is needed
    std::vector<size_t> inserted_;        // the ordinals that insertText_ writes: most new rows are alike
    std::string insertText_;
    std::vector<size_t> changed_; // the same of changeText_
    std::string changeText_;
    bool following_ = false; // in changeText_
    size_t rowChanges_ = 0;  // the connection's when the rows were read, and own ones since
    // Write: the address of each row that was changed, which its engine keeps true. Empty until the first
    // one.
    std::vector<std::shared_ptr<Value>> addresses_;
};

} // namespace jxc
