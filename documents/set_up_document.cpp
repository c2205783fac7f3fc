// The entry screen as its type wants it: lists, captions, what is shown, what may be changed.

#include <cstdlib>

#include "base/text.h"
#include "controls/grid_routines.h"
#include "documents/approval/stages.h"
#include "documents/document_entry.h"
#include "documents/load_lines.h"
#include "session/lookups/book.h"
#include "session/lookups/lists.h"
#include "session/period.h"
#include "session/rights.h"
#include "session/session.h"
#include "settings/document_numbers.h"

namespace jxc {

namespace {

// The choice before a list was filled anew; a stored document keeps it also when the list no longer offers
// it.
void KeepText(const frmDj02& s, ListBox& list, const std::string& text) {
    const bool offered = list.editable || text.empty() || ComboIndexByText(list, text) >= 0;
    if (!offered && s.InHand() == DocAction::New)
        return list.SetIndex(-1);
    if (!offered)
        list.items.push_back(text);
    list.SetText(text);
}

void FillLists(frmDj02& s) {
    s.cboInvType.Offer(s.invType);
    s.cboCkName.Offer(s.type.fSetCkType1);
    s.cboCkName2.Offer(s.type.fSetCkType2);
    s.cboInvMemo.text.clear();
    s.cboInvMemo.Offer();
    s.cboInvHb.Offer();
    s.cboInvJbr.Offer(s.parameters.handlersFromSalespeople);
}

void Show(bool shown, std::initializer_list<Control*> controls) {
    for (Control* control : controls)
        control->visible = shown;
}

void ShapeByType(frmDj02& s) {
    const TypeRow& type = s.type;
    s.lblCkName.caption = FirstWarehouseCaption(type);
    s.lblCkName2.caption = SecondWarehouseCaption(type);
    s.lblKh.caption = CustomerCaption(type);
    s.lblKhAdd.caption = AddressCaption(type);
    s.lblSsSf.caption = PaymentCaption(type);
    Show(type.HasFirstWarehouse(), {&s.lblCkName, &s.cboCkName});
    Show(type.HasSecondWarehouse(), {&s.lblCkName2, &s.cboCkName2});
    Show(type.HasCustomer(), {&s.lblKh, &s.txtKhSeek, &s.cboKhList, &s.lblKhAdd, &s.cboKhAdd,
                              &s.mnuKhAddDelete, &s.txtMemo, &s.cmdLoadKh2});
    s.fraKh2.visible = false;
    s.picCpZj.visible = type.IsKit();
    Show(type.fSetHb_, {&s.lblInvHb, &s.cboInvHb, &s.txtInvHbDl});
    Show(type.fSetDjDd_, {&s.lblHtNo, &s.txtHtNo});
    Show(type.fSetHbSl_ && s.parameters.taxWay != TaxWay::None, {&s.lblTaxRate, &s.txtTaxRate});
    Show(type.fSetDjType2 == PriceKind::Discounted, {&s.lblZkl, &s.txtZkl});
    Show(type.fSetDjType1 != kNoChoice, {&s.lblSum2, &s.txtSum2});
    Show(type.fSetDjBack_, {&s.lblTh, &s.shpTh});
    Show(!type.IsStocktake(), {&s.chkTh});
    Show(type.HasCustomer() && HasCardsScreen(), {&s.cmdCards});
    Show(type.HasCustomer(), {&s.cmdTrades});
    Show(OffersPayment(s, type), {&s.lblSsSf, &s.txtSsSf});
    s.chkTh.value = type.fSetDjBack_;
    if (!type.fSetDjDd_)
        s.txtHtNo.text.clear();
}

void AllowByAction(frmDj02& s) {
    const bool editing = IsEditing(s.InHand());
    s.fraHead.enabled = editing;
    s.cboInvType.enabled = s.InHand() == DocAction::New;
    s.picCpZj.enabled = editing;
    for (Button* button : {&s.cmdAddRow, &s.cmdDeleteRow, &s.cmdCp, &s.cmdCk, &s.cmdZy, &s.cmdCards})
        button->enabled = editing;
    s.cmdGridSave.enabled = session.UserName == session.ZgName;
    // Where only what is saved may be printed, saving prints it, and the next document begins unsaved.
    s.cmdPrint1.enabled = s.cmdPrint2.enabled = s.cmdPrint3.enabled =
        s.InHand() != DocAction::New || !s.parameters.printOnSave;
    s.cmdNew.visible = s.InHand() == DocAction::New;
    s.cmdPrevious.visible = s.cmdNext.visible = s.InHand() != DocAction::New;
    s.cmdPrevious.enabled = s.cmdNext.enabled = true;
    s.cmdSave.enabled = CanBeSaved(DocState::NotChosen, s.InHand());
    s.cmdLoadKh2.enabled = !s.type.HasCustomer() || HasModuleRight("mnuCardAdd", 0);
}

void SetStartingRates(frmDj02& s) {
    s.txtTaxRate.text = s.parameters.taxWay == TaxWay::None ? "0" : FormatFixed(s.parameters.taxRate, 4);
    s.txtTaxRate.tag = s.txtTaxRate.text;
    s.txtZkl.text = s.txtZkl.tag = s.InHand() == DocAction::New ? "1.00" : "0.00";
}

void SetStartingValues(frmDj02& s) {
    SetStartingRates(s);
    s.txtSsSf.text = "0.00";
    s.txtMemo.text.clear();
    s.chkFlag.visible = s.InHand() == DocAction::Change;
    s.chkFlag.value = false;
    s.lblSHR.caption.clear();
    Show(false, {&s.lblSHR, &s.shpSHR});
    s.asLoaded = {};
    s.finishedProduct.Clear();
    s.txtInvSL.text = s.txtInvSL.tag = "1";
}

void ChooseOnly(ListBox& list) {
    list.SetIndex(list.items.size() == 1 ? 0 : -1);
}

} // namespace

bool OffersPayment(const frmDj02& s, const TypeRow& type) {
    const bool approving =
        s.InHand() == DocAction::Approve || (s.InHand() == DocAction::New && s.parameters.approveOnSave);
    return !PaymentCaption(type).empty() && type.fSetWlType > 0 && type.HasCustomer() &&
           s.parameters.quickPayment && approving;
}

void SetUpDocument(frmDj02& s) {
    const ReadAhead settings(Conn(), {{TypeRowStatement(s.invType)},
                                      {ParametersStatement()},
                                      {PeriodStatement()},
                                      {DocumentTypeField::Statement()},
                                      {BriefStatement(s.cboInvMemo.codeList)},
                                      {CurrencyField::Statement()},
                                      {HandlerField::Statement(false)},
                                      {HandlerField::Statement(true)},
                                      {ColumnWidthsStatement()},
                                      {TypeRowStatement(kSeriesCustomerAccount)},
                                      {TypeRowStatement(kSeriesMoneyAccount)}});
    const auto type = ReadTypeRow(s.invType);
    if (!type || BookStem(s.invType, false).empty())
        throw ScreenError("没有单据类型 " + std::to_string(s.invType) + "。");
    s.type = *type;
    s.parameters = ReadParameters();
    s.accountRule = s.InHand() == DocAction::Approve ? AccountRule(s.type) : "";
    LoadPeriodSettings();
    s.title = s.type.fSetName + "：" + ActionWord(s.InHand());
    FillLists(s);
    ShapeByType(s);
    AllowByAction(s);
    SetUpLoading(s);
    SetStartingValues(s);
    SetUpLineGrid(s.Grid2, s.type, s.parameters, s.InHand());
    LoadColumnWidths(s);
}

void RefillWarehouses(frmDj02& s) {
    const std::string first = s.cboCkName.text;
    const std::string second = s.cboCkName2.text;
    s.cboCkName.Offer(s.type.fSetCkType1);
    s.cboCkName2.Offer(s.type.fSetCkType2);
    KeepText(s, s.cboCkName, first);
    KeepText(s, s.cboCkName2, second);
}

void ResetDocument(frmDj02& s) {
    s.dtpInvDate.date = s.invType == DocType::Opening ? s.parameters.periodStart : Today();
    for (TextBox* box : {&s.txtNo, &s.txtHtNo, &s.txtKhSeek}) {
        box->text.clear();
        box->tag.clear();
    }
    s.cboInvMemo.SetIndex(-1);
    s.cboKhList.Clear();
    s.cboKhAdd.Clear();
    ClearCardFields(s);
    ChooseOnly(s.cboCkName);
    ChooseOnly(s.cboCkName2);
    s.cboInvHb.SetIndex(s.cboInvHb.items.empty() ? -1 : 0);
    ChooseCurrency(s);
    s.chkFlag.value = false;
    s.lblSHR.caption.clear();
    Show(false, {&s.lblSHR, &s.shpSHR});
    s.chkTh.value =
        s.type.fSetDjBack_; // mark, discount, tax rate and memo of the document before are not its own
    SetStartingRates(s);
    s.txtMemo.text.clear();
    s.Grid2.Clear();
    SetReturnSign(s);
    AppendLine(s);
    s.txtSsSf.text = "0.00";
    s.finishedProduct.Clear();
    s.txtInvSL.text = s.txtInvSL.tag = "1";
    ResetLoading(s);
    RefreshTotals(s);
    s.asLoaded = {};
    s.cmdSave.enabled = true;
    s.MoveFocus(&s.dtpInvDate);
    s.asBegun = TypedWork(s);
}

} // namespace jxc
