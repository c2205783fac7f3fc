// Adds rows to one table of a new company, a field at a time by name.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "database/recordset.h"

namespace jxc {

// A field of a row to add.
struct NamedValue {
    std::string_view field;
    Value value;
};

// Writes on the connection's transaction; opens none of its own. Failures are DatabaseError.
class TableWriter {
  public:
    TableWriter(Connection& connection, std::string_view table)
        : rows_(connection, "select * from " + std::string(table), Access::Write) {}

    // Fields not named are null.
    void Add(std::initializer_list<NamedValue> fields) {
        rows_.AddNew();
        for (const NamedValue& field : fields)
            rows_.Set(field.field, field.value);
        rows_.Update();
    }

  private:
    Recordset rows_;
};

// The first key that any table hands out, so that made rows and rows entered later number alike.
constexpr int kFirstKey = 2;

} // namespace jxc
