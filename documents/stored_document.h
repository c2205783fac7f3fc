// A document as it stands in its book, to see whether another user changed it since it was loaded.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/value.h"

namespace jxc {

struct StoredDocument {
    // The cells of the header row and of the line rows in their order; what approval writes into lines apart.
    std::vector<std::string> headerNames;
    std::vector<Value> header;
    std::vector<Value> lines;

    // Of a line: the cells, and the places of its warehouse and product.
    static constexpr size_t kLineCells = 11, kWarehouse = 2, kProduct = 3;

    bool Exists() const { return !header.empty(); }
    bool operator==(const StoredDocument&) const = default;
};

// The two statements with which a document is read, to be read ahead.
std::string StoredHeaderStatement(const std::string& stem, std::int32_t key);
std::string StoredLinesStatement(const std::string& stem, std::int32_t key);
// The statement of the lines on one side (fInv1), with their products: 0, or 1 for a kit's finished product.
std::string LinesStatement(const std::string& stem, std::int32_t key, int fInv1);
// Reads the document of key `key` in the book that `stem` names. One that is gone does not Exist.
StoredDocument ReadStored(const std::string& stem, std::int32_t key);

} // namespace jxc
