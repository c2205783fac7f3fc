// The bounds of figures that people type: a bar code that ends up in the quantity cell is no quantity.
#pragma once

#include <string>

namespace jxc {

// Whether a figure reaches its bound, in either direction, or is no number. The bound 0 is none: nothing reaches it.
bool Reaches(double figure, double bound);

// What the person is told then: “数量”必须小于 100,000,000！
std::string BoundText(const std::string& caption, double bound);

} // namespace jxc
