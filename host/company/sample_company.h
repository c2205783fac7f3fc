// The sample company: a trading house in computer parts that buys, sells wholesale and over the counter,
// leaves goods on consignment and assembles computers.
#pragma once

#include "host/company/default_settings.h"

namespace jxc {

extern const CompanyHeader kSampleCompany;

// Fills master data and people on top of the default settings, code lists included; no documents. Runs on the
// caller's transaction.
void FillSampleCompany(Connection& connection);

} // namespace jxc
