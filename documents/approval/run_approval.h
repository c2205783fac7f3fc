// Approval turns a saved document into stock, cost, order balances and account entries; reversal takes them
// back. Both run one fixed sequence of stages in one transaction: a stage that fails undoes everything and is
// named.
#pragma once

#include <string>

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

} // namespace jxc
