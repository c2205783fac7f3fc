// People of the sample company: departments, staff, system users, salespeople and their levels.
#pragma once

#include "database/connection.h"

namespace jxc {

// Fills tRs_Bm, tRsBasic, Employees, tJXC_Yj_Jbr and tJXC_Yj_SetJb, all empty before, on the caller's
// transaction.
void FillSamplePeople(Connection& connection);

} // namespace jxc
