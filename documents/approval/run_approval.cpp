#include "documents/approval/run_approval.h"

#include <cstdlib>
#include <functional>
#include <vector>

#include "controls/text.h"
#include "controls/view.h"
#include "documents/approval/stages.h"
#include "documents/document_entry.h"
#include "master/supplier_history.h"
#include "session/book.h"
#include "session/database/recordset.h"
#include "session/database/routines.h"
#include "session/session.h"

namespace jxc {

namespace {

struct Stage {
    std::string name;
    std::function<void()> run;
    bool failureMatters = true;
};

// The customer of the account entry: the chosen card, or the one that the list no longer offers. 0 for none.
std::int64_t AccountCustomer(const frmDj02& s) {
    if (!s.type.HasCustomer())
        return 0;
    return s.CustomerId() != 0 ? s.CustomerId() : static_cast<std::int64_t>(Val(s.txtKhSeek.tag));
}

// The money account of the first warehouse, 0 for none.
std::int64_t MoneyAccount(const frmDj02& s) {
    if (!s.type.HasFirstWarehouse())
        return 0;
    const Recordset warehouse(Conn(),
                              "Select fZhID from tJXC_Ck Where fCkName=" + InQuotes(s.cboCkName.Chosen()));
    return warehouse.AtEnd() ? 0 : warehouse["fZhID"].AsLong();
}

// Without a customer or an account nothing is entered. A reversal takes away whatever the approval entered,
// also when the warehouse has lost its account since.
void PostCustomerAccount(const frmDj02& s, bool reversal) {
    const std::int64_t customer = reversal ? 0 : AccountCustomer(s);
    if (reversal || customer > 0)
        PostAccountEntry(s, 0, s.type.fSetWlType == 1 ? 1 : 2, customer, reversal);
}

void PostMoneyAccount(const frmDj02& s, bool reversal) {
    const std::int64_t account = reversal ? 0 : MoneyAccount(s);
    if (reversal || account > 0)
        PostAccountEntry(s, 1, s.type.fSetZjType == 3 ? 2 : 1, account, reversal);
}

void MarkApproved(const frmDj02& s, const std::string& stem, bool reversal) {
    Conn().Execute("Update " + stem + "01 Set fInvSHR=" + InQuotes(reversal ? "" : session.UserName) +
                   " Where fInvID=" + std::to_string(s.oldInvID));
}

// What the type's row says is to be done, in its fixed order. `warning` takes what is to be told after the
// commit.
std::vector<Stage> StagesOf(const frmDj02& s, const std::string& stem, bool reversal, std::string& warning) {
    const TypeRow& type = s.type;
    std::vector<Stage> stages;
    const bool refersToOrder = !s.txtHtNo.text.empty();
    if (refersToOrder && s.invType != 31)
        stages.push_back(
            {"刷新原相关订单的结余数", [&s, reversal] { PostOrderBalance(s, reversal); }, !reversal});
    if (refersToOrder && s.invType == 31 && !reversal)
        stages.push_back({"刷新销售订单的生产摘要", [&s] { MarkProduced(s); }, false});
    if (type.fSetCkType1 >= 0 && !s.cboCkName.Chosen().empty())
        stages.push_back({"更新仓库的产品“库存成本表”", [&s, reversal] { PostStock(s, reversal); }});
    if (type.fSetTjType == 0 || type.fSetTjType == 1)
        stages.push_back({"更新“整体成本价”", [&s, &warning, reversal] {
                              PostOverallCost(s, reversal);
                              if (s.invType == 1)
                                  warning = RefreshSupplierByDocument(s.Number(), reversal);
                          }});
    if (type.fSetTjType == 2 && !reversal)
        stages.push_back({"读取“动态成本价”", [&s] { ReadCostPrice(s); }});
    if (type.fSetWlType == 1 || type.fSetWlType == 2)
        stages.push_back(
            {"应收应付款自动挂入“客户往来帐户”", [&s, reversal] { PostCustomerAccount(s, reversal); }});
    else if (type.fSetZjType == 3 || type.fSetZjType == 4)
        stages.push_back(
            {"实收实付款自动挂入“内部资金帐户”", [&s, reversal] { PostMoneyAccount(s, reversal); }});
    stages.push_back({"单据审核标志处理", [&s, stem, reversal] { MarkApproved(s, stem, reversal); }});
    return stages;
}

void RunStage(const Stage& stage) {
    if (stage.failureMatters) {
        stage.run();
        Conn().Flush();
        return;
    }
    try {
        Conn().Tolerantly(stage.run);
    } catch (const DatabaseError&) {
        // The document is taken back all the same: an order that is gone has no balance to give back.
    }
}

// Why the host's funds module forbids a reversal, "" when it does not. Errors are thrown: a check that could
// not be made must not let the reversal pass.
std::string CheckedAccountEntry(const frmDj02& s) {
    const Date day = *s.dtpInvDate.date;
    const std::string date = session.IsJet() ? " And fDate=#" + SlashText(day) + "#"
                                             : " And Convert(varchar(10),fDate,120)='" + IsoText(day) + "'";
    Recordset entry(Conn(), "Select fChecker From tAccountDetail Where fInvID='" + s.Number() + "'" + date);
    for (; !entry.AtEnd(); entry.MoveNext())
        if (!entry["fChecker"].AsText().empty())
            return "该单据所对应的“挂帐凭证”已经审核，不能进行单据反审核操作！\n\n"
                   "须先在《资金管理系统》的 [客户往来帐]/[内部资金帐] 中，反审核该单据的“挂帐凭证”。";
    return "";
}

// Runs the stages in one transaction. The message for the user when nothing was done, "" on success.
std::string Post(const frmDj02& s, bool reversal, const std::string& verb, std::string& warning) {
    const std::string stem = BookStem(s.invType, false);
    std::string stageName = "单据审核标志处理";
    try {
        Transaction transaction(Conn());
        std::string refusal = ChangedMeanwhile(s, stem);
        if (refusal.empty() && reversal)
            refusal = CheckedAccountEntry(s);
        if (!refusal.empty())
            return refusal;
        const std::vector<Stage> stages = StagesOf(s, stem, reversal, warning);
        for (size_t i = 0; i < stages.size(); ++i) {
            stageName = stages[i].name;
            CurrentView().ShowProgress(stageName, static_cast<int>(i), static_cast<int>(stages.size()));
            RunStage(stages[i]);
        }
        transaction.Commit();
        return "";
    } catch (const std::exception&) {
        return stageName + "错误，" + verb + "操作未完成！";
    }
}

void ShowApproval(frmDj02& s, const std::string& approver) {
    s.cmdSave.enabled = false;
    s.lblSHR.caption = approver;
    s.lblSHR.visible = s.shpSHR.visible = !approver.empty();
}

} // namespace

std::string ChangedMeanwhile(const frmDj02& s, const std::string& stem) {
    const std::string key = std::to_string(s.oldInvID);
    const Recordset row(Conn(), "select fInvSHR from " + stem + "01 Where fInvID=" + key);
    if (row.AtEnd())
        return "该[单号]已不存在!";
    const bool approved = !row["fInvSHR"].AsText().empty();
    if (approved && s.InHand() != DocAction::Reverse)
        return "该单据已经审核！";
    if (!approved && s.InHand() == DocAction::Reverse)
        return "该单据尚未审核！";
    return ReadStored(stem, s.oldInvID) == s.asLoaded ? "" : "该单据已被其他用户修改，请重新打开！";
}

bool RunApproval(frmDj02& s, bool reversal, bool prompted) {
    const std::string verb = reversal ? "反审核" : "审核";
    const std::string effects =
        std::abs(s.invType) < 10 ? "系统将同时进行库存数刷新、往来帐处理等操作，" : "";
    if (prompted && !AskOkCancel("单据" + verb, s.Number() + "：单据" + verb + "，" + effects + "确定？"))
        return false;
    if (session.UserName.empty()) {
        // Without a name the document would look unapproved while its effects stand.
        Warn(s.title, "请先登录用户，才能够" + verb + "单据！");
        return false;
    }
    std::string warning;
    const std::string failure = Post(s, reversal, verb, warning);
    CurrentView().ShowProgress("", 0, 0);
    if (!failure.empty()) {
        Warn(s.title, failure);
        return false;
    }
    if (!warning.empty())
        Warn(s.title, warning);
    if (prompted)
        Inform(s.title, s.Number() + "：单据" + verb + "完毕！");
    ShowApproval(s, reversal ? "" : session.UserName);
    return true;
}

void ReverseApproval(frmDj02& s) {
    const std::string approver = s.lblSHR.caption;
    if (approver.empty())
        return Warn(s.title, "该单据尚未审核！");
    if (session.UserName != session.ZgName && session.UserName != approver) {
        Warn(s.title, "反审核：必须是“系统管理员”或者是该单据原“审核人”，才能够操作！");
        return;
    }
    const std::string refusal = CheckedAccountEntry(s);
    if (refusal.empty())
        RunApproval(s, true, true);
    else
        Warn(s.title, refusal);
}

} // namespace jxc
