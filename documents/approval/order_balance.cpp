// The open balance of orders: what a receipt, issue or dispatch that refers to an order takes from it.

#include "base/text.h"
#include "database/recordset.h"
#include "documents/approval/stages.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

std::string OrderStatement(const std::string& orderNumber) {
    return "Select fInvID From tJXC_CkHt01 Where fInvNo=" + InQuotes(orderNumber) + " Order By fInvID Desc";
}

namespace {

std::int64_t OrderKey(const std::string& orderNumber) {
    const Recordset row(Conn(), OrderStatement(orderNumber));
    return row.AtEnd() ? 0 : row["fInvID"].AsLong();
}

} // namespace

void PostOrderBalance(const DocumentData& document, bool reversal) {
    const std::int64_t order = OrderKey(document.order);
    if (order == 0)
        throw DatabaseError("订单号 " + document.order + " 不存在 ！");
    const std::string key = std::to_string(order);
    for (const DocumentLine& line : document.lines) {
        const std::string amount =
            reversal ? "(" + NumberText(-line.quantity) + ")" : NumberText(line.quantity);
        Conn().Execute("Update tJXC_CkHt02 Set fInvSL2=fInvSL2-" + amount + " Where fInvID=" + key +
                       " And fInvSL2>0 And fCpID=" + std::to_string(line.product));
    }
    Conn().Execute("Update tJXC_CkHt02 Set fInvSL2=0 Where fInvID=" + key +
                   " And fInvSL2<0.000000001"); // what is left of binary fractions is nothing
}

void MarkProduced(const DocumentData& document) {
    const std::int64_t order = OrderKey(document.order);
    const auto product = static_cast<std::int64_t>(
        Val(DbScalar("Select fCpID From tJXC_Cp Where fCpCode=" + InQuotes(document.finishedProductCode))));
    if (order > 0 && product > 0)
        Conn().Execute("Update tJXC_CkHt02 Set fInvOther1='生产完毕' Where fInvID=" + std::to_string(order) +
                       " And fCpID=" + std::to_string(product));
}

} // namespace jxc
