// Texts made alike for comparing and searching.
#pragma once

#include <string>
#include <string_view>

namespace jxc {

// `text` in the form in which texts that people take for the same are the same (Unicode NFKC with case folding): small
// letters, narrow letters, digits and signs, composed accents. A text that is no UTF-8 comes back as it is.
//     ＡＢＣ１２ -> abc12
[[nodiscard]] std::string FoldText(std::string_view text);

} // namespace jxc
