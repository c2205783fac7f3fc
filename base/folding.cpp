#include "base/folding.h"

#include <utf8proc.h>

#include <cstdlib>
#include <memory>

#include "base/text.h"

namespace jxc {

namespace {

constexpr unsigned char kFirstUnified =
    0xE4; // U+4000 and above begin so, the common Chinese characters among them
constexpr unsigned char kLastUnified = 0xE9;

// Letters of ASCII and common Chinese characters have no other forms than capitals.
bool IsPlain(std::string_view text) {
    for (size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead >= 0x80 && (lead < kFirstUnified || lead > kLastUnified))
            return false;
        i += lead < 0x80 ? 1 : 3;
    }
    return true;
}

struct Free {
    void operator()(utf8proc_uint8_t* text) const { std::free(text); }
};

} // namespace

std::string FoldText(std::string_view text) {
    if (IsPlain(text))
        return LowerCase(text);
    utf8proc_uint8_t* made = nullptr;
    const auto options = static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_COMPAT |
                                                        UTF8PROC_CASEFOLD | UTF8PROC_IGNORE);
    const utf8proc_ssize_t size = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                               static_cast<utf8proc_ssize_t>(text.size()), &made, options);
    const std::unique_ptr<utf8proc_uint8_t, Free> owner(made);
    return size < 0 ? std::string(text)
                    : std::string(reinterpret_cast<const char*>(made), static_cast<size_t>(size));
}

} // namespace jxc
