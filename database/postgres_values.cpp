#include "database/postgres_values.h"

#include <charconv>

#include "database/statement_parameters.h"

namespace jxc {

namespace {

constexpr Oid kBool = 16, kInt8 = 20, kInt2 = 21, kFloat4 = 700, kFloat8 = 701, kDate = 1082;

Value CellOf(std::string_view text, Oid type) {
    switch (type) {
    case kInt2:
    case kInt4:
    case kInt8: {
        std::int64_t number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        return Value(number);
    }
    case kFloat4:
    case kFloat8:
    case kNumeric: {
        double number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        return Value(number);
    }
    case kBool:
        return Value(text == "t" ? 1 : 0);
    case kTimestamp:
    case kDate: // fractions of a second are not ours
        if (text.size() < 19 || text.substr(10, 9) == " 00:00:00")
            return Value(text.substr(0, 10));
        return Value(text.substr(0, 19));
    default:
        return Value(text);
    }
}

} // namespace

std::string ServerText(const Value& value) {
    if (!value.IsDouble())
        return value.AsText();
    char text[40];
    const auto [end, error] = std::to_chars(text, text + sizeof text, value.AsDouble());
    return std::string(text, end);
}

Rows RowsOf(const PGresult* result) {
    Rows rows;
    const int columns = PQnfields(result), count = PQntuples(result);
    std::vector<Oid> types;
    for (int column = 0; column < columns; ++column) {
        rows.names.emplace_back(PQfname(result, column));
        types.push_back(PQftype(result, column));
    }
    rows.cells.reserve(static_cast<size_t>(columns) * static_cast<size_t>(count));
    for (int row = 0; row < count; ++row)
        for (int column = 0; column < columns; ++column) {
            if (PQgetisnull(result, row, column)) {
                rows.cells.emplace_back();
                continue;
            }
            const std::string_view text(PQgetvalue(result, row, column),
                                        static_cast<size_t>(PQgetlength(result, row, column)));
            rows.cells.push_back(CellOf(text, types[static_cast<size_t>(column)]));
        }
    return rows;
}

} // namespace jxc
