// Things with a code and a name, found by any part of their texts in a moment, however many there are: all texts stand in
// one piece of memory that is searched from end to end.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace jxc {

// What one thing is found by.
struct IndexedTexts {
    std::string code, barCode, name, spec;
};

class TextIndex {
  public:
    // Adds the thing, or takes other texts for it.
    void Set(std::int64_t id, const IndexedTexts& texts);
    void Remove(std::int64_t id);
    void Clear();
    [[nodiscard]] size_t Count() const { return rowOf_.size(); }

    struct Hits {
        std::vector<std::int64_t> ids; // the best of them, best first
        size_t count = 0;              // of all that were found
    };
    // The things of which a text holds `typed`, or whose name begins its words so in pinyin. Case and width of letters
    // do not count. First who has the code itself, then whose code begins so, then by a part of code or bar code, by
    // name or specification, by pinyin; those alike by code. Nothing typed finds nothing.
    [[nodiscard]] Hits Find(std::string_view typed, size_t most) const;

  private:
    struct Row {
        size_t start;
        std::int64_t id;
        bool live;
    };
    std::string_view TextOf(size_t row) const;
    std::string_view CodeOf(size_t row) const;
    size_t RowAt(size_t place, size_t from) const;
    int Grade(size_t row, size_t place, size_t length) const;
    void Append(std::int64_t id, std::string_view text);
    void DropDead();

    std::string texts_;     // folded, row behind row
    std::vector<Row> rows_; // in the order of their texts
    std::unordered_map<std::int64_t, size_t> rowOf_;
    size_t deadBytes_ = 0;
};

} // namespace jxc
