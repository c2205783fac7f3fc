// The purchase orders of a plan, as data: who writes them knows no screen.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace jxc {

// A row of a plan.
struct PlannedLine {
    int row = 0; // its place in the plan, from 1
    std::string code;
    std::int64_t product = 0; // fCpID
    std::string supplierName;
    std::int64_t supplier = 0; // Cards.fID, 0 for a supplier without a card
    double quantity = 0;
    double price = 0; // in home currency
    double amount = 0;
};

struct PlannedOrders {
    std::string refusal; // a text for people; "" when the orders were written
    int count = 0;
    std::string number; // which all of them carry
};

// Writes one unapproved purchase order, dated today, for each run of lines of one supplier, under keys of their own and one
// number. Refused when a product or a supplier is gone, and what a document's saving refuses: figures, date, number.
// Runs in the caller's transaction, which a refusal or a failure (a DatabaseError) leaves to be rolled back.
[[nodiscard]] PlannedOrders WriteOrders(const std::vector<PlannedLine>& lines);

} // namespace jxc
