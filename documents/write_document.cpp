#include "documents/write_document.h"

#include "controls/text.h"
#include "documents/document_entry.h"
#include "session/database/recordset.h"
#include "session/session.h"

namespace jxc {

namespace {

// The fields that header and lines share, so that reports need no join.
void SetHeaderCopies(const frmDj02& s, Recordset& row) {
    row.Set("fInvNo", s.Number());
    row.Set("fInvDate", IsoText(*s.dtpInvDate.date));
    row.Set("fInvHb", s.cboInvHb.Chosen());
    row.Set("fInvHbDl", Val(s.txtInvHbDl.text));
}

// Quantity and product are the cells' values; prices, amounts and taxes what the cells show.
void SetFigures(const frmDj02& s, Recordset& row, int at) {
    row.Set("fCpID", s.Grid2.Cell(at, line::kProduct).AsLong());
    row.Set("fInvSL", s.Grid2.Number(at, line::kQuantity));
    row.Set("fInvDJ", ShownNumber(s.Grid2, at, line::kPrice));
    row.Set("fInvDJ2", 0);
    row.Set("fInvJE", ShownNumber(s.Grid2, at, line::kAmount));
    row.Set("fInvTaxRate", ShownNumber(s.Grid2, at, line::kTaxRate));
    row.Set("fInvTax", ShownNumber(s.Grid2, at, line::kTax));
    row.Set("fInvOther1", s.Grid2.Text(at, line::kMemo1));
    row.Set("fInvOther2", s.Grid2.Text(at, line::kMemo2));
}

void SetPlace(const frmDj02& s, Recordset& row, int inv1, int rowId, int direction,
              const std::string& warehouse) {
    row.Set("fInv1", inv1);
    row.Set("fRowID", rowId);
    row.Set("fInvID", std::int64_t{s.oldInvID});
    row.Set("fInvInOut", direction);
    row.Set("fCkName", warehouse);
}

// A new order's balance is its full quantity, a changed order keeps the balance that the user sees.
void SetBalance(const frmDj02& s, Recordset& row, int at) {
    if (s.type.fSetJy_)
        row.Set("fInvSL2",
                s.Grid2.Number(at, s.InHand() == DocAction::New ? line::kQuantity : line::kBalance));
}

void WriteOrdinaryRows(const frmDj02& s, Recordset& row, bool second) {
    const std::string warehouse = second                       ? s.cboCkName2.Chosen()
                                  : s.type.HasFirstWarehouse() ? s.cboCkName.Chosen()
                                                               : "";
    const int direction = second ? DirectionOfSecondRow(s.type) : DirectionOfFirstRow(s.type);
    for (int at = 1; at <= s.Grid2.RowCount(); ++at) {
        row.AddNew();
        SetPlace(s, row, second ? 1 : 0, at, direction, warehouse);
        SetHeaderCopies(s, row);
        row.Set("fKhID", s.type.HasCustomer() ? s.CustomerId() : 0);
        SetFigures(s, row, at);
        if (s.type.IsStocktake())
            row.Set("fInvSL2", s.Grid2.Number(at, line::kStock));
        if (!second)
            SetBalance(s, row, at);
        row.Update();
    }
}

// The parts on the first warehouse.
void WritePartRows(const frmDj02& s, Recordset& row) {
    for (int at = 1; at <= s.Grid2.RowCount(); ++at) {
        row.AddNew();
        SetPlace(s, row, 0, at, DirectionOfFirstRow(s.type), s.cboCkName.Chosen());
        SetHeaderCopies(s, row);
        SetFigures(s, row, at);
        row.Update();
    }
}

// The finished product on the second; its price is what the parts of one piece come to.
void WriteFinishedRow(const frmDj02& s, Recordset& row) {
    const double total = Val(s.txtSum.text);
    row.AddNew();
    SetPlace(s, row, 1, 1, DirectionOfSecondRow(s.type), s.cboCkName2.Chosen());
    SetHeaderCopies(s, row);
    row.Set("fCpID", std::int64_t{s.finishedProduct});
    row.Set("fInvSL", KitQuantity(s));
    row.Set("fInvDJ", total / KitQuantity(s));
    row.Set("fInvDJ2", 0);
    row.Set("fInvJE", total);
    row.Set("fInvTaxRate", 0);
    row.Set("fInvTax", 0);
    row.Set("fInvOther1", "产品套件");
    row.Set("fInvOther2", "");
    row.Update();
}

} // namespace

void WriteHeader(const frmDj02& s, const std::string& stem) {
    Recordset row(Conn(), "select * from " + stem + "01 Where fInvID=" + std::to_string(s.oldInvID),
                  Access::Write);
    if (row.AtEnd()) {
        row.AddNew();
        row.Set("fInvID", std::int64_t{s.oldInvID});
    }
    row.Set("fHtNo", s.txtHtNo.text);
    row.Set("fInvType", s.invType);
    SetHeaderCopies(s, row);
    row.Set("fInvJE", Val(s.txtSum.text));
    row.Set("fInvMemo", s.cboInvMemo.text);
    row.Set("fInvDLR", session.UserName);
    row.Set("fInvJbr", s.cboInvJbr.text);
    row.Set("fInvSHR", "");
    row.Set("fKhID", s.type.HasCustomer() ? s.CustomerId() : 0);
    row.Set("fKhAdd", s.type.HasCustomer() ? s.cboKhAdd.text : "");
    row.Set("fCkName", s.type.HasFirstWarehouse() ? s.cboCkName.Chosen() : "");
    row.Set("fCkName2", s.type.HasSecondWarehouse() ? s.cboCkName2.Chosen() : "");
    row.Set("fFlag", s.chkFlag.value ? 1 : 0);
    row.Update();
}

void WriteLines(const frmDj02& s, const std::string& stem) {
    Recordset row(Conn(), "select * from " + stem + "02 Where fInvID = " + std::to_string(s.oldInvID),
                  Access::Write);
    if (s.type.IsKit()) {
        WritePartRows(s, row);
        WriteFinishedRow(s, row);
        return;
    }
    WriteOrdinaryRows(s, row, false);
    if (s.type.HasSecondWarehouse())
        WriteOrdinaryRows(s, row, true);
}

} // namespace jxc
