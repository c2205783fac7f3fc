// The schema as data: every table the system touches, its own ("tJXC_...") and the host suite's. One
// description renders the DDL of both engines and tells the translation which fields are texts, dates and
// numbers.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"

namespace jxc {

enum class FieldType { Long, Short, Double, Money, Date, Text };

struct FieldDef {
    std::string_view name;
    FieldType type;
};

struct IndexDef {
    std::string_view fields; // comma-separated, in index order
    bool unique = false;
};

struct TableDef {
    std::string_view name;
    std::vector<FieldDef> fields; // in column order, which "Insert .. Select *" relies on
    std::vector<IndexDef> indexes;
    bool late = false; // companies of older versions lack it, and gain it when they are opened
};

[[nodiscard]] std::span<const TableDef> AllTables();
// The table by name in any case; null when the system knows none of that name.
[[nodiscard]] const TableDef* FindTable(std::string_view name);
[[nodiscard]] const FieldDef* FindField(const TableDef& table, std::string_view field);

// Creates a new, empty company database and opens `connection` on it: for dialect 0 the file `path`, which
// must not exist yet, readable and writable by its owner only (mode 0600); otherwise all tables in the
// PostgreSQL database of `path`, which must hold none of them. All in one transaction; throws DatabaseError
// and leaves nothing behind.
void CreateCompanyTables(int dialect, Connection& connection, const std::string& path,
                         const std::string& password = "", const std::string& user = "",
                         const std::string& defaultName = "");

} // namespace jxc
