// The people who may sign in to a company.
#pragma once

#include <string>
#include <vector>

namespace jxc {

struct CompanyUser {
    std::string name;
    std::string rights; // myPower
    bool supervisor = false;
};

// In the order in which they were entered. The session's connection must be open.
std::vector<CompanyUser> CompanyUsers();
// The supervisor's name; of a company that names none, the first user's.
std::string SupervisorOf(const std::vector<CompanyUser>& users);

} // namespace jxc
