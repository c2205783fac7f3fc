// The words that many screens share, in simplified and traditional Chinese. Messages of a single screen are
// literals of that screen, in simplified characters only.
#pragma once

#include <string>

namespace jxc {

// The text of message `id` in the session's language. An id that is not in the table is a std::out_of_range.
[[nodiscard]] std::string GetResStr(int id);

// What is told when a server was lost while `verb` (存盘, 审核 or 反审核) was on its way to be made lasting. `what` is the
// document's number or the record's name. To do it again is safe: a number or name that is taken, and a document that is
// approved, are refused.
[[nodiscard]] std::string CommitUnknownText(const std::string& what, const std::string& verb);

// Ids that routines use by name.
constexpr int kMsgPasteTooLong = 44;
constexpr int kMsgNoRight = 39;
constexpr int kMsgQuote = 101;
constexpr int kMsgNothingToPrint = 102;

} // namespace jxc
