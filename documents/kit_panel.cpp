// The finished product of assembly and dismantling. The lines are its parts, for as many pieces as the panel
// says.

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/figure_bounds.h"
#include "session/lookups/find_by_text.h"
#include "session/session.h"

namespace jxc {

double KitQuantity(const frmDj02& s) {
    return Val(s.txtInvSL.text);
}

void LoadFinishedProduct(frmDj02& s, const std::string& stem, std::int32_t key) {
    s.finishedProduct.Clear();
    const Recordset stored(Conn(), LinesStatement(stem, key, 1));
    if (stored.AtEnd())
        return;
    s.finishedProduct.Show(static_cast<std::int32_t>(stored["fCpID"].AsLong()), stored["fCpCode"].AsText(),
                           NameAndSpec(stored["fCpName"].AsText(), stored["fCpGG"].AsText()),
                           stored["fCpUnit"].AsText());
    s.txtInvSL.text = s.txtInvSL.tag = NumberText(stored["fInvSL"].AsDouble());
}

bool ChangeKitQuantity(frmDj02& s) {
    const double before = Val(s.txtInvSL.tag);
    const double now = KitQuantity(s);
    if (Reaches(now, below::kQuantity)) {
        Warn(s.title, BoundText("套数", below::kQuantity));
        return false;
    }
    s.txtInvSL.text = NumberText(now);
    if (now == 0)
        return true; // the lines still stand for the quantity before
    s.txtInvSL.tag = s.txtInvSL.text;
    if (before == 0 || before == now || !IsEditing(s.InHand()))
        return true;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row)
        s.Grid2.SetCell(row, line::kQuantity,
                        RoundDecimal(s.Grid2.Number(row, line::kQuantity) * now / before, 9));
    RefreshTotals(s);
    return true;
}

} // namespace jxc
