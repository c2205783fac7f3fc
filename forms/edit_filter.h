// What may be typed into a text box: lengths in bytes, numbers, no quotes.
#pragma once

#include <string>

#include "controls/control.h"

namespace jxc {

// The filter of a key before it takes effect; a refused key leaves `keyCode` 0. `keyCode` is a code point, 22
// a paste; other control keys pass. `maxBytes` 0 lets everything pass. With `numeric` the text must stay one
// number, "E" is refused, and a second point moves the first one. A paste that does not fit shows message 44.
void EditKeyFilter(EditBox& box, int& keyCode, int maxBytes, bool numeric);
// Has the filter run at every key of the box.
void FilterKeys(TextBox& box, int maxBytes, bool numeric = false);

// True when the text holds no single quote; otherwise shows message 101. Boxes whose value reaches a
// statement keep the focus on false.
bool CheckNoQuote(const std::string& text);

} // namespace jxc
