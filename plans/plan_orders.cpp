#include "plans/plan_orders.h"

#include <algorithm>
#include <set>

#include "base/text.h"
#include "database/recordset.h"
#include "documents/document_checks.h"
#include "documents/document_model.h"
#include "documents/figure_bounds.h"
#include "documents/write_document.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"
#include "settings/document_numbers.h"

namespace jxc {

namespace {

const std::string kMemo = "采购计划转入";

std::set<std::int64_t> KeysOf(const std::string& statement) {
    std::set<std::int64_t> keys;
    for (Recordset row(Conn(), statement); !row.AtEnd(); row.MoveNext())
        keys.insert(row[size_t{0}].AsLong());
    return keys;
}

// Those of the keys that the table has.
std::set<std::int64_t> There(const std::string& table, const std::string& field,
                             const std::vector<std::int64_t>& keys) {
    return KeysOf("Select " + field + " From " + table + " Where " + field + InKeys(keys));
}

// Another user may have deleted what nothing held until now.
std::string GoneMeanwhile(const std::vector<PlannedLine>& lines) {
    std::vector<std::int64_t> products, suppliers;
    for (const PlannedLine& line : lines) {
        products.push_back(line.product);
        suppliers.push_back(line.supplier);
    }
    const std::set<std::int64_t> productsThere = There("tJXC_Cp", "fCpID", products);
    const std::set<std::int64_t> suppliersThere = There("cards", "fID", suppliers);
    for (const PlannedLine& line : lines) {
        if (!productsThere.contains(line.product))
            return "产品 [" + line.code + "] 已不存在，操作已经取消！";
        if (line.supplier != 0 && !suppliersThere.contains(line.supplier))
            return "供应商 [" + line.supplierName + "] 已不存在，操作已经取消！";
    }
    return "";
}

// A failure to read it is one of the conversion.
std::string BaseCurrency() {
    const Recordset row(Conn(), "Select MoneyCode from Moneys Where MoneyType=1");
    return row.AtEnd() ? "" : row["MoneyCode"].AsText();
}

// What an order of a plan is, whatever the company has made of the type since: goods come in from a supplier, all of them
// are still to come, and no warehouse is named yet.
DocumentData BlankOrder() {
    DocumentData order = BlankDocument(DocType::PurchaseOrder);
    order.type.fSetCrType1 = Direction::In;
    order.type.fSetKhType = Partner::Supplier;
    order.type.fSetCkType1 = order.type.fSetCkType2 = kNoChoice;
    order.type.fSetJy_ = true;
    order.date = Today();
    order.number = NextDocumentNo(order.date, order.type.fSetAutoNo, DocType::PurchaseOrder);
    order.currency = BaseCurrency();
    order.memo = kMemo;
    return order;
}

// The lines of one supplier stand together.
std::vector<DocumentData> OrdersOf(const std::vector<PlannedLine>& lines, const DocumentData& blank) {
    std::vector<DocumentData> orders;
    for (const PlannedLine& line : lines) {
        if (orders.empty() || orders.back().customer != line.supplier) {
            orders.push_back(blank);
            orders.back().customer = line.supplier;
            orders.back().firstRow = line.row;
        }
        orders.back().lines.push_back(
            {.product = line.product, .quantity = line.quantity, .price = line.price, .amount = line.amount});
    }
    return orders;
}

std::string RefusalOf(const std::vector<DocumentData>& orders) {
    const DocumentData& first = orders.front();
    if (first.number.empty() || AnsiByteLength(first.number) > kNumberBytes)
        return "[" + first.type.fSetName + "]的[自动单号]设定有误，操作已经取消！";
    std::string refusal = DatedBeforePeriod(first, DocAction::New);
    if (refusal.empty() && HasRows("tJXC_CkHt01", "fInvNo = " + InQuotes(first.number)))
        refusal = "该[单号]已有存在!"; // its counter has wrapped
    for (const DocumentData& order : orders)
        if (const auto outOfBounds = FigureOutOfBounds(order); refusal.empty() && outOfBounds)
            refusal = outOfBounds->text;
    return refusal;
}

// Each under the next key, but never one under which lines without a header stand.
void WriteUnderNextKeys(std::vector<DocumentData>& orders) {
    std::int32_t key = LargestKey("tJXC_CkHt");
    const std::set<std::int64_t> taken =
        KeysOf("Select Distinct fInvID From tJXC_CkHt02 Where fInvID>" + std::to_string(key));
    for (DocumentData& order : orders) {
        do
            ++key;
        while (taken.contains(key));
        order.key = key;
        WriteUnderItsKey(order);
    }
}

} // namespace

PlannedOrders WriteOrders(const std::vector<PlannedLine>& lines) {
    PlannedOrders written;
    written.refusal = GoneMeanwhile(lines);
    if (!written.refusal.empty())
        return written;
    std::vector<DocumentData> orders = OrdersOf(lines, BlankOrder());
    written.refusal = RefusalOf(orders);
    written.number = orders.front().number;
    if (!written.refusal.empty())
        return written;
    WriteUnderNextKeys(orders);
    written.count = static_cast<int>(orders.size());
    return written;
}

} // namespace jxc
