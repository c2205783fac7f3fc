// The document types as the check needs them: the row in use of each, or the first where none is.
#pragma once

#include <map>
#include <set>

#include "host/check/findings.h"
#include "settings/type_row.h"

namespace jxc {

struct CheckedType {
    bool used = false;
    TypeRow row;
};
using CheckedTypes = std::map<int, CheckedType>;

// Reads them, without a finding.
CheckedTypes ReadTypes(Findings& findings);

// The values that a column has in the company's row and in the row that the type is shipped with: a document may
// have been approved before somebody changed the row.
std::set<int> ValuesOf(const CheckedTypes& types, int type, int TypeRow::*column);

// The types that a condition holds for.
template <typename Condition>
std::vector<int> TypesWhere(const CheckedTypes& types, const Condition& condition) {
    std::vector<int> found;
    for (const auto& [number, type] : types)
        if (condition(number, type.row))
            found.push_back(number);
    return found;
}

} // namespace jxc
