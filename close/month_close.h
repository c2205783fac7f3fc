// The steps of a month's close. The open book (tJXC_CkDj01/02) of the period goes to the closed tables, stamped with the
// month; opening documents of what is left in stock begin the next period.
//
// All throw DatabaseError. Those that belong to one transaction of the caller's say so.
#pragma once

#include "base/date.h"

namespace jxc {

// The first day of the month after the date's.
[[nodiscard]] Date NextMonth(Date date);

// Whether no document dated up to the period's end waits for its approval.
[[nodiscard]] bool AllDocumentsApproved(Date periodEnd);

// One opening document for each warehouse in tJXC_CkTj, approved by the session's user and dated the day after the
// period, with a line for each of its rows, into the work tables tJXC_CkDj_Tmp01/02, which it empties first. In a
// transaction of its own.
void BuildOpeningDocuments(Date periodEnd);

// Inside the caller's transaction: documents and lines up to the period's end, stamped with the month, in place of what the
// closed tables had of that month.
void BackupDocuments(Date month, Date periodEnd);
// The same: tJXC_CkTj, stamped, into tJXC_CkTj_Bak.
void BackupStockStatistics(Date month);
// The same: what each customer bought of each product, its value in home currency and its cost, into tJXC_KhTj_Bak.
void BackupCustomerStatistics(Date month, Date periodEnd);
// The same: the period's documents go, the opening documents of the work tables come, the period is the next month.
void FinishClose(Date month, Date periodEnd);

} // namespace jxc
