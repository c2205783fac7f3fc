#include "documents/approval/run_approval.h"

#include <cstdlib>
#include <functional>
#include <vector>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "database/waiting.h"
#include "documents/approval/stages.h"
#include "documents/document_entry.h"
#include "master/supplier_history.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"
#include "settings/document_numbers.h"

namespace jxc {

namespace {

struct Stage {
    std::string name;
    std::function<void()> run;
    std::vector<Connection::Expected> reads = {}; // what no stage before it writes
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

// What an account entry needs for its number. Should the rule be another than at opening, its search is asked for
// then.
std::vector<Connection::Expected> NumberReads(const frmDj02& s, int series, bool reversal) {
    if (reversal)
        return {};
    std::vector<Connection::Expected> reads{{TypeRowStatement(series)}};
    if (const std::string number = NextNumberStatement(*s.dtpInvDate.date, s.accountRule, series);
        !number.empty())
        reads.push_back({number});
    return reads;
}

// What the type's row says is to be done, in its fixed order. `warning` takes what is to be told after the
// commit.
std::vector<Stage> StagesOf(const frmDj02& s, const std::string& stem, bool reversal, std::string& warning) {
    const TypeRow& type = s.type;
    std::vector<Stage> stages;
    const bool refersToOrder = !s.txtHtNo.text.empty();
    if (refersToOrder && s.invType != 31)
        stages.push_back({"刷新原相关订单的结余数",
                          [&s, reversal] { PostOrderBalance(s, reversal); },
                          {{OrderStatement(s.txtHtNo.text)}},
                          !reversal});
    if (refersToOrder && s.invType == 31 && !reversal)
        stages.push_back({"刷新销售订单的生产摘要", [&s] { MarkProduced(s); }, {}, false});
    if (type.fSetCkType1 >= 0 && !s.cboCkName.Chosen().empty())
        stages.push_back(
            {"更新仓库的产品“库存成本表”", [&s, reversal] { PostStock(s, reversal); }, StockStatements(s)});
    if (type.fSetTjType == 0 || type.fSetTjType == 1)
        stages.push_back({"更新“整体成本价”",
                          [&s, &warning, reversal] {
                              PostOverallCost(s, reversal);
                              if (s.invType == 1)
                                  warning = RefreshSupplierByDocument(s.Number(), reversal);
                          },
                          {{OverallLinesStatement(s)}}});
    if (type.fSetTjType == 2 && !reversal)
        stages.push_back({"读取“动态成本价”", [&s] { ReadCostPrice(s); }});
    if (const int series = AccountSeries(type); series == kSeriesCustomerAccount)
        stages.push_back({"应收应付款自动挂入“客户往来帐户”",
                          [&s, reversal] { PostCustomerAccount(s, reversal); },
                          NumberReads(s, series, reversal)});
    else if (series == kSeriesMoneyAccount)
        stages.push_back({"实收实付款自动挂入“内部资金帐户”",
                          [&s, reversal] { PostMoneyAccount(s, reversal); },
                          NumberReads(s, series, reversal)});
    stages.push_back({"单据审核标志处理", [&s, stem, reversal] { MarkApproved(s, stem, reversal); }});
    return stages;
}

void RunStage(const Stage& stage) {
    if (stage.failureMatters)
        return stage.run();
    try {
        Conn().Tolerantly(stage.run);
    } catch (const DatabaseError& error) {
        // The document is taken back all the same: an order that is gone has no balance to give back. Who gave the
        // waiting up wants nothing of it.
        if (std::string(error.what()) == kGaveUpWaiting)
            throw;
    }
}

std::string AccountEntryStatement(const frmDj02& s) {
    return "Select fChecker From tAccountDetail Where fInvID=" + InQuotes(s.Number()) + " And " +
           DayTest("fDate", "=", *s.dtpInvDate.date);
}

// Why the host's funds module forbids a reversal, "" when it does not. Errors are thrown: a check that could
// not be made must not let the reversal pass.
std::string CheckedAccountEntry(const frmDj02& s) {
    Recordset entry(Conn(), AccountEntryStatement(s));
    for (; !entry.AtEnd(); entry.MoveNext())
        if (!entry["fChecker"].AsText().empty())
            return "该单据所对应的“挂帐凭证”已经审核，不能进行单据反审核操作！\n\n"
                   "须先在《资金管理系统》的 [客户往来帐]/[内部资金帐] 中，反审核该单据的“挂帐凭证”。";
    return "";
}

std::string ApproverStatement(const std::string& stem, std::int32_t key) {
    return "select fInvSHR from " + stem + "01 Where fInvID=" + std::to_string(key);
}

// Runs the stages in one transaction. On a server a stage's writes may be on their way while the next ones
// run; each failure is told by the stage whose statement failed. The message for the user when nothing was
// done, with the engine's reason in `cause`; "" on success.
std::string Post(const frmDj02& s, bool reversal, const std::string& verb, std::string& warning,
                 std::string& cause) {
    const std::string stem = BookStem(s.invType, false);
    const std::vector<Stage> stages = StagesOf(s, stem, reversal, warning);
    std::vector<Connection::Expected> together = CheckStatements(s, stem);
    if (reversal)
        together.push_back({AccountEntryStatement(s)});
    for (const Stage& stage : stages)
        together.insert(together.end(), stage.reads.begin(), stage.reads.end());
    const ProgressEnds progressEnds;
    try {
        Conn().Mark(-1);
        Transaction transaction(Conn());
        const ReadAhead ahead(Conn(), together);
        std::string refusal = ChangedMeanwhile(s, stem);
        if (refusal.empty())
            refusal = DatedBeforePeriod(s);
        if (refusal.empty() && reversal)
            refusal = CheckedAccountEntry(s);
        if (!refusal.empty())
            return refusal;
        for (size_t i = 0; i < stages.size(); ++i) {
            Conn().Mark(static_cast<int>(i));
            CurrentView().ShowProgress(stages[i].name, static_cast<int>(i), static_cast<int>(stages.size()));
            RunStage(stages[i]);
        }
        transaction.Commit();
        return "";
    } catch (const CommitUnknown& error) {
        cause = CauseOf(error);
        return CommitUnknownText(s, verb);
    } catch (const DatabaseError& error) {
        cause = CauseOf(error);
        const int failed = Conn().MarkOfFailure();
        if (failed < 0 || failed >= static_cast<int>(stages.size()))
            return error.what(); // before the first stage: it could not begin
        return stages[static_cast<size_t>(failed)].name + "错误，" + verb + "操作未完成！";
    }
}

void ShowApproval(frmDj02& s, const std::string& approver) {
    s.cmdSave.enabled = false;
    s.lblSHR.caption = approver;
    s.lblSHR.visible = s.shpSHR.visible = !approver.empty();
}

} // namespace

std::vector<Connection::Expected> CheckStatements(const frmDj02& s, const std::string& stem) {
    return {{ApproverStatement(stem, s.oldInvID)},
            {ParametersStatement()},
            {StoredHeaderStatement(stem, s.oldInvID)},
            {StoredLinesStatement(stem, s.oldInvID)}};
}

std::string ChangedMeanwhile(const frmDj02& s, const std::string& stem) {
    const Recordset row(Conn(), ApproverStatement(stem, s.oldInvID));
    if (row.AtEnd())
        return "该[单号]已不存在!";
    const bool approved = !row["fInvSHR"].AsText().empty();
    if (approved && s.InHand() != DocAction::Reverse)
        return "该单据已经审核！";
    if (!approved && s.InHand() == DocAction::Reverse)
        return "该单据尚未审核！";
    return ReadStored(stem, s.oldInvID) == s.asLoaded ? "" : "该单据已被其他用户修改，请重新打开！";
}

std::string DateRefusal(Date periodStart) {
    return "单据日期：不能小于本期起始日期 " + IsoText(periodStart) + "！";
}

std::string DatedBeforePeriod(const frmDj02& s) {
    const Date start = ReadParameters().periodStart;
    return *s.dtpInvDate.date < start ? DateRefusal(start) : "";
}

std::string CommitUnknownText(const frmDj02& s, const std::string& verb) {
    return "与服务器的连接在" + verb + "的最后一步中断，" + s.Number() + " 可能已经" + verb +
           "，也可能没有。请查询确认后再继续。";
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
    std::string cause;
    const std::string failure = Post(s, reversal, verb, warning, cause);
    if (!failure.empty()) {
        if (cause.empty())
            Warn(s.title, failure);
        else
            WarnOfFailure(s.title, failure, cause);
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
