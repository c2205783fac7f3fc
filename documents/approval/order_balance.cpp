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

void PostOrderBalance(const frmDj02& s, bool reversal) {
    const std::int64_t order = OrderKey(s.txtHtNo.text);
    if (order == 0)
        throw DatabaseError("订单号 " + s.txtHtNo.text + " 不存在 ！");
    const std::string key = std::to_string(order);
    for (int row = 1; row <= s.Grid2.RowCount(); ++row) {
        const double quantity = s.Grid2.Number(row, line::kQuantity);
        const std::string amount = reversal ? "(" + NumberText(-quantity) + ")" : NumberText(quantity);
        Conn().Execute("Update tJXC_CkHt02 Set fInvSL2=fInvSL2-" + amount + " Where fInvID=" + key +
                       " And fInvSL2>0 And fCpID=" + s.Grid2.Text(row, line::kProduct));
    }
    Conn().Execute("Update tJXC_CkHt02 Set fInvSL2=0 Where fInvID=" + key +
                   " And fInvSL2<0.000000001"); // what is left of binary fractions is nothing
}

void MarkProduced(const frmDj02& s) {
    const std::int64_t order = OrderKey(s.txtHtNo.text);
    const auto product = static_cast<std::int64_t>(
        Val(DbScalar("Select fCpID From tJXC_Cp Where fCpCode=" + InQuotes(s.txtCpCode.text))));
    if (order > 0 && product > 0)
        Conn().Execute("Update tJXC_CkHt02 Set fInvOther1='生产完毕' Where fInvID=" + std::to_string(order) +
                       " And fCpID=" + std::to_string(product));
}

} // namespace jxc
