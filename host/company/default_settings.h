// The settings every company starts with.
#pragma once

#include <string>
#include <string_view>

#include "base/date.h"
#include "database/connection.h"
#include "settings/parameters.h"

namespace jxc {

// What stands at the head of every printout.
struct CompanyHeader {
    std::string_view fullName = "", name = "", province = "", city = "", address = "", postcode = "";
    std::string_view telephone = "", fax = "", web = "", mail = "", taxNumber = "", account = "";
};

// The first day of the month that Today is in.
Date FirstOfThisMonth();

// How the books begin.
struct BooksStart {
    Date firstDay = FirstOfThisMonth(); // of the first period, the first of a month
    int quantityDecimals = 2, priceDecimals = 2;
    std::string currency = "人民币"; // the home currency
    TaxWay taxWay = TaxWay::None;
    double taxRate = 0; // a fraction
    CostMethod costMethod = CostMethod::MovingAverage;
};

// Fills document types, system parameters, the start of the books, the home currency, modules, the company's header
// and its cash account. Writes tJXC_InvSet, tJXC_InvSys, SystemSets, Moneys, tSysFunc, myCompany and tAccounts, which
// must be empty, on the caller's transaction.
void FillDefaultSettings(Connection& connection, const CompanyHeader& header, const BooksStart& books = {});
// Adds the foreign currency that a company begins with whose home currency is 人民币.
void FillForeignCurrency(Connection& connection);

// The code of the cash account: where a retail warehouse puts its takings.
constexpr int kCashAccount = 1001;

} // namespace jxc
