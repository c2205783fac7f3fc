#include "settings/parameter_fields.h"

#include "base/text.h"

namespace jxc {

Guard TaxRateField::MustBeAFraction() {
    return {[this] {
                const double rate = Val(text);
                return !IsNumericText(text) || rate < 0 || rate >= 1;
            },
            "[税率]须为 0 至 1 之间的小数，例如 13% 请输入 0.13！", this};
}

} // namespace jxc
