// Products by any part of what a person knows of them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace jxc {

struct SuggestedProduct {
    std::int64_t id = 0;
    std::string code, name, spec, unit, barCode;
    double stock = 0, price = 0;
};
struct ProductSuggestions {
    std::vector<SuggestedProduct> rows; // best first
    bool more = false;                  // than these are there
};

// The products, stopped ones apart, of which code, name, specification or reference code holds `typed`, or whose name
// begins its words so in pinyin; at most `most`. Stock is that in `warehouse`, with "" in all together, and the price
// that of the field `priceField` ("fCpPrice3"; "" for none). Reads the rows given alone, once what changed is known.
[[nodiscard]] ProductSuggestions SuggestProducts(const std::string& typed, const std::string& warehouse,
                                                 const std::string& priceField, size_t most = 12);

} // namespace jxc
