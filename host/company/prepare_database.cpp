#include "host/company/prepare_database.h"

#include <unistd.h>

#include <iostream>

#include "database/database_error.h"
#include "database/server_address.h"
#include "database/server_database.h"

namespace jxc {

namespace {

bool WantsIt(const std::string& shown) {
    if (!isatty(STDIN_FILENO))
        return false;
    std::cout << "数据库 " << shown << " 不存在。现在建立吗？(y/n) " << std::flush;
    std::string answer;
    return std::getline(std::cin, answer) && (answer == "y" || answer == "Y");
}

} // namespace

void PrepareDatabase(const std::string& address, bool create) {
    const ServerDatabase found = FindServerDatabase(address);
    switch (found.state) {
    case ServerDatabase::State::Empty:
        return;
    case ServerDatabase::State::HoldsCompany:
        throw DatabaseError("数据库 " + found.name + " 中已有帐套，没有改动；请用另一个数据库。");
    case ServerDatabase::State::Missing:
        break;
    }
    if (!create && !WantsIt(ShownAddress(address)))
        throw DatabaseError("数据库 " + found.name + " 不存在；请先建立，或加 --create-database 一并建立。");
    CreateServerDatabase(address, found.name);
}

} // namespace jxc
