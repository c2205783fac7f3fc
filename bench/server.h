// Databases of the server that is measured.
#pragma once

#include <string>

namespace jxc::bench {

// Runs a command on the maintenance database that `server` names. Throws DatabaseError.
void OnServer(const std::string& server, const std::string& command);
// The address of a database of that server.
std::string AddressOnServer(const std::string& server, const std::string& database);

} // namespace jxc::bench
