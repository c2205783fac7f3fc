// Document books: a pair of tables with one layout, stem + "01" for headers and stem + "02" for lines.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace jxc {

// The stem of the book that a document type lives in; with `closed` the book of closed periods, whatever the
// type.
// "" for a number that is no document type.
[[nodiscard]] std::string BookStem(int type, bool closed);

// The largest key in a book; 1 when it is empty, so that the first document gets 2. Keys of closed documents stay taken: a
// reverse close brings them back. LargestKeyReads are the statements that it asks, to be read ahead.
[[nodiscard]] std::int32_t LargestKey(const std::string& stem);
[[nodiscard]] std::vector<std::string> LargestKeyReads(const std::string& stem);

// Deletes the headers and lines that satisfy `where` from a book, headers first. False when either statement
// failed.
[[nodiscard]] bool DeleteDocumentRows(const std::string& stem, const std::string& where);

} // namespace jxc
