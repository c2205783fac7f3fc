// Customers and suppliers of the sample company.
#pragma once

#include <string_view>

#include "database/connection.h"

namespace jxc {

// Fills cards and tJXC_KhAdd (delivery addresses), both empty before, on the caller's transaction.
void FillSampleCards(Connection& connection);

// A sample card by its code: its key in cards, and its company name.
struct SampleCard {
    int fID;
    std::string_view compName;
};
// Throws std::out_of_range for a code that no sample card has.
SampleCard SampleCardByCode(std::string_view compCode);

} // namespace jxc
