// How the program ends, for scripts that call it. 0: all went well.
#pragma once

namespace jxc {

constexpr int kFindings = 1; // the check of the books found something, the tour not what it should
constexpr int kUsage = 2;    // what was asked for cannot be understood
constexpr int kFailure = 3;  // or cannot be done

} // namespace jxc
