// Document books: a pair of tables with one layout, stem + "01" for headers and stem + "02" for lines.
#pragma once

#include <string>

namespace jxc {

// The stem of the book that a document type lives in; with `closed` the book of closed periods, whatever the
// type.
// "" for a number that is no document type.
[[nodiscard]] std::string BookStem(int type, bool closed);

// Deletes the headers and lines that satisfy `where` from a book, headers first. False when either statement
// failed.
[[nodiscard]] bool DeleteDocumentRows(const std::string& stem, const std::string& where);

} // namespace jxc
