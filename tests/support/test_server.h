// The PostgreSQL of tests and benchmarks: JXC_TEST_PG names it, a libpq URI of its maintenance database whose user
// may create databases.
#pragma once

#include <string>

namespace jxc::test {

// What JXC_TEST_PG says; "" when it names no server.
std::string TestServer();
// Runs a command on the maintenance database, or on another of the server. Throws DatabaseError.
void OnServer(const std::string& command, const std::string& database = "");
// The address of a database of the server.
std::string AddressOnServer(const std::string& database);

// A database of the server, empty or a copy of another, which nobody may be connected to then. It goes with the
// object, whoever is still connected.
class ServerDatabase {
  public:
    explicit ServerDatabase(const std::string& name, const std::string& copied = "template0");
    ~ServerDatabase();
    ServerDatabase(const ServerDatabase&) = delete;
    ServerDatabase& operator=(const ServerDatabase&) = delete;

    const std::string& Name() const { return name_; }
    std::string Address() const { return AddressOnServer(name_); }

  private:
    std::string name_;
};

} // namespace jxc::test
