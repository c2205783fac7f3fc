// Texts on their way to an engine. One takes what the other refuses, or cuts it off: both get only
// well-formed UTF-8 without a zero byte.
#pragma once

#include <string>
#include <string_view>

namespace jxc {

[[nodiscard]] bool IsStorable(std::string_view text);
// The text with U+FFFD in the place of each byte that is none of a character: what a damaged file holds, to be shown.
[[nodiscard]] std::string Readable(std::string_view text);
// Throws DatabaseError with a text for people.
void RequireStorable(std::string_view text);

} // namespace jxc
