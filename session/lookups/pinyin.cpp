#include "session/lookups/pinyin.h"

#include <algorithm>

#include "base/text.h"
#include "session/lookups/pinyin_table.h"

namespace jxc {

namespace {

constexpr size_t kMostTexts = 16;

std::string_view Among(std::span<const Initials> known, char32_t point) {
    const auto at = std::ranges::lower_bound(known, point, {}, &Initials::point);
    return at != known.end() && at->point == point ? at->letters : std::string_view();
}

// "" for a character that has none.
std::string_view InitialsOf(char32_t point) {
    const PinyinTable& table = ThePinyinTable();
    for (const auto& [start, letters] :
         {std::pair(kExtensionAStart, table.extensionA), {kUnifiedStart, table.unified}}) {
        if (point < start || point - start >= letters.size())
            continue;
        const std::string_view several = Among(table.several, point);
        const std::string_view one = letters.substr(point - start, 1);
        return !several.empty() ? several : one == "." ? std::string_view() : one;
    }
    return Among(table.others, point);
}

bool IsTypedAsItIs(char32_t point) {
    return (point >= '0' && point <= '9') || (point >= 'a' && point <= 'z');
}

void AppendEach(std::vector<std::string>& texts, std::string_view letters) {
    const size_t before = texts.size();
    const size_t choices = std::clamp<size_t>(kMostTexts / before, 1, letters.size());
    for (size_t choice = 1; choice < choices; ++choice)
        for (size_t i = 0; i < before; ++i)
            texts.push_back(texts[i] + letters[choice]);
    for (size_t i = 0; i < before; ++i)
        texts[i] += letters[0];
}

} // namespace

std::vector<std::string> PinyinInitials(std::string_view folded) {
    std::vector<std::string> texts{""};
    bool chinese = false;
    for (const char32_t point : ToCodePoints(folded)) {
        if (IsTypedAsItIs(point)) {
            const char letter = static_cast<char>(point);
            AppendEach(texts, {&letter, 1});
        } else if (const std::string_view letters = InitialsOf(point); !letters.empty()) {
            AppendEach(texts, letters);
            chinese = true;
        }
    }
    return chinese ? texts : std::vector<std::string>();
}

} // namespace jxc
