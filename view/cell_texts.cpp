#include "view/cell_texts.h"

#include <algorithm>
#include <array>

namespace jxc {

namespace {

bool BeginsAsFormula(std::string_view text) {
    // The last four are the wide forms that Chinese and Japanese keyboards give.
    constexpr std::array<std::string_view, 11> kBeginnings{"=",  "+",  "-",  "@",  "\t", "\r",
                                                           "\n", "＝", "＋", "－", "＠"};
    return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                       [&](std::string_view beginning) { return text.starts_with(beginning); });
}

// Apostrophes that were there before are kept apart from ours by counting them in.
bool NeedsApostrophe(std::string_view text) {
    return BeginsAsFormula(text.substr(std::min(text.find_first_not_of('\''), text.size())));
}

} // namespace

std::string HarmlessText(const std::string& text) {
    return NeedsApostrophe(text) ? "'" + text : text;
}

std::string OriginalText(const std::string& harmless) {
    return harmless.starts_with('\'') && NeedsApostrophe(harmless) ? harmless.substr(1) : harmless;
}

std::string HarmlessWithin(const std::string& text) {
    const std::string_view all = text;
    std::string harmless;
    for (size_t at = 0; at < all.size(); ++at) {
        harmless += all[at];
        if (all[at] != ';' && all[at] != '\r' && all[at] != '\n')
            continue;
        // Quotes at the beginning of a cell are not part of it.
        const std::string_view next = all.substr(std::min(all.find_first_not_of('"', at + 1), all.size()));
        if (BeginsAsFormula(next) && next.front() != '\r' && next.front() != '\n')
            harmless += '\'';
    }
    return harmless;
}

std::string Quoted(const std::string& text, char separator) {
    if (text.find_first_of("\"\r\n") == std::string::npos && text.find(separator) == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + "\"";
}

} // namespace jxc
