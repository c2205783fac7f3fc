// What may be done with a stored document, as one table of its state and the action. The list of documents, the entry
// screen and the approval ask it; each knows the states that it can see.
#pragma once

#include <string>

#include "base/date.h"

namespace jxc {

// What the entry screen is opened for, and what a command does with a document.
enum class DocAction { Query = 0, New = 1, Change = 2, Delete = 3, Approve = 4, Reverse = 5 };
// "查询", "新增" ...: heads the screen and its messages behind the type's name.
std::string ActionWord(DocAction action);
inline bool IsEditing(DocAction action) {
    return action == DocAction::New || action == DocAction::Change;
}

enum class DocState {
    NotChosen,       // no document is in hand
    Gone,            // it was deleted meanwhile
    Open,            // not approved
    Approved,        // by the signed-in user, or by anybody when that is the supervisor
    ApprovedByOther, // by another user than the signed-in one, who is not the supervisor
    EntryChecked,    // approved, and so is its account entry in the funds module
    Changed,         // by another user since it was loaded
    BeforePeriod,    // dated before the period
    Closed           // in the book of closed periods
};

// Of a document with this approver, "" for none, as the signed-in user meets it.
DocState StateByApprover(const std::string& approver);

// Why the action is refused on a document in the state, as a text for people; "" when it is not. The text of BeforePeriod
// names the period's first day.
[[nodiscard]] std::string RefusalIn(DocState state, DocAction action, Date periodStart = {});

// Whether the list's command for the action can be clicked, and whether the entry screen opened for it can save: a command
// that stays enabled is refused with the text when it is clicked.
bool IsOfferedByList(DocState state, DocAction action);
bool CanBeSaved(DocState state, DocAction action);

} // namespace jxc
