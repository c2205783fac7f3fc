// The first letters of the readings of Chinese characters, as pinyin_table.cpp holds them.
#pragma once

#include <span>
#include <string_view>

namespace jxc {

// A character with its initials, the most frequent reading's first.
struct Initials {
    char32_t point;
    std::string_view letters;
};

struct PinyinTable {
    std::string_view extensionA, unified; // a letter for each code point of the block, '.' for none
    std::span<const Initials> several;    // of those blocks the characters with several, by code point
    std::span<const Initials> others;     // beyond those blocks, by code point
};
inline constexpr char32_t kExtensionAStart = 0x3400;
inline constexpr char32_t kUnifiedStart = 0x4E00;

const PinyinTable& ThePinyinTable();

} // namespace jxc
