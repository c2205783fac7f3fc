// A new company: what the accounting suite around this module would have set up before the first screen
// opens.
#pragma once

#include <functional>
#include <string>
#include <string_view>

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

} // namespace jxc
