#include "controls/bounds.h"

#include <cmath>

#include "base/text.h"

namespace jxc {

bool Reaches(double figure, double bound) {
    return bound > 0 && !(std::fabs(figure) < bound); // no number is not below either
}

std::string BoundText(const std::string& caption, double bound) {
    return "“" + caption + "”必须小于 " + FormatFixed(bound, 0, true) + "！";
}

} // namespace jxc
