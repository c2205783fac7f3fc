#include "database/postgres_writer.h"

#include "database/connection.h"

namespace jxc {

std::string PostgresWriter::IsNumeric(const std::string& text) const {
    return "(case when cast(" + text +
           " as text) ~ '^[ \\t\\r\\n]*[+-]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][+-]?[0-9]+)?[ \\t\\r\\n]*$' "
           "then 1 else 0 end)";
}

// The plan is one for lists of all lengths, and does not rest on statistics.
std::string PostgresWriter::InParameter(const std::string& value, const std::string& parameter,
                                        ValueKind kind, bool negated) const {
    const char* type = kind == ValueKind::Integer  ? "bigint[]"
                       : kind == ValueKind::Number ? "numeric[]"
                       : kind == ValueKind::Date   ? "timestamp[]"
                                                   : "citext[]";
    return value + (negated ? " <> all(cast(" : " = any(cast(") + parameter + " as " + type + "))";
}

std::string PostgresWriter::Currency(const std::string&) const {
    throw DatabaseError("SQL 语句有误：函数“ccur”不属于 SQL Server 的语句，应为 convert(money, ...)。");
}

} // namespace jxc
