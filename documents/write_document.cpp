#include "documents/write_document.h"

#include "base/text.h"
#include "database/recordset.h"
#include "database/row_inserter.h"
#include "documents/document_entry.h"
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

// The fields of a line, by their place in kLineFields.
enum LineField {
    kInv1,
    kRowID,
    kInvID,
    kInvInOut,
    kCkName,
    kInvNo,
    kInvDate,
    kInvHb,
    kInvHbDl,
    kKhID,
    kCpID,
    kInvSL,
    kInvSL2,
    kInvDJ,
    kInvDJ2,
    kInvJE,
    kInvTaxRate,
    kInvTax,
    kInvOther1,
    kInvOther2
};
const std::vector<std::string> kLineFields = {"fInv1",  "fRowID",      "fInvID",  "fInvInOut",  "fCkName",
                                              "fInvNo", "fInvDate",    "fInvHb",  "fInvHbDl",   "fKhID",
                                              "fCpID",  "fInvSL",      "fInvSL2", "fInvDJ",     "fInvDJ2",
                                              "fInvJE", "fInvTaxRate", "fInvTax", "fInvOther1", "fInvOther2"};

// Writes the lines of a document on one of its two sides: inv1 0 on the first warehouse, 1 on the second.
class Lines {
  public:
    Lines(const frmDj02& s, const std::string& stem, int inv1)
        : s_(s), rows_(Conn(), stem + "02", kLineFields) {
        const bool second = inv1 == 1;
        rows_.Set(kInv1, inv1);
        rows_.Set(kInvID, std::int64_t{s.oldInvID});
        rows_.Set(kInvInOut, second ? DirectionOfSecondRow(s.type) : DirectionOfFirstRow(s.type));
        rows_.Set(kCkName, second                       ? s.cboCkName2.Chosen()
                           : s.type.HasFirstWarehouse() ? s.cboCkName.Chosen()
                                                        : "");
        rows_.Set(kInvNo, s.Number());
        rows_.Set(kInvDate, IsoText(*s.dtpInvDate.date));
        rows_.Set(kInvHb, s.cboInvHb.Chosen());
        rows_.Set(kInvHbDl, Val(s.txtInvHbDl.text));
        rows_.Set(kInvDJ2, 0);
    }

    // Quantity, price and product are the cells' values; amounts and taxes what the cells show. A price has more
    // decimals than its column shows only where it was stored before the company chose fewer, and stays so.
    void SetFigures(int at) {
        const Grid& grid = s_.Grid2;
        rows_.Set(kRowID, at);
        rows_.Set(kCpID, grid.Cell(at, line::kProduct).AsLong());
        rows_.Set(kInvSL, grid.Number(at, line::kQuantity));
        rows_.Set(kInvDJ, grid.Number(at, line::kPrice));
        rows_.Set(kInvJE, ShownNumber(grid, at, line::kAmount));
        rows_.Set(kInvTaxRate, ShownNumber(grid, at, line::kTaxRate));
        rows_.Set(kInvTax, ShownNumber(grid, at, line::kTax));
        rows_.Set(kInvOther1, grid.Text(at, line::kMemo1));
        rows_.Set(kInvOther2, grid.Text(at, line::kMemo2));
    }

    void Set(LineField field, Value value) { rows_.Set(field, std::move(value)); }
    void Insert() { rows_.Insert(); }

  private:
    const frmDj02& s_;
    RowInserter rows_;
};

// Where fInvSL2 of a line comes from, 0 for nowhere: a stocktake keeps the book quantity, a new order's
// balance is its full quantity, a changed order's the balance that the user sees.
int SecondQuantityColumn(const frmDj02& s, bool second) {
    if (s.type.fSetJy_ && !second)
        return s.InHand() == DocAction::New ? line::kQuantity : line::kBalance;
    return s.type.IsStocktake() ? line::kStock : 0;
}

void WriteOrdinaryLines(const frmDj02& s, const std::string& stem, bool second) {
    Lines lines(s, stem, second ? 1 : 0);
    lines.Set(kKhID, s.type.HasCustomer() ? s.CustomerId() : 0);
    const int secondQuantity = SecondQuantityColumn(s, second);
    for (int at = 1; at <= s.Grid2.RowCount(); ++at) {
        lines.SetFigures(at);
        if (secondQuantity != 0)
            lines.Set(kInvSL2, s.Grid2.Number(at, secondQuantity));
        lines.Insert();
    }
}

// The parts on the first warehouse.
void WriteParts(const frmDj02& s, const std::string& stem) {
    Lines lines(s, stem, 0);
    for (int at = 1; at <= s.Grid2.RowCount(); ++at) {
        lines.SetFigures(at);
        lines.Insert();
    }
}

// The finished product on the second; its price is what the parts of one piece come to.
void WriteFinishedProduct(const frmDj02& s, const std::string& stem) {
    const double total = Val(s.txtSum.text);
    Lines lines(s, stem, 1);
    lines.Set(kRowID, 1);
    lines.Set(kCpID, std::int64_t{s.finishedProduct});
    lines.Set(kInvSL, KitQuantity(s));
    lines.Set(kInvDJ, total / KitQuantity(s));
    lines.Set(kInvJE, total);
    lines.Set(kInvTaxRate, 0);
    lines.Set(kInvTax, 0);
    lines.Set(kInvOther1, "产品套件");
    lines.Set(kInvOther2, "");
    lines.Insert();
}

} // namespace

// Of a new document there is no row: none has the key 0, and the statement can be sent before its key is
// known.
std::string HeaderStatement(const frmDj02& s, const std::string& stem) {
    return StoredHeaderStatement(stem, s.InHand() == DocAction::New ? 0 : s.oldInvID);
}

void WriteHeader(const frmDj02& s, const std::string& stem) {
    Recordset row(Conn(), HeaderStatement(s, stem), Access::Write);
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
    if (s.type.IsKit()) {
        WriteParts(s, stem);
        WriteFinishedProduct(s, stem);
        return;
    }
    WriteOrdinaryLines(s, stem, false);
    if (s.type.HasSecondWarehouse())
        WriteOrdinaryLines(s, stem, true);
}

} // namespace jxc
