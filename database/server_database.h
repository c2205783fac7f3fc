// The database of a server before a company stands in it. Each call opens lines of its own.
#pragma once

#include <string>

namespace jxc {

struct ServerDatabase {
    enum class State { Missing, Empty, HoldsCompany };
    std::string name;
    State state;
};

// The database that the address leads to. A server that cannot be reached is a DatabaseError, a log-in that it refuses a
// LoginError.
[[nodiscard]] ServerDatabase FindServerDatabase(const std::string& address);

// Makes the missing database of the address, over the server's maintenance database. Throws DatabaseError.
void CreateServerDatabase(const std::string& address, const std::string& name);

} // namespace jxc
