// A stored warehouse into the fields, and what its kinds make of them.

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "forms/edit_filter.h"
#include "master/frmCk.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

enum Kind { kHeadOffice, kRetail, kConsignment, kProduction };

constexpr int kConsignee = 3; // Cards.fType0

// What a kind excludes.
const std::vector<size_t> kExcluded[] = {{kRetail, kConsignment, kProduction},
                                         {kConsignment},
                                         {kHeadOffice, kRetail, kProduction},
                                         {kConsignment}};

void ShowConsignee(frmCk& s, std::int64_t card) {
    s.txtKhSeek.text.clear();
    s.cboKhID.Clear();
    if (!s.chkCkType[kConsignment].value || card <= 0)
        return;
    const Recordset row(Conn(), "Select compname From Cards Where fID=" + std::to_string(card));
    if (!row.AtEnd())
        s.cboKhID.Show(row[size_t{0}].AsText(), card);
}

std::string WarehouseStatement(const std::string& name) {
    return "select * from tJXC_Ck where fCkName=" + InQuotes(name) + " order by fCkCode";
}

} // namespace

std::string StoredWarehouse(const std::string& name) {
    return JsonOf(Recordset(Conn(), WarehouseStatement(name)));
}

void ClearWarehouse(frmCk& s) {
    for (TextBox* box : {&s.txtCkCode, &s.txtCkName, &s.txtCkMemo, &s.txtKhSeek})
        box->text.clear();
    for (CheckBox& kind : s.chkCkType)
        kind.value = false;
    s.chkCkFlag.value = false;
    s.cboZhID.SetIndex(-1);
    s.cboKhID.Clear();
    s.oldCode.clear();
    s.asShown.clear();
    session.OldName.clear();
}

void ShowWarehouse(frmCk& s, const std::string& name) {
    const Recordset row(Conn(), WarehouseStatement(name));
    s.asShown = JsonOf(row);
    if (row.AtEnd())
        return ClearWarehouse(s);
    s.txtCkCode.text = s.oldCode = row["fCkCode"].AsText();
    s.txtCkName.text = session.OldName = row["fCkName"].AsText();
    s.txtCkMemo.text = row["fCkMemo"].AsText();
    for (size_t kind = 0; kind < std::size(s.chkCkType); ++kind)
        s.chkCkType[kind].value = row["fCkType" + std::to_string(kind)].AsLong() == 1;
    s.chkCkFlag.value = row["fCkFlag"].AsLong() == 1;
    s.cboZhID.Show(row["fZhID"].AsLong());
    ShowConsignee(s, row["fKhID"].AsLong());
}

void TickKind(frmCk& s, size_t kind) {
    if (s.chkCkType[kind].value)
        for (const size_t excluded : kExcluded[kind])
            s.chkCkType[excluded].value = false;
    if (!s.chkCkType[kRetail].value)
        s.cboZhID.SetIndex(-1);
}

void SeekConsignee(frmCk& s) {
    if (s.cboKhID.Seek(s.txtKhSeek.text) == 0)
        return Warn(s.title, "未有符合条件的客户资料！");
    s.MoveFocus(&s.cboKhID);
    ChooseConsignee(s);
}

void ChooseConsignee(frmCk& s) {
    const std::int64_t card = s.cboKhID.Id();
    if (card <= 0)
        return;
    const std::string kind = DbScalar("Select fType0 from Cards Where fID=" + std::to_string(card));
    if (static_cast<int>(Val(kind)) != kConsignee)
        Warn(s.title, "注意：该客户非“代销商”！");
}

} // namespace jxc
