// The company under check: its parameters and document types, which all parts go by, read once; and the parts.
#pragma once

#include <map>
#include <optional>
#include <set>

#include "base/date.h"
#include "host/check/findings.h"
#include "settings/type_row.h"

namespace jxc {

struct CheckedType {
    bool used = false;
    TypeRow row;
};
// By number: the row in use, or the first where none is.
using CheckedTypes = std::map<int, CheckedType>;

struct CheckedCompany {
    CheckedTypes types;
    Rows parameters;                 // as they stand: one row when all is well
    std::optional<Date> periodStart; // nothing where the parameters do not tell it

    // A field of the first row of parameters; nothing without one.
    Value Parameter(const std::string& field) const;
};

// Reads it. What is wrong with it is for CheckSettings to tell.
CheckedCompany ReadCompany(Findings& findings);

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
// The types that are and always were issues, as a list for a statement.
std::string TypesOfIssuesOnly(const CheckedTypes& types);

// The parts of the check, in the order of the report.
void CheckSettings(const CheckedCompany& company, Findings& findings);
void CheckMasters(Findings& findings);
void CheckBooks(const CheckedCompany& company, Findings& findings);
void CheckPairs(const CheckedCompany& company, Findings& findings);
void CheckStock(const CheckedCompany& company, Findings& findings);
void CheckCosts(const CheckedCompany& company, Findings& findings);
void CheckOrders(const CheckedCompany& company, Findings& findings);
void CheckLedger(const CheckedCompany& company, Findings& findings);
void CheckSupplierHistory(const CheckedCompany& company, Findings& findings);

} // namespace jxc
