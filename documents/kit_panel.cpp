// The finished product of assembly and dismantling. The lines are its parts, for as many pieces as the panel
// says.

#include "controls/text.h"
#include "documents/document_entry.h"
#include "session/database/recordset.h"
#include "session/edit_filter.h"
#include "session/lookups.h"
#include "session/session.h"

namespace jxc {

double KitQuantity(const frmDj02& s) {
    return Val(s.txtInvSL.text);
}

void ClearFinishedProduct(frmDj02& s) {
    for (TextBox* box : {&s.txtCpCode, &s.txtCpName, &s.txtCpUnit})
        box->text.clear();
    s.finishedProduct = 0;
}

void SeekFinishedProduct(frmDj02& s, bool byCode) {
    const std::string typed = Trim((byCode ? s.txtCpCode : s.txtCpName).text);
    ProductSought sought;
    (byCode ? sought.code : sought.name) = typed;
    const std::int32_t id = typed.find('\'') == std::string::npos ? FindProduct(sought) : 0;
    if (id == 0)
        return ClearFinishedProduct(s);
    s.finishedProduct = id;
    s.txtCpCode.text = sought.code;
    s.txtCpName.text = NameAndSpec(sought.name, sought.spec);
    s.txtCpUnit.text = sought.unit;
}

void LoadFinishedProduct(frmDj02& s, const std::string& stem, std::int32_t key) {
    ClearFinishedProduct(s);
    const Recordset stored(Conn(), "Select a.*,b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit from " + stem + "02 a" +
                                       " Left Join tJXC_Cp b On a.fCpID =b.fCpID " + " Where a.fInvID = " +
                                       std::to_string(key) + " And fInv1 = 1" + " Order By a.fRowID");
    if (stored.AtEnd())
        return;
    s.finishedProduct = static_cast<std::int32_t>(stored["fCpID"].AsLong());
    s.txtCpCode.text = stored["fCpCode"].AsText();
    s.txtCpName.text = NameAndSpec(stored["fCpName"].AsText(), stored["fCpGG"].AsText());
    s.txtCpUnit.text = stored["fCpUnit"].AsText();
    s.txtInvSL.text = s.txtInvSL.tag = NumberText(stored["fInvSL"].AsDouble());
}

void ChangeKitQuantity(frmDj02& s) {
    const double before = Val(s.txtInvSL.tag);
    const double now = KitQuantity(s);
    s.txtInvSL.text = s.txtInvSL.tag = NumberText(now);
    if (before == 0 || now == 0 || before == now || !IsEditing(s.InHand()))
        return;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        s.Grid2.SetCell(row, line::kQuantity,
                        RoundDecimal(s.Grid2.Number(row, line::kQuantity) * now / before, 9));
    RefreshTotals(s);
}

} // namespace jxc
