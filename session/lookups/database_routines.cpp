#include "session/lookups/database_routines.h"

#include <exception>
#include <limits>

#include "base/log.h"
#include "base/text.h"
#include "session/session.h"

namespace jxc {

std::string CountStatement(std::string_view table, std::string_view where) {
    std::string sql = "select count(*) from " + std::string(table);
    if (!where.empty())
        sql.append(" Where ").append(where);
    return sql;
}

int DbCount(std::string_view table, std::string_view where) {
    const std::string sql = CountStatement(table, where);
    std::int64_t count = -1;
    try {
        Conn().Tolerantly([&] { count = Conn().Query(sql).At(0, 0).AsLong(); });
    } catch (const DatabaseError& error) {
        Log("DbCount", sql + " " + error.what());
        return -1;
    }
    return count > std::numeric_limits<std::int16_t>::max() ? -1 : static_cast<int>(count);
}

bool HasRows(std::string_view table, std::string_view where) {
    try {
        return Conn().Query(CountStatement(table, where)).At(0, 0).AsLong() > 0;
    } catch (const DatabaseError&) {
        std::throw_with_nested(DatabaseError("无法完成存盘前的检查，操作已经取消！"));
    }
}

std::string MaxStatement(std::string_view table, std::string_view field) {
    return "select max(" + std::string(field) + ") from " + std::string(table);
}

std::int32_t DbMax(std::string_view table, std::string_view field) {
    const Rows rows = Conn().Query(MaxStatement(table, field));
    if (rows.Count() == 0 || rows.At(0, 0).IsNull())
        return 1;
    return static_cast<std::int32_t>(rows.At(0, 0).AsLong());
}

std::string DbScalar(std::string_view sql) {
    std::string text;
    try {
        Conn().Tolerantly([&] {
            const Rows rows = Conn().Query(sql);
            text = rows.Count() > 0 ? rows.At(0, 0).AsText() : "";
        });
    } catch (const DatabaseError& error) {
        Log("DbScalar", std::string(sql) + " " + error.what());
        return "";
    }
    return text;
}

std::string LikePattern(std::string_view text) {
    std::string pattern = Trim(text);
    const auto replace = [](char& c) {
        if (c == '*')
            c = '%';
        else if (c == '#')
            c = '_';
    };
    if (!pattern.empty()) {
        replace(pattern.front());
        replace(pattern.back());
        if (pattern.find_first_of("_%") == std::string::npos)
            pattern = "%" + pattern + "%";
    }
    return pattern;
}

std::string InKeys(std::span<const std::int64_t> keys) {
    std::string list = " In (";
    for (size_t i = 0; i < keys.size(); ++i)
        list.append(i > 0 ? "," : "").append(std::to_string(keys[i]));
    return list + ")";
}

} // namespace jxc
