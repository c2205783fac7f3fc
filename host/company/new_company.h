// What a person says of his own company when he sets it up: with it the first document can be entered.
#pragma once

#include <string>

#include "host/company/default_settings.h"

namespace jxc {

struct NewCompany {
    std::string name; // in short and in full; the full one can be changed later
    BooksStart books;
    std::string warehouseCode = "01", warehouse = "总部仓";
    std::string user;         // the first one: supervisor with all rights
    std::string passwordHash; // see HashOfPassword; "" for no pass word
};

// Adds the first warehouse, of the head office's kind, and the first user. Writes tJXC_Ck and tHostUser, which must be
// empty, on the caller's transaction; the modules must stand already (FillDefaultSettings).
void FillNewCompany(Connection& connection, const NewCompany& company);

} // namespace jxc
