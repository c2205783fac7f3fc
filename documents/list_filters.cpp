// The filters of the document list: their lists, and which of them the type ticked leaves.

#include "documents/document_list.h"
#include "session/lookups/database_routines.h"

namespace jxc {

namespace {

const std::vector<std::string> kOperators = {" =", "<=", ">=", "<>"};

void Show(bool shown, std::initializer_list<Control*> controls) {
    for (Control* control : controls)
        control->visible = shown;
}

void ClearBoxes(frmDj01& s) {
    for (Control* control : s.Controls())
        if (auto* box = dynamic_cast<CheckBox*>(control); box && box != &s.chkDj && box != &s.chkDjMx)
            box->value = false;
        else if (auto* text = dynamic_cast<TextBox*>(control))
            text->text.clear();
    for (int i = 0; i < 3; ++i)
        s.optSelect[i].value = i == 2;
}

// The company names some filters itself; one without a name is not offered.
void NameBox(CheckBox& box, TextBox& text, const std::string& caption) {
    box.caption = caption;
    Show(!caption.empty(), {&box, &text});
}

void NameFilters(frmDj01& s, const Parameters& parameters) {
    NameBox(s.chkCp[2], s.txtCp[2], DbScalar("Select BriefTypeName From Brief Where BriefType='fCpZy'"));
    NameBox(s.chkCp[3], s.txtCp[3], DbScalar("Select BriefTypeName From Brief Where BriefType='fCpCd'"));
    NameBox(s.chkBz[0], s.txtBz[0], parameters.memo1);
    NameBox(s.chkBz[1], s.txtBz[1], parameters.memo2);
}

void FillFilterLists(frmDj01& s, const Parameters& parameters) {
    s.cboHb.Offer();
    s.cboHb.SetIndex(s.cboHb.items.empty() ? -1 : 0);
    s.cboInvJbr.Offer(parameters.handlersFromSalespeople);
    s.cboCrType.items = {"入库", "出库"};
    s.cboCrType.SetIndex(0);
    for (ListBox& list : s.cboPrice) {
        list.items = kOperators;
        list.SetIndex(0);
    }
}

void TickModesType(frmDj01& s) {
    s.cboInvType.Offer(s.InvType());
    if (s.Mode() != ListMode::AllTypes && s.cboInvType.Index() < 0)
        throw ScreenError("没有单据类型 " + std::to_string(s.InvType()) + "。");
    s.chkInvType.value = s.cboInvType.Index() >= 0;
}

// A filter that the type has no use for is unticked, so that it cannot hide documents unseen.
void Offer(bool offered, CheckBox& box, EditBox& text) {
    Show(offered, {&box, &text});
    if (offered)
        return;
    box.value = false;
    text.text.clear();
}

void OfferWarehouse(frmDj01& s, int at, int kind, const std::string& caption) {
    WarehouseField& list = s.cboCk[at];
    list.Offer(kind);
    Offer(kind != kNoChoice, s.chkCk[at], list);
    if (kind == kNoChoice)
        return;
    s.chkCk[at].caption = caption;
    list.SetIndex(list.items.empty() ? -1 : 0);
}

// Without a type the list goes through all stock documents, wherever their lines are.
void OfferAll(frmDj01& s) {
    Offer(true, s.chkKh, s.txtKh);
    OfferWarehouse(s, 0, WarehouseKind::Any, "仓库");
    Offer(false, s.chkCk[1], s.cboCk[1]);
    Offer(true, s.chkDd, s.txtDd);
}

void ApplyType(frmDj01& s, int number) {
    const auto type = ReadTypeRow(number);
    if (!type)
        return OfferAll(s);
    Offer(type->HasCustomer(), s.chkKh, s.txtKh);
    OfferWarehouse(s, 0, type->fSetCkType1, type->fSetCkName1);
    OfferWarehouse(s, 1, type->fSetCkType2, type->fSetCkName2);
    Offer(type->fSetDjDd_, s.chkDd, s.txtDd);
}

} // namespace

std::optional<int> TickedType(const frmDj01& s) {
    if (!s.chkInvType.value || s.cboInvType.Index() < 0)
        return std::nullopt;
    return s.cboInvType.Type();
}

void ApplyTickedType(frmDj01& s) {
    if (s.chkInvType.value && s.cboInvType.Index() < 0 && !s.cboInvType.items.empty())
        s.cboInvType.SetIndex(0);
    s.cboInvType.enabled = s.chkInvType.value;
    if (const auto type = TickedType(s))
        ApplyType(s, *type);
    else
        OfferAll(s);
}

void OfferLists(frmDj01& s) {
    s.chkDjMx.value = s.chkDjMx.value || !s.chkDj.value;
    s.SSTab1.disabledTabs.clear();
    if (!s.chkDj.value)
        s.SSTab1.disabledTabs.insert(kDocumentTab);
    if (!s.chkDjMx.value)
        s.SSTab1.disabledTabs.insert(kLineTab);
}

void ResetFilters(frmDj01& s, const Parameters& parameters) {
    ClearBoxes(s);
    NameFilters(s, parameters);
    FillFilterLists(s, parameters);
    s.dtpDate.first.date = parameters.periodStart;
    s.dtpDate.last.date = parameters.periodEnd;
    TickModesType(s);
    ApplyTickedType(s);
}

} // namespace jxc
