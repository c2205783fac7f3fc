#include "documents/frmDj02.h"

#include "controls/text.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "documents/frmDj01.h"
#include "session/edit_filter.h"
#include "session/lists.h"
#include "session/lookups.h"

namespace jxc {

namespace {

constexpr int kNumberBytes = 20;

void WireHead(frmDj02& s) {
    for (Control* control : std::initializer_list<Control*>{
             &s.cboInvType, &s.dtpInvDate, &s.txtNo, &s.txtHtNo, &s.cboCkName, &s.cboCkName2, &s.txtKhSeek,
             &s.cboKhList, &s.cboKhAdd, &s.mnuKhAddDelete, &s.cboInvHb, &s.txtInvHbDl, &s.txtTaxRate,
             &s.txtZkl, &s.cboInvMemo, &s.cboInvJbr, &s.chkFlag, &s.chkTh})
        control->frame = &s.fraHead;
    for (Control* control :
         std::initializer_list<Control*>{&s.txtName, &s.txtPostcode, &s.txtTelphone, &s.txtHandphone,
                                         &s.txtFax, &s.txtE_mail, &s.txtHttp})
        control->frame = &s.fraKh2;

    FilterKeys(s.txtNo, kNumberBytes);
    FilterKeys(s.txtHtNo, kNumberBytes);
    FilterKeys(s.txtInvHbDl, 12, true);
    FilterKeys(s.txtTaxRate, 8, true);
    FilterKeys(s.txtZkl, 8, true);
    for (TextBox* box : {&s.txtNo, &s.txtHtNo, &s.txtKhSeek})
        box->onLeave = [box] { return CheckNoQuote(box->text); };
    for (ListBox* box : {&s.cboInvMemo, &s.cboInvJbr})
        box->onLeave = [box] { return ComboIndexByText(*box, box->text) >= 0 || CheckNoQuote(box->text); };

    s.cboInvType.onChoose = [&s] { ChooseType(s); };
    s.dtpInvDate.onLeave = [&s] { return LeaveDate(s); };
    s.cboCkName.onChoose = [&s] { ChooseWarehouse(s, false); };
    s.cboCkName2.onChoose = [&s] { ChooseWarehouse(s, true); };
    s.cboInvHb.onChoose = [&s] { ChooseCurrency(s); };
    s.txtKhSeek.onKey = [&s](const std::string& key) {
        if (key == "Enter" && CheckNoQuote(s.txtKhSeek.text))
            SeekCustomer(s);
    };
    s.cboKhList.visibleText = CustomerNameOf;
    s.cboKhList.onChoose = [&s] { RefreshCustomer(s); };
    s.cboKhAdd.onLeave = [&s] {
        if (s.cboKhAdd.text != s.cboKhAdd.tag && !CheckNoQuote(s.cboKhAdd.text))
            return false;
        SaveAddress(s);
        return true;
    };
    s.mnuKhAddDelete.onClick = [&s] { DeleteAddress(s); };
    s.txtInvHbDl.onLeave = [&s] {
        s.txtInvHbDl.text = FormatFixed(Val(s.txtInvHbDl.text), 4);
        return true;
    };
    s.txtTaxRate.onLeave = [&s] {
        SpreadTaxRate(s);
        return true;
    };
    s.txtZkl.onLeave = [&s] {
        SpreadDiscount(s);
        return true;
    };
    s.chkTh.onChange = [&s] { SetReturnSign(s); };
    s.cmdLoadKh2.onClick = [&s] { s.fraKh2.visible = !s.fraKh2.visible; };
}

void WireCardLinks(frmDj02& s) {
    for (Control* control : std::initializer_list<Control*>{
             &s.txtName, &s.txtPostcode, &s.txtTelphone, &s.txtHandphone, &s.txtFax, &s.txtE_mail, &s.txtHttp,
             &s.mnuTelphone, &s.mnuHandphone, &s.mnuFax, &s.cmdMail, &s.cmdWeb})
        control->frame = &s.fraKh2;
    s.mnuTelphone.onClick = [&s] { Dial(s.txtTelphone); };
    s.mnuHandphone.onClick = [&s] { Dial(s.txtHandphone); };
    s.mnuFax.onClick = [&s] { Dial(s.txtFax); };
    s.cmdMail.onClick = [&s] { OpenMail(s); };
    s.cmdWeb.onClick = [&s] { OpenWeb(s); };
}

void WireKitPanel(frmDj02& s) {
    for (TextBox* box : {&s.txtCpCode, &s.txtCpName, &s.txtCpUnit, &s.txtInvSL})
        box->frame = &s.picCpZj;
    s.txtCpUnit.locked = true;
    FilterKeys(s.txtInvSL, 10, true);
    for (const bool byCode : {true, false}) {
        TextBox& box = byCode ? s.txtCpCode : s.txtCpName;
        box.onKey = [&s, byCode](const std::string& key) {
            if (key == "Enter")
                SeekFinishedProduct(s, byCode);
        };
        box.onLeave = [&s, &box, byCode] {
            if (!CheckNoQuote(box.text))
                return false;
            SeekFinishedProduct(s, byCode);
            return true;
        };
    }
    s.txtInvSL.onLeave = [&s] {
        ChangeKitQuantity(s);
        return true;
    };
}

void WireLinesAndFoot(frmDj02& s) {
    s.Grid2.onEnter = [&s] { EnterGrid(s); };
    s.Grid2.onEnterKey = [&s] { AppendLine(s); };
    s.Grid2.onCellLeave = [&s](int row, int column) {
        s.typedInto = true;
        LeaveCell(s, row, column);
    };
    s.cmdAddRow.onClick = [&s] { InsertLine(s); };
    s.cmdDeleteRow.onClick = [&s] { DeleteLine(s); };
    s.txtSum.locked = true;
    s.txtSum2.locked = true;
    s.txtSsSf.onLeave = [&s] {
        FormatPayment(s);
        return true;
    };
    s.cmdCp.onClick = [&s] { OpenProducts(s); };
    s.cmdCk.onClick = [&s] { OpenWarehouses(s); };
    s.cmdZy.onClick = [&s] { OpenSummaries(s); };
    s.cmdGridSave.onClick = [&s] { SaveColumnWidths(s); };
    s.cmdPrevious.onClick = [&s] { StepToDocument(s, false); };
    s.cmdNext.onClick = [&s] { StepToDocument(s, true); };
    s.cmdNew.onClick = [&s] { ResetDocument(s); };
    s.cmdSave.onClick = [&s] { SaveDocument(s); };
    s.cmdQuit.onClick = [&s] { s.Close(); };
}

} // namespace

frmDj02::frmDj02() : Screen("frmDj02") {
    AddNumberProperty("Action", Action);
    AddNumberProperty("invType", invType);
    AddNumberProperty("OldType", OldType);
    AddNumberProperty("oldInvID", oldInvID);
    AddNumberProperty("JzState", JzState);
    WireHead(*this);
    WireCardLinks(*this);
    WireKitPanel(*this);
    WireLinesAndFoot(*this);
}

void frmDj02::Open() {
    if (Action < 0 || Action > 5)
        throw ScreenError("frmDj02 的 Action 须为 0 至 5。");
    typedInto = false;
    SetUpDocument(*this);
    const bool fromSource = InHand() == DocAction::New && OldType > 0 && oldInvID > 0;
    if (InHand() == DocAction::New && !fromSource) {
        oldInvID = 0;
        ResetDocument(*this);
        dtpInvDate.date = Today();
        return;
    }
    if (oldInvID <= 0) {
        ResetDocument(*this); // nothing in hand: the save command asks for a document
        cmdSave.enabled = InHand() != DocAction::Query;
        return;
    }
    if (!LoadDocument(*this, fromSource ? OldType : invType, oldInvID))
        return Close();
    MoveFocus(IsEditing(InHand()) ? static_cast<Control*>(&dtpInvDate)
              : cmdSave.enabled   ? static_cast<Control*>(&cmdSave)
                                  : &Grid2);
}

std::string frmDj02::UnsavedWork() const {
    return typedInto && IsEditing(InHand()) ? "单据尚未存盘，放弃所输入的内容？" : "";
}

std::int64_t frmDj02::CustomerId() const {
    return CustomerIdOf(cboKhList.Chosen());
}

void RegisterDocumentScreens() {
    RegisterScreen("frmDj01", [] { return std::make_unique<frmDj01>(); });
    RegisterScreen("frmDj02", [] { return std::make_unique<frmDj02>(); });
}

} // namespace jxc
