// The first letters of the pinyin of names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jxc {

// What of a name may be typed for it by first letters: a letter for each Chinese character, letters and digits as they
// are, all else left out. A character with several readings gives several texts, at most 16 for a name; characters
// behind that count by their most frequent reading. None for a name without a Chinese character. `folded` as FoldText
// gives it.
//     重庆m6螺丝 -> "zqm6ls", "cqm6ls"
[[nodiscard]] std::vector<std::string> PinyinInitials(std::string_view folded);

} // namespace jxc
