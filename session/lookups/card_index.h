// Cards of customers and suppliers by any part of what a person knows of them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace jxc {

struct SuggestedCard {
    std::int64_t id = 0;
    std::string code, name, contact;
};
struct CardSuggestions {
    std::vector<SuggestedCard> rows; // best first
    bool more = false;               // than these are there
};

// The cards with a name of which code, name or contact holds `typed`, or whose name begins its words so in pinyin; at
// most `most`.
[[nodiscard]] CardSuggestions SuggestCards(const std::string& typed, size_t most = 12);

} // namespace jxc
