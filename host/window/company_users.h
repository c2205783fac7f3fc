// The people who may sign in to a company.
#pragma once

#include <string>
#include <vector>

namespace jxc {

// Those entered as users; of a company without users the handlers of its documents, and one nameless
// administrator when it has none. The supervisor stands first. The session's connection must be open.
std::vector<std::string> CompanyUsers();

} // namespace jxc
