#include "documents/approval/approve_document.h"

#include <vector>

#include "database/recordset.h"
#include "database/waiting.h"
#include "documents/approval/stages.h"
#include "documents/audit_document.h"
#include "documents/document_checks.h"
#include "master/supplier_history.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/messages.h"
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

// The money account of the first warehouse, 0 for none.
std::int64_t MoneyAccount(const DocumentData& document) {
    if (!document.type.HasFirstWarehouse())
        return 0;
    const Recordset warehouse(Conn(),
                              "Select fZhID from tJXC_Ck Where fCkName=" + InQuotes(document.warehouse));
    return warehouse.AtEnd() ? 0 : warehouse["fZhID"].AsLong();
}

// Without a customer or an account nothing is entered. A reversal takes away whatever the approval entered,
// also when the warehouse has lost its account since.
void PostCustomerAccount(const DocumentData& document, bool reversal) {
    const std::int64_t customer = reversal || !document.type.HasCustomer() ? 0 : document.customer;
    if (reversal || customer > 0)
        PostAccountEntry(document, AccountKind::Customer,
                         document.type.fSetWlType == Owed::Receivable ? EntrySide::In : EntrySide::Out,
                         customer, reversal);
}

void PostMoneyAccount(const DocumentData& document, bool reversal) {
    const std::int64_t account = reversal ? 0 : MoneyAccount(document);
    if (reversal || account > 0)
        PostAccountEntry(document, AccountKind::Money,
                         document.type.fSetZjType == Cash::Paid ? EntrySide::Out : EntrySide::In, account,
                         reversal);
}

void MarkApproved(const DocumentData& document, bool reversal) {
    Conn().Execute("Update " + StemOf(document) +
                   "01 Set fInvSHR=" + InQuotes(reversal ? "" : session.UserName) +
                   " Where fInvID=" + std::to_string(document.key));
}

// What an account entry needs for its number. Should the rule be another than at opening, its search is asked for
// then.
std::vector<Connection::Expected> NumberReads(const DocumentData& document, int series, bool reversal) {
    if (reversal)
        return {};
    std::vector<Connection::Expected> reads{{TypeRowStatement(series)}};
    if (const std::string number = NextNumberStatement(document.date, document.accountRule, series);
        !number.empty())
        reads.push_back({number});
    return reads;
}

