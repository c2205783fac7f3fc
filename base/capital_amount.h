// Amounts in Chinese capital figures, as they stand on receipts and cheques so that nobody can alter them.
#pragma once

#include <string>

namespace jxc {

// "壹仟贰佰叁拾肆元零伍分" for 1234.05, "壹拾元整" for 10; a negative amount begins with "负". Rounded to cents, half away
// from zero. "" for what is not below 1e12 or not a number.
[[nodiscard]] std::string CapitalAmount(double amount);

} // namespace jxc
