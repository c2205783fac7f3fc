// The settings every company starts with.
#pragma once

#include <string_view>

#include "database/connection.h"

namespace jxc {

// What stands at the head of every printout.
struct CompanyHeader {
    std::string_view fullName = "", name = "", province = "", city = "", address = "", postcode = "";
    std::string_view telephone = "", fax = "", web = "", mail = "", taxNumber = "", account = "";
};

// Fills document types, system parameters, the start of the books (the first of the current month),
// currencies, modules, the company's header and its cash account. Writes tJXC_InvSet, tJXC_InvSys,
// SystemSets, Moneys, tSysFunc, myCompany and tAccounts, which must be empty, on the caller's transaction.
void FillDefaultSettings(Connection& connection, const CompanyHeader& header);

// The code of the cash account: where a retail warehouse puts its takings.
constexpr int kCashAccount = 1001;

} // namespace jxc
