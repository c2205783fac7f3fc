// Approval turns a saved document into stock, cost, order balances and account entries; reversal takes them
// back. Both run one fixed sequence of stages in one transaction: a stage that fails undoes everything and is
// named.
#pragma once

#include <functional>
#include <string>

#include "documents/document_data.h"

namespace jxc {

struct ApprovalResult {
    std::string refusal; // a text for people: nothing was done; "" when all was
    std::string warning; // what went wrong beside it and left the document done
};

// Told each stage before it runs: its name, its place from 0, and how many there are.
using ApprovalProgress = std::function<void(const std::string& stage, int at, int count)>;

// Approves the stored document, or takes its approval back, as the signed-in user. Each opens a transaction of its own, in
// which it writes the stock counters, the cost prices, the lines' cost, the order's balance, the account entry, the
// supplier history and the approver.
//
// Refused as soon as nobody is signed in, the document is not what `asLoaded` witnesses or not in the state for it, or it is
// dated before the period; a reversal also by another user than the approver or the supervisor, and while the document's
// account entry is approved in the funds module.
//
// A failure is a DatabaseError whose text names the stage and whose cause is nested in it: nothing was done. A
// CommitUnknown: the line was lost on the last step, and the document may be approved or not.
[[nodiscard]] ApprovalResult ApproveDocument(const DocumentData& document, const StoredDocument& asLoaded,
                                             const ApprovalProgress& progress = {});
[[nodiscard]] ApprovalResult ReverseDocument(const DocumentData& document, const StoredDocument& asLoaded,
                                             const ApprovalProgress& progress = {});

// Why nobody may take the approval back: the state, the user, or the account entry. For a person who is to be told before
// the question; the reversal asks itself, inside its transaction. "" when it may be. Errors are thrown.
[[nodiscard]] std::string ReversalRefusal(const DocumentData& document);

// "审核" or "反审核".
std::string ApprovalVerb(bool reversal);

} // namespace jxc
