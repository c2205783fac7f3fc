#include "documents/document_state.h"

#include "session/session.h"

namespace jxc {

namespace {

struct Rule {
    const char* refusal = "";
    bool offered = true; // by the list
    bool canSave = true; // at the entry screen
};

constexpr int kStates = 9;
constexpr int kActions = 6;

constexpr Rule kFree{};
constexpr Rule kShown{"", true, false}; // a query has nothing to save
constexpr Rule kNotOffered{"", false};
constexpr Rule kGone{"该[单号]已不存在!"};
constexpr Rule kGoneShown{"该[单号]已不存在!", true, false};
constexpr Rule kApproved{"该单据已经审核！"};
constexpr Rule kApprovedDone{"该单据已经审核！", true, false}; // what the entry screen was opened for is done
constexpr Rule kNotApproved{"该单据尚未审核！"};
constexpr Rule kNotItsApprover{"反审核：必须是“系统管理员”或者是该单据原“审核人”，才能够操作！"};
constexpr Rule kEntryChecked{
    "该单据所对应的“挂帐凭证”已经审核，不能进行单据反审核操作！\n\n"
    "须先在《资金管理系统》的 [客户往来帐]/[内部资金帐] 中，反审核该单据的“挂帐凭证”。"};
constexpr Rule kChanged{"该单据已被其他用户修改，请重新打开！"};
constexpr Rule kBeforePeriod{"单据日期：不能小于本期起始日期 %1！"};
constexpr Rule kChooseToChange{"请选择修改单据！"};
constexpr Rule kChooseToDelete{"请选择删除单据！"};
constexpr Rule kChooseToApprove{"请选择审核单据！"};

// clang-format off
constexpr Rule kRules[kStates][kActions] = {
    //                    Query       New            Change           Delete           Approve           Reverse
    /* NotChosen */       {kShown,     kFree,         kChooseToChange, kChooseToDelete, kChooseToApprove, kFree},
    /* Gone */            {kGoneShown, kGone,         kGone,           kGone,           kGone,            kGone},
    /* Open */            {kShown,     kFree,         kFree,           kFree,           kFree,            kNotApproved},
    /* Approved */        {kShown,     kFree,         kApproved,       kApproved,       kApprovedDone,    kFree},
    /* ApprovedByOther */ {kShown,     kFree,         kApproved,       kApproved,       kApprovedDone,    kNotItsApprover},
    /* EntryChecked */    {kShown,     kFree,         kApproved,       kApproved,       kApprovedDone,    kEntryChecked},
    /* Changed */         {kShown,     kFree,         kChanged,        kChanged,        kChanged,         kChanged},
    /* BeforePeriod */    {kShown,     kBeforePeriod, kBeforePeriod,   kBeforePeriod,   kBeforePeriod,    kBeforePeriod},
    /* Closed */          {kShown,     kNotOffered,   kNotOffered,     kNotOffered,     kNotOffered,      kNotOffered},
};
// clang-format on
static_assert(static_cast<int>(DocState::Closed) + 1 == kStates);
static_assert(static_cast<int>(DocAction::Reverse) + 1 == kActions);

const Rule& RuleOf(DocState state, DocAction action) {
    return kRules[static_cast<int>(state)][static_cast<int>(action)];
}

} // namespace

std::string ActionWord(DocAction action) {
    static const char* const words[] = {"查询", "新增", "修改", "删除", "审核", "反审核"};
    return words[static_cast<int>(action)];
}

DocState StateByApprover(const std::string& approver) {
    if (approver.empty())
        return DocState::Open;
    const bool own = session.UserName == session.ZgName || session.UserName == approver;
    return own ? DocState::Approved : DocState::ApprovedByOther;
}

std::string RefusalIn(DocState state, DocAction action, Date periodStart) {
    std::string text = RuleOf(state, action).refusal;
    if (const size_t day = text.find("%1"); day != std::string::npos)
        text.replace(day, 2, IsoText(periodStart));
    return text;
}

bool IsOfferedByList(DocState state, DocAction action) {
    return RuleOf(state, action).offered;
}

bool CanBeSaved(DocState state, DocAction action) {
    return RuleOf(state, action).canSave;
}

} // namespace jxc
