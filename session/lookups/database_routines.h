// The small database routines that every screen uses, on the session's connection.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace jxc {

// Rows of `table` that satisfy `where` ("" for all), as a 16-bit count; -1 on any failure: a missing column,
// or more than 32767 rows. Callers that guard with it must treat -1 as "could not be checked".
[[nodiscard]] std::string CountStatement(std::string_view table, std::string_view where);
[[nodiscard]] int DbCount(std::string_view table, std::string_view where);
// Whether DbCount would count any. A DatabaseError with a text for people when that could not be found out: a guard never
// lets pass what it could not check.
[[nodiscard]] bool HasRows(std::string_view table, std::string_view where);
// The largest value of `field`; 1 when there is none, so that the first key handed out (DbMax + 1) is 2.
// Errors are thrown.
[[nodiscard]] std::string MaxStatement(std::string_view table, std::string_view field);
[[nodiscard]] std::int32_t DbMax(std::string_view table, std::string_view field);
// The first field of the first row as text; "" when there is no row or on any failure.
[[nodiscard]] std::string DbScalar(std::string_view sql);
// The LIKE pattern of what a user typed: "*" and "#" at the ends become "%" and "_"; a text without wildcards
// is wrapped in "%".
[[nodiscard]] std::string LikePattern(std::string_view text);

// Keys as the list of an In, between parentheses. The lines of a large document and what belongs to them are
// tied by it: however many they are, the engine's plan is the same, and does not rest on what it believes
// about a document just written.
[[nodiscard]] std::string InKeys(std::span<const std::int64_t> keys);

} // namespace jxc
