#include "documents/frmDj02.h"

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "documents/frmDj01.h"
#include "documents/load_lines.h"
#include "forms/edit_filter.h"
#include "forms/suggest.h"
#include "settings/document_numbers.h"

namespace jxc {

namespace {

constexpr int kPrintedMemoBytes = 500; // a longer one does not fit the foot of a small paper

void WireHead(frmDj02& s) {
    FilterKeys(s.txtNo, kNumberBytes);
    FilterKeys(s.txtHtNo, kNumberBytes);
    FilterKeys(s.txtInvHbDl, 12, true);
    FilterKeys(s.txtTaxRate, 8, true);
    FilterKeys(s.txtZkl, 8, true);
    for (TextBox* box : {&s.txtNo, &s.txtHtNo})
        box->onLeave = [box] {
            box->text = TrimAnyBlanks(box->text);
            return CheckNoQuote(box->text);
        };
    s.txtKhSeek.onLeave = [&s] { return CheckNoQuote(s.txtKhSeek.text); };

    s.cboInvType.onChoose = [&s] { ChooseType(s); };
    s.dtpInvDate.onLeave = [&s] { return LeaveDate(s); };
    s.cboCkName.onChoose = [&s] { ChooseWarehouse(s, false); };
    s.cboCkName2.onChoose = [&s] { ChooseWarehouse(s, true); };
    s.cboInvHb.onChoose = [&s] { ChooseCurrency(s); };
    s.txtKhSeek.onKey = [&s](const std::string& key) {
        if (key == "Enter" && CheckNoQuote(s.txtKhSeek.text))
            SeekCustomer(s);
    };
    SuggestCardsFor(s.txtKhSeek, s.cboKhList, [&s] { RefreshCustomer(s); });
    s.txtKhSeek.onPick = [&s](const std::string&) -> std::optional<SuggestedRow> {
        if (CheckNoQuote(s.txtKhSeek.text)) // a card is picked from those that its search lists
            SeekCustomer(s);
        return std::nullopt;
    };
    s.cboKhList.onChoose = [&s] { RefreshCustomer(s); };
    s.cboKhAdd.onLeave = [&s] {
        if (s.cboKhAdd.text != s.cboKhAdd.tag && !CheckNoQuote(s.cboKhAdd.text))
            return false;
        SaveAddress(s);
        return true;
    };
    s.mnuKhAddDelete.onClick = [&s] { DeleteAddress(s); };
    s.txtInvHbDl.onLeave = [&s] {
        LeaveRate(s);
        return true;
    };
    s.txtTaxRate.onLeave = [&s] { return SpreadTaxRate(s); };
    s.txtZkl.onLeave = [&s] { return SpreadDiscount(s); };
    s.chkTh.onChange = [&s] { TurnReturnMark(s); };
    s.cmdLoadKh2.onClick = [&s] { s.fraKh2.visible = !s.fraKh2.visible; };
}

void WireCardLinks(frmDj02& s) {
    s.mnuTelphone.onClick = [&s] { Dial(s.txtTelphone); };
    s.mnuHandphone.onClick = [&s] { Dial(s.txtHandphone); };
    s.mnuFax.onClick = [&s] { Dial(s.txtFax); };
    s.cmdMail.onClick = [&s] { OpenMail(s); };
    s.cmdWeb.onClick = [&s] { OpenWeb(s); };
}

void WireKitPanel(frmDj02& s) {
    FilterKeys(s.txtInvSL, 10, true);
    s.txtInvSL.onLeave = [&s] { return ChangeKitQuantity(s); };
}

void WireLinesAndFoot(frmDj02& s) {
    s.Grid2.onEnter = [&s] { EnterGrid(s); };
    s.Grid2.onEnterKey = [&s] { AppendLine(s); };
    s.Grid2.onCellLeave = [&s](int row, int column) { LeaveCell(s, row, column); };
    SuggestProductsIn(s.Grid2, {.code = line::kCode,
                                .name = line::kName,
                                .warehouse = [&s] { return StockWarehouse(s); },
                                .priceField = [&s] { return LinePriceField(s.type); }});
    s.Grid2.onPaste = [&s](const CellBlock& block) { PasteLines(s, block); };
    s.cmdAddRow.onClick = [&s] { InsertLine(s); };
    s.cmdDeleteRow.onClick = [&s] { DeleteLine(s); };
    FilterKeys(s.txtMemo, kPrintedMemoBytes);
    s.txtSum.locked = true;
    s.txtSum2.locked = true;
    s.txtSsSf.onLeave = [&s] { return FormatPayment(s); };
    s.cmdCp.onClick = [&s] { OpenProducts(s); };
    s.cmdCk.onClick = [&s] { OpenWarehouses(s); };
    s.cmdZy.onClick = [&s] { OpenSummaries(s); };
    s.cmdCards.onClick = [&s] { OpenCards(s); };
    s.cmdTrades.onClick = [&s] { ShowLastTrades(s); };
    s.cmdGridSave.onClick = [&s] { SaveColumnWidths(s); };
    s.cmdPrevious.onClick = [&s] { StepToDocument(s, false); };
    s.cmdNext.onClick = [&s] { StepToDocument(s, true); };
    s.cmdNew.onClick = [&s] { ResetDocument(s); };
    s.cmdChange.onClick = [&s] { TurnTo(s, DocAction::Change); };
    s.cmdCopy.onClick = [&s] { CopyDocument(s); };
    s.cmdApprove.onClick = [&s] { TurnTo(s, DocAction::Approve); };
    s.cmdReverse.onClick = [&s] { TurnTo(s, DocAction::Reverse); };
    for (Button* button : {&s.cmdPrevious, &s.cmdNext, &s.cmdNew, &s.cmdChange, &s.cmdCopy, &s.cmdApprove,
                           &s.cmdReverse, &s.cmdQuit})
        button->dropsWork = true;
    s.cmdPrint1.onClick = [&s] { PrintDocument(s); };
    s.cmdPrint2.onClick = [&s] { PrintDesigned(s); };
    s.cmdPrint3.onClick = [&s] { PrintDesigned(s, true); };
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
    WireLoading(*this);
    WireLinesAndFoot(*this);
}

void frmDj02::Open() {
    if (Action < 0 || Action > 5)
        throw ScreenError("frmDj02 的 Action 须为 0 至 5。");
    SetUpDocument(*this);
    const bool fromSource = InHand() == DocAction::New && OldType != 0 && oldInvID > 0;
    if (InHand() == DocAction::New && !fromSource) {
        oldInvID = 0;
        OfferNextActions(*this);
        ResetDocument(*this);
        dtpInvDate.date = Today();
        asBegun = TypedWork(*this);
        return;
    }
    if (oldInvID <= 0) {
        ResetDocument(*this); // nothing in hand: the save command asks for a document
        cmdSave.enabled = CanBeSaved(DocState::NotChosen, InHand());
        return OfferNextActions(*this);
    }
    if (!LoadDocument(*this, fromSource ? OldType : invType, oldInvID))
        return Close();
    MoveFocus(IsEditing(InHand()) ? static_cast<Control*>(&dtpInvDate)
              : cmdSave.enabled   ? static_cast<Control*>(&cmdSave)
                                  : &Grid2);
}

std::string frmDj02::UnsavedWork() const {
    const bool changed = IsEditing(InHand()) && cmdSave.enabled && TypedWork(*this) != asBegun;
    return changed ? "单据尚未存盘，放弃所输入的内容？" : "";
}

void frmDj02::SaveWork() {
    if (LeaveFocus(*this)) // what stands in the field in hand counts
        SaveDocument(*this);
}

Command* frmDj02::PanelCommand(const Control& inIt) {
    return inIt.frame == &fraLoad      ? &cmdLoad
           : inIt.frame == &fraLoadInv ? &cmdCpZj
           : inIt.frame == &fraPdTj    ? &cmdPdTj
                                       : nullptr;
}

std::int64_t frmDj02::CustomerId() const {
    return cboKhList.Id();
}

} // namespace jxc
