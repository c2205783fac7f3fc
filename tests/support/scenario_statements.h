// The statements that scenarios ask again and again, by name: "rows stock" instead of a select over fourteen fields.
//
//     stock        counters, price and value of every product in every warehouse
//     prices       the whole price of every product
//     ledger       the account entries
//     suppliers    the supplier history
//     balances     what is left of every line of the orders
//     approvals    who has approved which document
//     headers      the headers of all documents
//     lines        their lines
//
// The last three are of the stock book; "headers of orders", "of enquiries" and "of plans" are of the other books,
// "lines of document 4" are those of one document of the stock book.
#pragma once

#include <string>
#include <vector>

namespace jxc::test {

// The statement of that name; a text that is no name as it is.
std::string ScenarioStatement(const std::string& text);
std::vector<std::string> ScenarioStatementNames(); // but for those of a single document

} // namespace jxc::test
