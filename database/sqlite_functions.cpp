#include "database/sqlite_functions.h"

#include <sqlite3.h>

#include "base/text.h"

namespace jxc {

namespace {

std::string_view TextOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<size_t>(sqlite3_value_bytes(value)))
                : std::string_view();
}

template <Halves halves>
void RoundToMoney(sqlite3_context* context, int, sqlite3_value** values) {
    switch (sqlite3_value_type(values[0])) {
    case SQLITE_NULL:
        sqlite3_result_null(context);
        break;
    case SQLITE_TEXT:
        if (!IsNumericText(TextOf(values[0]))) {
            sqlite3_result_error(context, "not a number", -1);
            break;
        }
        [[fallthrough]];
    default:
        sqlite3_result_double(context, RoundDecimal(sqlite3_value_double(values[0]), 4, halves));
    }
}

void IsNumeric(sqlite3_context* context, int, sqlite3_value** values) {
    const int type = sqlite3_value_type(values[0]);
    const bool isNumber = type == SQLITE_INTEGER || type == SQLITE_FLOAT;
    sqlite3_result_int(context, isNumber || (type == SQLITE_TEXT && IsNumericText(TextOf(values[0]))));
}

} // namespace

void AddSqliteFunctions(sqlite3* db) {
    constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function(db, "jxc_ccur", 1, kFlags, nullptr, RoundToMoney<Halves::ToEven>, nullptr,
                            nullptr);
    sqlite3_create_function(db, "jxc_money", 1, kFlags, nullptr, RoundToMoney<Halves::AwayFromZero>, nullptr,
                            nullptr);
    sqlite3_create_function(db, "jxc_isnumeric", 1, kFlags, nullptr, IsNumeric, nullptr, nullptr);
}

} // namespace jxc
