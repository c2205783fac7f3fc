// The entry screen's document as values.

#include "base/text.h"
#include "documents/document_entry.h"

namespace jxc {

namespace {

// A card that the list no longer offers is still its stored document's customer.
std::int64_t CustomerOf(const frmDj02& s) {
    const std::int64_t chosen = s.CustomerId();
    return chosen != 0 || IsEditing(s.InHand()) ? chosen : static_cast<std::int64_t>(Val(s.txtKhSeek.tag));
}

// Quantity, price and product are the cells' values. A price has more decimals than its column shows only where it was
// stored before the company chose fewer, and stays so.
DocumentLine LineOf(const frmDj02& s, int row) {
    const Grid& grid = s.Grid2;
    DocumentLine line;
    line.product = grid.Cell(row, line::kProduct).AsLong();
    line.quantity = grid.Number(row, line::kQuantity);
    if (s.type.IsStocktake()) {
        line.bookQuantity = grid.Number(row, line::kStock);
        line.counted = grid.Number(row, line::kCounted);
    }
    line.balance = grid.Number(row, line::kBalance);
    line.price = grid.Number(row, line::kPrice);
    line.amount = grid.Number(row, line::kAmount);
    line.taxRate = grid.Number(row, line::kTaxRate);
    line.tax = grid.Number(row, line::kTax);
    line.memo1 = grid.Text(row, line::kMemo1);
    line.memo2 = grid.Text(row, line::kMemo2);
    return line;
}

} // namespace

DocumentData DataOf(const frmDj02& s) {
    DocumentData data;
    data.type = s.type;
    data.key = s.InHand() == DocAction::New ? 0 : s.oldInvID; // a new document's is its source's
    data.number = s.Number();
    data.date = *s.dtpInvDate.date;
    data.order = s.txtHtNo.text;
    data.warehouse = s.cboCkName.Chosen();
    data.warehouse2 = s.cboCkName2.Chosen();
    data.customer = CustomerOf(s);
    data.address = s.cboKhAdd.text;
    data.currency = s.cboInvHb.Chosen();
    data.rate = Val(s.txtInvHbDl.text);
    data.memo = s.cboInvMemo.text;
    data.handler = s.cboInvJbr.text;
    data.stopped = s.chkFlag.value;
    data.payment = Val(s.txtSsSf.text);
    data.approver = s.lblSHR.caption;
    data.finishedProduct = s.finishedProduct.id;
    data.finishedProductCode = s.txtCpCode.text;
    data.kitQuantity = KitQuantity(s);
    data.lines.reserve(static_cast<size_t>(s.Grid2.RowCount()));
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        data.lines.push_back(LineOf(s, row));
    data.total = IsEditing(s.InHand()) ? TotalOf(data.lines) : s.storedTotal;
    data.costMethod = s.parameters.costMethod;
    data.accountRule = s.accountRule;
    return data;
}

} // namespace jxc
