// The company's header on every printout.
#pragma once

namespace jxc {

// Appends the company's name, addresses, numbers and accounts to the session's CompanyFieldList, alternating
// key and value, keys as "<text>" in the session's language. Without a company row nothing is added.
void CompanyFields();

} // namespace jxc
