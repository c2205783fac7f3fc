// What a company still lacks before its first document counts: the main window leads a new user through it.
#pragma once

#include <cstdint>
#include <string>

#include "database/connection.h"

namespace jxc {

struct FirstSteps {
    // A document has been approved, or a period closed: the company works, and nothing else is read.
    bool done = false;
    bool warehouse = false, product = false, card = false;
    bool opening = false; // an opening document was entered
    // The stock document entered last, which waits for its approval; 0 for none.
    std::int32_t waiting = 0;
    int waitingType = 0;
    std::string waitingNumber;
};

// The steps in their order; Document is entering one, or approving the one that waits.
enum class FirstStep { Warehouse, Product, Card, Opening, Document };

// Reads it in the session's dialect, a row of a table at most a question. Throws DatabaseError.
[[nodiscard]] FirstSteps ReadFirstSteps(Connection& connection);

[[nodiscard]] bool IsTaken(const FirstSteps& steps, FirstStep step);
// The one to be taken next: what waits for approval, else the first that is not taken.
[[nodiscard]] FirstStep NextStep(const FirstSteps& steps);

} // namespace jxc
