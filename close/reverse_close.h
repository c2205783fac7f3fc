// The steps that take the last close back. All of them belong into one transaction of the caller's and throw DatabaseError.
// `month` is the company's month (fSysDate); the one that comes back is the month before it.
#pragma once

#include <string>
#include <vector>

#include "base/date.h"

namespace jxc {

// The last day of the month before.
[[nodiscard]] Date MonthBefore(Date month);

// The numbers of the opening documents that are not what the close made of the month before: somebody has entered or
// changed them, and ClearOpeningDocuments takes that work too.
[[nodiscard]] std::vector<std::string> OpeningDocumentsByHand(Date month);

// Deletes the documents of type 0 and their lines.
void ClearOpeningDocuments();
// Brings the documents and lines of the month before back from the closed tables; they keep its stamp.
void RestoreDocuments(Date month);
// Deletes them there.
void ClearClosedDocuments(Date month);
// Deletes that month's stock statistics. Those of customers stay until the month is closed again.
void ClearClosedStatistics(Date month);
// The period is the month before.
void StepBackPeriod(Date month);

} // namespace jxc
