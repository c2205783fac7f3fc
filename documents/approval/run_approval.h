// Approval turns a saved document into stock, cost, order balances and account entries; reversal takes them
// back. Both run one fixed sequence of stages in one transaction: a stage that fails undoes everything and is
// named.
#pragma once

#include <string>
#include <vector>

#include "database/connection.h"
#include "documents/frmDj02.h"

namespace jxc {

// Runs the stages on the document in hand, approving or, with `reversal`, taking back. With `prompted` it
// asks first and tells the end. True when the document changed its state.
bool RunApproval(frmDj02& s, bool reversal, bool prompted);

// The reversal of the save command: refused while the document's account entry is approved in the funds
// module.
void ReverseApproval(frmDj02& s);

// Inside a transaction: what another user did to the stored document since it was loaded, as a message; ""
// when it is still the one that was loaded and in the state that the screen's Action needs.
std::string ChangedMeanwhile(const frmDj02& s, const std::string& stem);
// Inside a transaction: the refusal of a document dated before the period as it is now, which a close by another
// user may have moved since the screen was opened; "" when its date is in the period or later.
std::string DatedBeforePeriod(const frmDj02& s);
// The statements of these two checks, to be read ahead.
std::vector<Connection::Expected> CheckStatements(const frmDj02& s, const std::string& stem);
std::string DateRefusal(Date periodStart);
// What is told when a server was lost while `verb` (存盘, 审核 or 反审核) was on its way to be made lasting. To do it
// again is safe: a number that is taken and a document that is approved are refused.
std::string CommitUnknownText(const frmDj02& s, const std::string& verb);

} // namespace jxc
