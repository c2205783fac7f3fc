// Approval and reversal at the entry screen: the questions, the progress and what is told in the end.

#include <cstdlib>

#include "controls/view.h"
#include "documents/approval/approve_document.h"
#include "documents/document_entry.h"
#include "session/session.h"

namespace jxc {

namespace {

bool Agreed(const DocumentData& document, const std::string& verb) {
    const std::string effects = std::abs(document.type.fSetNo) < DocType::FirstBeyondStock
                                    ? "系统将同时进行库存数刷新、往来帐处理等操作，"
                                    : "";
    return AskOkCancel("单据" + verb, document.number + "：单据" + verb + "，" + effects + "确定？");
}

ApprovalResult WithProgress(const frmDj02& s, const DocumentData& document, bool reversal) {
    const ProgressEnds progressEnds;
    const auto show = [](const std::string& stage, int at, int count) {
        CurrentView().ShowProgress(stage, at, count);
    };
    return reversal ? ReverseDocument(document, s.asLoaded, show)
                    : ApproveDocument(document, s.asLoaded, show);
}

void ShowApproval(frmDj02& s, const std::string& approver) {
    s.cmdSave.enabled = false;
    s.lblSHR.caption = approver;
    s.lblSHR.visible = s.shpSHR.visible = !approver.empty();
    OfferNextActions(s);
}

} // namespace

void RunApproval(frmDj02& s, const DocumentData& document, bool reversal, bool prompted) {
    const std::string verb = ApprovalVerb(reversal);
    if (prompted && !reversal && !GoesOnWithNegativeStock(s, document))
        return;
    if (prompted && !Agreed(document, verb))
        return;
    ApprovalResult result;
    try {
        result = WithProgress(s, document, reversal);
    } catch (const DatabaseError& error) {
        return WarnOfFailure(s.title, error.what(), CauseOf(error));
    }
    if (!result.refusal.empty())
        return Warn(s.title, result.refusal);
    if (!result.warning.empty())
        Warn(s.title, result.warning);
    if (prompted)
        Inform(s.title, document.number + "：单据" + verb + "完毕！");
    ShowApproval(s, reversal ? "" : session.UserName);
}

void ReverseApproval(frmDj02& s, const DocumentData& document) {
    if (const std::string refusal = ReversalRefusal(document); !refusal.empty())
        return Warn(s.title, refusal);
    RunApproval(s, document, true, true);
}

} // namespace jxc
