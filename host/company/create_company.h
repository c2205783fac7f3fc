// A new company: what the accounting suite around this module would have set up before the first screen
// opens.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "host/company/new_company.h"

namespace jxc {

enum class CompanyKind {
    Bare,    // tables without rows
    Default, // document types, parameters, currencies, modules, dictionary, code lists; nothing of a trade
    Sample, // the same for a trading house in computer parts, with its products, warehouses, cards and people
};

// Creates the company's database and fills it. `dialect` 0: the file `path`, which must not exist yet. Any
// other value: the PostgreSQL database of the URI `path`, which must hold none of the system's tables. The
// books begin on the first of the current month (Today()). Tables come first, then all rows in one
// transaction; `observer` is told of each statement that fills them (see Connection::SetObserver). Throws
// DatabaseError; whatever fails, no file and no table of the company is left.
void CreateCompany(int dialect, const std::string& path, CompanyKind kind,
                   std::function<void(std::string_view)> observer = nullptr);

// The same, but set up as a person wishes it: CompanyKind::Default with his own figures, first warehouse and first user, and
// without a foreign currency. What the wishes hold is written as it is; frmHostNewCompany says what of it is refused.
void CreateCompany(int dialect, const std::string& path, const NewCompany& wishes,
                   std::function<void(std::string_view)> observer = nullptr);

} // namespace jxc
