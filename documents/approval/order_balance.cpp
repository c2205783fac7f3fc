// The open balance of orders: what a receipt, issue or dispatch that refers to an order takes from it.

#include <set>
#include <utility>
#include <vector>

#include "base/text.h"
#include "database/recordset.h"
#include "documents/approval/stages.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

std::string OrderStatement(const std::string& orderNumber) {
    return "Select fInvID,fKhID From tJXC_CkHt01 Where fInvNo=" + InQuotes(orderNumber) +
           " Order By fInvID Desc";
}

namespace {

// The orders of a number. Those of one plan share it, one to each supplier: then the product tells which is meant, and of
// several with it the customer does.
class OrdersOfNumber {
  public:
    OrdersOfNumber(const std::string& number, std::int64_t customer) {
        Recordset row(Conn(), OrderStatement(number));
        for (; !row.AtEnd(); row.MoveNext())
            keys_.insert(row["fKhID"].AsLong() == customer ? keys_.begin() + own_++ : keys_.end(),
                         row["fInvID"].AsLong());
        if (keys_.size() < 2)
            return;
        Recordset line(Conn(),
                       "Select fInvID,fCpID From tJXC_CkHt02 Where fInv1=0 And fInvID" + InKeys(keys_));
        for (; !line.AtEnd(); line.MoveNext())
            products_.insert({line["fInvID"].AsLong(), line["fCpID"].AsLong()});
    }

    const std::vector<std::int64_t>& Keys() const { return keys_; }
    // 0 when there is no order at all.
    std::int64_t Of(std::int64_t product) const {
        for (const std::int64_t key : keys_)
            if (products_.contains({key, product}))
                return key;
        return keys_.empty() ? 0 : keys_.front();
    }

  private:
    std::vector<std::int64_t> keys_; // the customer's first, each group from the last one back
    std::ptrdiff_t own_ = 0;
    std::set<std::pair<std::int64_t, std::int64_t>> products_; // order and product
};

} // namespace

void PostOrderBalance(const DocumentData& document, bool reversal) {
    const OrdersOfNumber orders(document.order, document.customer);
    if (orders.Keys().empty())
        throw DatabaseError("订单号 " + document.order + " 不存在 ！");
    for (const DocumentLine& line : document.lines) {
        const std::string amount =
            reversal ? "(" + NumberText(-line.quantity) + ")" : NumberText(line.quantity);
        Conn().Execute("Update tJXC_CkHt02 Set fInvSL2=fInvSL2-" + amount +
                       " Where fInvID=" + std::to_string(orders.Of(line.product)) +
                       " And fInvSL2>0 And fCpID=" + std::to_string(line.product));
    }
    for (const std::int64_t key : orders.Keys())
        Conn().Execute("Update tJXC_CkHt02 Set fInvSL2=0 Where fInvID=" + std::to_string(key) +
                       " And fInvSL2<0.000000001"); // what is left of binary fractions is nothing
}

void MarkProduced(const DocumentData& document) {
    const auto product = static_cast<std::int64_t>(
        Val(DbScalar("Select fCpID From tJXC_Cp Where fCpCode=" + InQuotes(document.finishedProductCode))));
    const std::int64_t order = OrdersOfNumber(document.order, document.customer).Of(product);
    if (order > 0 && product > 0)
        Conn().Execute("Update tJXC_CkHt02 Set fInvOther1='生产完毕' Where fInvID=" + std::to_string(order) +
                       " And fCpID=" + std::to_string(product));
}

} // namespace jxc
