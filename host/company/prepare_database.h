// The database of a server in which a company is to be made.
#pragma once

#include <string>

namespace jxc {

// Makes sure that the database is there, can be reached and holds no company. A database that is missing is made with
// `create`, or after the question at a terminal; otherwise, as for every other obstacle, a DatabaseError in plain words.
void PrepareDatabase(const std::string& address, bool create);

} // namespace jxc
