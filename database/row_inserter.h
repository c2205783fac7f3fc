// Many new rows of one table, whose fields are named once. A value stays from row to row until it is set
// anew, so what all rows share is set, and checked, once.
#pragma once

#include <string>
#include <vector>

#include "database/connection.h"
#include "database/schema.h"

namespace jxc {

class RowInserter {
  public:
    // An unknown table or field is a DatabaseError. `connection` must outlive the inserter.
    RowInserter(Connection& connection, const std::string& table, const std::vector<std::string>& fields);

    // Sets the field at the place, from 0, that it has among the fields named. Converts and refuses as
    // Recordset::Set does.
    void Set(size_t place, Value value);
    // Writes a row of the values as they stand. Fields never set are null. Opens no transaction.
    void Insert();

  private:
    Connection& connection_;
    std::vector<const FieldDef*> fields_;
    std::vector<Value> values_;
    std::string text_;
};

} // namespace jxc
