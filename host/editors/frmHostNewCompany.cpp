#include "host/editors/frmHostNewCompany.h"

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/view.h"
#include "forms/guard.h"
#include "forms/record_editor.h"

namespace jxc {

namespace {

constexpr const char* kBusinessTax = "0.05";
constexpr const char* kValueAddedTax = "0.13";

// From January of last year: who begins late may enter what went before.
void OfferPeriods(ListBox& list) {
    list.Clear();
    for (Date month = MakeDate(YearOf(Today()) - 1, 1, 1); month <= Today(); month = AddMonths(month, 1))
        list.items.push_back(IsoText(month).substr(0, 7));
    list.SetIndex(static_cast<int>(list.items.size()) - 1);
}

void TakeTaxWay(frmHostNewCompany& s) {
    s.txtTaxRate.enabled = s.cboTaxWay.Way() != TaxWay::None;
    s.txtTaxRate.text = s.cboTaxWay.Way() == TaxWay::None    ? "0"
                        : s.cboTaxWay.Way() == TaxWay::OnTop ? kBusinessTax
                                                             : kValueAddedTax;
}

std::vector<TextField*> Required(frmHostNewCompany& s) {
    return {&s.txtCompName, &s.txtMoneyCode, &s.txtCkCode, &s.txtCkName, &s.txtUserName};
}

// A script sets texts that no key would have typed.
void GuardText(std::vector<Guard>& guards, TextBox& box) {
    guards.push_back({[&box] { return box.text.find('\'') != std::string::npos; },
                      "[" + box.caption + "]不可含有引号！", &box});
    guards.push_back(
        {[&box] { return AnsiByteLength(box.text) > box.maxBytes; },
         "[" + box.caption + "]太长，最多 " + std::to_string(box.maxBytes) + " 个字节，每个汉字占两个字节！",
         &box});
}

std::vector<Guard> Guards(frmHostNewCompany& s) {
    std::vector<Guard> guards;
    for (TextField* box : Required(s)) {
        guards.push_back(
            {[box] { return Trim(box->text).empty(); }, "[" + box->caption + "]不能为空值！", box});
        GuardText(guards, *box);
    }
    for (DigitsField& box : s.txtDeciLen)
        guards.push_back({[&box] { return box.text.size() != 1 || box.text < "0" || box.text > "9"; },
                          "[" + box.caption + "]须为 0 至 9 的一位数字！", &box});
    guards.push_back(s.txtTaxRate.MustBeAFraction());
    GuardText(guards, s.txtPassword);
    guards.push_back({[&s] { return s.txtPassword.text != s.txtPassword2.text; }, "两次输入的密码不一致！",
                      &s.txtPassword2});
    return guards;
}

NewCompany Wishes(const frmHostNewCompany& s) {
    const auto digit = [](const TextBox& box) { return box.text[0] - '0'; };
    NewCompany wishes;
    wishes.name = Trim(s.txtCompName.text);
    wishes.books = {.firstDay = ParseDate(s.cboPeriod.Chosen() + "-01").value(),
                    .quantityDecimals = digit(s.txtDeciLen[0]),
                    .priceDecimals = digit(s.txtDeciLen[1]),
                    .currency = Trim(s.txtMoneyCode.text),
                    .taxWay = s.cboTaxWay.Way(),
                    .taxRate = s.cboTaxWay.Way() == TaxWay::None ? 0 : Val(s.txtTaxRate.text),
                    .costMethod = s.cboSysCost.Method()};
    wishes.warehouseCode = Trim(s.txtCkCode.text);
    wishes.warehouse = Trim(s.txtCkName.text);
    wishes.user = Trim(s.txtUserName.text);
    wishes.passwordHash = HashOfPassword(s.txtPassword.text);
    return wishes;
}

void Wish(frmHostNewCompany& s) {
    if (const MayRefuse refusal = FirstRefusal(Guards(s)))
        return TellRefusal(s, *refusal);
    s.wishes = Wishes(s);
    s.Close();
}

} // namespace

frmHostNewCompany::frmHostNewCompany() : Screen("frmHostNewCompany") {
    title = "新建帐套";
    cboPeriod.caption = "首个会计期间";
    OfferPeriods(cboPeriod);
    const NewCompany preset;
    txtDeciLen[0].text = std::to_string(preset.books.quantityDecimals);
    txtDeciLen[1].text = std::to_string(preset.books.priceDecimals);
    txtMoneyCode.text = preset.books.currency;
    cboTaxWay.SetIndex(static_cast<int>(preset.books.taxWay));
    cboSysCost.SetIndex(static_cast<int>(preset.books.costMethod));
    txtCkCode.text = preset.warehouseCode;
    txtCkName.text = preset.warehouse;
    TakeTaxWay(*this);
    txtPassword.secret = txtPassword2.secret = true;
    cboTaxWay.onChoose = [this] { TakeTaxWay(*this); };
    cmdCreate.onClick = [this] { Wish(*this); };
    cmdQuit.onClick = [this] { Close(); };
    cmdQuit.dropsWork = true;
    asBegun = TypedWork(*this);
}

void frmHostNewCompany::Open() {
    wishes.reset();
    MoveFocus(&txtCompName);
}

Arrangement frmHostNewCompany::Arrange() {
    return {.fields = {{&txtCompName},
                       {&cboPeriod},
                       {&txtDeciLen[0], &txtDeciLen[1]},
                       {&txtMoneyCode},
                       {&cboTaxWay, &txtTaxRate},
                       {&cboSysCost},
                       {&txtCkCode, &txtCkName},
                       {&txtUserName},
                       {&txtPassword, &txtPassword2},
                       {&lblUser}},
            .closingCommands = {&cmdCreate, &cmdQuit},
            .width = 620,
            .height = 400};
}

std::string frmHostNewCompany::UnsavedWork() const {
    return !wishes && TypedWork(*this) != asBegun ? "帐套尚未建立，放弃所作的填写？" : "";
}

void frmHostNewCompany::SaveWork() {
    if (LeaveFocus(*this))
        Wish(*this);
}

} // namespace jxc
