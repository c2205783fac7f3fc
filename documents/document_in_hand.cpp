// What can be done next with the stored document that the screen shows: change, copy, approve or reverse it, as its state
// allows.

#include "controls/view.h"
#include "documents/document_entry.h"

namespace jxc {

namespace {

DocState StateInHand(const frmDj02& s) {
    if (s.oldInvID <= 0)
        return DocState::NotChosen;
    return s.JzState == 1 ? DocState::Closed : StateByApprover(s.lblSHR.caption);
}

// What the table neither refuses nor greys for a document in the state.
bool Allows(DocState state, DocAction action) {
    return state != DocState::NotChosen && IsOfferedByList(state, action) && RefusalIn(state, action).empty();
}

void Reopen(frmDj02& s, DocAction action) {
    s.Action = static_cast<int>(action);
    s.OldType = s.invType;
    s.Open();
}

} // namespace

void OfferNextActions(frmDj02& s) {
    const bool stored = s.InHand() != DocAction::New;
    const DocState state = StateInHand(s);
    for (Button* button : {&s.cmdChange, &s.cmdCopy, &s.cmdApprove, &s.cmdReverse})
        button->visible = stored;
    s.cmdChange.enabled = stored && s.InHand() != DocAction::Change && Allows(state, DocAction::Change);
    s.cmdApprove.enabled = stored && Allows(state, DocAction::Approve) &&
                           (s.InHand() != DocAction::Approve || !s.cmdSave.enabled);
    s.cmdReverse.enabled = stored && state != DocState::Open && Allows(state, DocAction::Reverse) &&
                           (s.InHand() != DocAction::Reverse || !s.cmdSave.enabled);
    // A count is of its day: a stocktake begins with the stock of today.
    s.cmdCopy.enabled = stored && state != DocState::NotChosen && !s.type.IsStocktake();
}

void TurnTo(frmDj02& s, DocAction action) {
    Reopen(s, action); // read anew: others may have worked on it meanwhile
    if (s.oldInvID <= 0)
        return;
    const std::string refusal = RefusalIn(StateInHand(s), action);
    if (refusal.empty())
        return;
    Warn(s.title, refusal);
    Reopen(s, DocAction::Query);
}

void CopyDocument(frmDj02& s) {
    Reopen(s, DocAction::New);
}

} // namespace jxc
