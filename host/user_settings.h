// The company's users: who may do what, and who is the supervisor. A host sets the properties of lzJxc from
// it when a user signs in. All routines work on the session's connection and add the table of users to a
// company that lacks it.
#pragma once

#include <string>
#include <vector>

namespace jxc {

// What one digit of the rights string stands for.
struct RightPlace {
    int position; // from 1
    std::string name;
};
// Adding, changing and deleting warehouses, then the modules in use, by position and in the session's
// language.
std::vector<RightPlace> RightPlaces();
// A rights string with every right.
std::string AllRights();

bool NoUsers();
// Who is signed in to a company without users becomes its first one, supervisor with all rights. Opens a transaction.
void EnterFirstUser();

struct UserRights {
    bool known = false; // false: the company has users, and this is none of them
    std::string user;   // as the company writes him
    std::string myPower = "0000";
    std::string ZgName; // the supervisor
};
// In a company without users whoever signs in is the supervisor with all rights.
UserRights UserSettings(const std::string& user);

} // namespace jxc
