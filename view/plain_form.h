// The window of a screen that has no form file: laid out from the screen's arrangement, its captions and kinds of
// controls.
#pragma once

#include <memory>

#include <QWidget>

#include "controls/arrangement.h"

namespace jxc {

// A form with a widget for every control of the arrangement, named after it, in an order of tabs that goes from field to
// field and from the last one to the commands.
std::unique_ptr<QWidget> PlainForm(const Arrangement& arrangement);

} // namespace jxc
