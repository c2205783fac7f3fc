#include "database/storable_text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "database/connection.h"

namespace jxc {

namespace {

// The bytes of the character at the front of `text`, which is no ASCII letter; 0 when it is none. Neither
// longer forms of a character than needed nor halves of surrogate pairs are characters.
size_t LengthOfCharacter(std::string_view text) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    const size_t length = first >= 0xC2 && first <= 0xDF   ? 2
                          : first >= 0xE0 && first <= 0xEF ? 3
                          : first >= 0xF0 && first <= 0xF4 ? 4
                                                           : 0;
    if (length == 0 || text.size() < length)
        return 0;
    for (size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    const unsigned char second = byte(1);
    const bool isOutside = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                           (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return isOutside ? 0 : length;
}

// Of any character at the front of `text`; 0 when it is none.
size_t LengthOfAny(std::string_view text) {
    const auto c = static_cast<unsigned char>(text.front());
    return c == 0 ? 0 : c < 0x80 ? 1 : LengthOfCharacter(text);
}

// Eight letters of ASCII, none of them zero.
bool AreEightLetters(const char* text) {
    std::uint64_t letters;
    std::memcpy(&letters, text, sizeof letters);
    constexpr std::uint64_t kHigh = 0x8080808080808080, kOnes = 0x0101010101010101;
    return (letters & kHigh) == 0 && ((letters - kOnes) & kHigh) == 0;
}

} // namespace

bool IsStorable(std::string_view text) {
    for (size_t at = 0; at < text.size();) {
        if (at + 8 <= text.size() && AreEightLetters(text.data() + at)) {
            at += 8;
            continue;
        }
        const size_t length = LengthOfAny(text.substr(at));
        if (length == 0)
            return false;
        at += length;
    }
    return true;
}

std::string Readable(std::string_view text) {
    std::string readable;
    while (!text.empty()) {
        const size_t length = LengthOfAny(text);
        readable += length == 0 ? "\uFFFD" : text.substr(0, length);
        text.remove_prefix(std::max<size_t>(length, 1));
    }
    return readable;
}

void RequireStorable(std::string_view text) {
    if (!IsStorable(text))
        throw DatabaseError("文本含有不能存入的字符（空字符，或者不是 UTF-8 编码）。");
}

} // namespace jxc
