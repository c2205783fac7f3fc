// What lies beside the document: the customer's telephone, mail and web page, and the master data screens.

#include "base/text.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "session/components.h"
#include "session/rights.h"

namespace jxc {

namespace {

const std::string kMailPrefix = "mailTo:";
const std::string kWebPrefix = "http://";
constexpr int kLongestNumber = 39;
constexpr const char* kCardsScreen = "frmHostCards"; // of the program; a host may have another

} // namespace

void Dial(const TextBox& number) {
    const int length = CharacterCount(number.text);
    CurrentView().DialNumber(length <= kLongestNumber ? number.text : "");
}

void OpenMail(const frmDj02& s) {
    const std::string& address = s.txtE_mail.text;
    const bool prefixed =
        EqualsNoCase(MidText(address, 1, static_cast<int>(kMailPrefix.size())), kMailPrefix);
    CurrentView().OpenAddress(prefixed ? address : kMailPrefix + address);
}

void OpenWeb(const frmDj02& s) {
    const std::string& address = s.txtHttp.text;
    if (address.empty() || address == kWebPrefix)
        return;
    CurrentView().OpenAddress(address.starts_with(kWebPrefix) ? address : kWebPrefix + address);
}

void OpenProducts(frmDj02& s) {
    if (ModuleRight("mnuJxcSysCp", 0) == 0)
        return;
    Screen& products = ScreenNamed("frmCp");
    const int kind = s.type.fSetNo;
    const bool mayEdit = kind == DocType::Receipt || kind == DocType::PurchaseOrder;
    products.SetProperty("CpCode", "");
    products.SetProperty("CpName", "");
    products.SetProperty("CpNoEdit", mayEdit ? 0 : 1);
    ShowModal(products);
    if (!s.type.IsStocktake()) // its book quantities stay those of the count
        RefreshGridStock(s);
}

void OpenWarehouses(frmDj02& s) {
    if (ModuleRight("mnuJxcSysCk", 0) == 0)
        return;
    ShowModal(ScreenNamed("frmCk"));
    RefillWarehouses(s);
}

void OpenSummaries(frmDj02& s) {
    if (ModuleRight("mnuJxcSysZy", 0) == 0)
        return;
    ComponentsInUse().codeLists->Edit("", s.cboInvMemo.codeList, BriefKind::EditEntries);
    s.cboInvMemo.Offer();
}

bool HasCardsScreen() {
    return FindScreen(kCardsScreen) != nullptr;
}

void OpenCards(frmDj02& s) {
    if (ModuleRight("mnuCardAdd", 0) == 0)
        return;
    ShowModal(ScreenNamed(kCardsScreen));
    s.MoveFocus(&s.txtKhSeek); // to find the card that was entered
}

} // namespace jxc