// What the type's row says is to be done, in its fixed order. `warning` takes what is to be told after the
// commit. Document, witness and warning must outlive the stages.
std::vector<Stage> StagesOf(const DocumentData& document, const StoredDocument& asLoaded, bool reversal,
                            std::string& warning) {
    const TypeRow& type = document.type;
    std::vector<Stage> stages;
    const bool refersToOrder = !document.order.empty();
    if (refersToOrder && type.fSetNo != DocType::Assembly)
        stages.push_back({"刷新原相关订单的结余数",
                          [&document, reversal] { PostOrderBalance(document, reversal); },
                          {{OrderStatement(document.order)}},
                          !reversal});
    if (refersToOrder && type.fSetNo == DocType::Assembly && !reversal)
        stages.push_back({"刷新销售订单的生产摘要", [&document] { MarkProduced(document); }, {}, false});
    if (type.fSetCkType1 >= WarehouseKind::Any && !document.warehouse.empty())
        stages.push_back({"更新仓库的产品“库存成本表”",
                          [&document, reversal] { PostStock(document, reversal); },
                          StockStatements(document, asLoaded)});
    if (type.ReceivesStock())
        stages.push_back({"更新“整体成本价”",
                          [&document, &warning, reversal] {
                              PostOverallCost(document, reversal);
                              if (document.type.fSetNo == DocType::Receipt)
                                  warning = RefreshSupplierByDocument(document.number, reversal);
                          },
                          {{OverallLinesStatement(document)}}});
    if (type.fSetTjType == Statistics::Issue && !reversal)
        stages.push_back({"读取“动态成本价”", [&document] { ReadCostPrice(document); }});
    if (const int series = AccountSeries(type); series == kSeriesCustomerAccount)
        stages.push_back({"应收应付款自动挂入“客户往来帐户”",
                          [&document, reversal] { PostCustomerAccount(document, reversal); },
                          NumberReads(document, series, reversal)});
    else if (series == kSeriesMoneyAccount)
        stages.push_back({"实收实付款自动挂入“内部资金帐户”",
                          [&document, reversal] { PostMoneyAccount(document, reversal); },
                          NumberReads(document, series, reversal)});
    stages.push_back({"单据审核标志处理", [&document, reversal] {
                          MarkApproved(document, reversal);
                          AuditApproval(document, reversal);
                      }});
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

std::string AccountEntryStatement(const DocumentData& document) {
    return "Select fChecker From tAccountDetail Where fInvID=" + InQuotes(document.number) + " And " +
           DayTest("fDate", "=", document.date);
}

// Whether the host's funds module forbids a reversal. Errors are thrown: a check that could not be made must not let
// the reversal pass.
std::string CheckedAccountEntry(const DocumentData& document) {
    Recordset entry(Conn(), AccountEntryStatement(document));
    for (; !entry.AtEnd(); entry.MoveNext())
        if (!entry["fChecker"].AsText().empty())
            return RefusalIn(DocState::EntryChecked, DocAction::Reverse);
    return "";
}

// Why the user may not take back a document with its approver.
std::string ApproverRefusal(const DocumentData& document) {
    return RefusalIn(StateByApprover(document.approver), DocAction::Reverse);
}

// Without a name the document would look unapproved while its effects stand.
std::string NobodySignedIn(bool reversal) {
    return session.UserName.empty() ? "请先登录用户，才能够" + ApprovalVerb(reversal) + "单据！" : "";
}

std::string RefusalMeanwhile(const DocumentData& document, const StoredDocument& asLoaded, bool reversal) {
    const DocAction action = reversal ? DocAction::Reverse : DocAction::Approve;
    std::string refusal = ChangedMeanwhile(document, asLoaded, action);
    if (refusal.empty())
        refusal = DatedBeforePeriod(document, action);
    if (refusal.empty() && reversal)
        refusal = CheckedAccountEntry(document);
    return refusal;
}

// Runs the stages in one transaction, or says why not. On a server a stage's writes may be on their way while the next
// ones run; each failure belongs to the stage whose statement failed.
std::string RunStages(const std::vector<Stage>& stages, const DocumentData& document,
                      const StoredDocument& asLoaded, bool reversal, const ApprovalProgress& progress) {
    std::vector<Connection::Expected> together = CheckStatements(document);
    together.push_back(AuditRead());
    if (reversal)
        together.push_back({AccountEntryStatement(document)});
    for (const Stage& stage : stages)
        together.insert(together.end(), stage.reads.begin(), stage.reads.end());
    Conn().Mark(-1);
    Transaction transaction(Conn());
    const ReadAhead ahead(Conn(), together);
    std::string refusal = RefusalMeanwhile(document, asLoaded, reversal);
    if (!refusal.empty())
        return refusal;
    const int count = static_cast<int>(stages.size());
    for (int at = 0; at < count; ++at) {
        const Stage& stage = stages[static_cast<size_t>(at)];
        Conn().Mark(at);
        if (progress)
            progress(stage.name, at, count);
        RunStage(stage);
    }
    transaction.Commit();
    return "";
}

ApprovalResult Post(const DocumentData& document, const StoredDocument& asLoaded, bool reversal,
                    const ApprovalProgress& progress) {
    ApprovalResult result{NobodySignedIn(reversal), ""};
    if (!result.refusal.empty())
        return result;
    const std::string verb = ApprovalVerb(reversal);
    const std::vector<Stage> stages = StagesOf(document, asLoaded, reversal, result.warning);
    try {
        result.refusal = RunStages(stages, document, asLoaded, reversal, progress);
    } catch (const CommitUnknown&) {
        std::throw_with_nested(CommitUnknown(CommitUnknownText(document.number, verb)));
    } catch (const DatabaseError&) {
        const int failed = Conn().MarkOfFailure();
        if (failed < 0 || failed >= static_cast<int>(stages.size()))
            throw; // before the first stage: it could not begin
        std::throw_with_nested(
            DatabaseError(stages[static_cast<size_t>(failed)].name + "错误，" + verb + "操作未完成！"));
    }
    return result;
}

} // namespace

std::string ApprovalVerb(bool reversal) {
    return reversal ? "反审核" : "审核";
}

std::string ReversalRefusal(const DocumentData& document) {
    const std::string refusal = ApproverRefusal(document);
    return refusal.empty() ? CheckedAccountEntry(document) : refusal;
}

ApprovalResult ApproveDocument(const DocumentData& document, const StoredDocument& asLoaded,
                               const ApprovalProgress& progress) {
    return Post(document, asLoaded, false, progress);
}

ApprovalResult ReverseDocument(const DocumentData& document, const StoredDocument& asLoaded,
                               const ApprovalProgress& progress) {
    if (const std::string refusal = ApproverRefusal(document); !refusal.empty())
        return {refusal, ""};
    return Post(document, asLoaded, true, progress);
}

} // namespace jxc
