// The words that many screens share, in simplified and traditional Chinese. Messages of a single screen are
// literals of that screen, in simplified characters only.
#pragma once

#include <string>

namespace jxc {

// The text of message `id` in the session's language. An id that is not in the table is a std::out_of_range.
[[nodiscard]] std::string GetResStr(int id);

// Ids that routines use by name.
constexpr int kMsgPasteTooLong = 44;
constexpr int kMsgNoRight = 39;
constexpr int kMsgQuote = 101;
constexpr int kMsgNothingToPrint = 102;

} // namespace jxc
