// What must always be true of a company's books, whatever was done to them. Both work on the open session connection
// and only read: in the transaction that is open, else in one of their own that nobody waits for.
#pragma once

#include <string>
#include <vector>

namespace jxc {

// What the engine itself finds damaged, a line each: the file's structure, texts that are none.
std::vector<std::string> CheckEngine();

// The books: parameters, types and master data; headers, lines and their copies, amounts, totals, pairs and kits; stock
// counters against a recount of the approved lines, prices and values against the counters, costs as far as they are
// determined; balances of orders, the ledger, the history of suppliers. A line per finding, with the document's number
// and what to do. `notes` takes the states that screens themselves may leave and a person may want to act on.
std::vector<std::string> CheckCompany(std::vector<std::string>* notes = nullptr);

} // namespace jxc
