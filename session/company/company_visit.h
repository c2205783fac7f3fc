// One visit of a host to its company: the connection lives as long as the screen that is shown.
#pragma once

#include <functional>

namespace jxc {

// Opens the company that the session's properties name, fills CompanyFieldList, runs `show` and closes the
// company again. What goes wrong, in opening or in `show`, is told in a message box; nothing is thrown but the
// ScreenError of a host that has put no view in use. A visit during another is refused by a message and touches
// nothing.
void VisitCompany(const std::function<void()>& show);

} // namespace jxc
