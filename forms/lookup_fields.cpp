#include "forms/lookup_fields.h"

#include "base/text.h"
#include "controls/screen.h"
#include "forms/edit_filter.h"
#include "forms/suggest.h"
#include "session/lookups/find_by_text.h"
#include "session/lookups/lists.h"

namespace jxc {

namespace {

constexpr int kTypeNumberWidth = 3;
constexpr int kAccountWidth = 80; // of an account's name, before its code
constexpr int kNoKind = -1;

} // namespace

void AllWarehousesField::Offer() {
    FillCombo("Select fCkName,0 as aaa from tJXC_Ck Order By fCkCode", *this);
    SetIndex(items.size() == 1 ? 0 : -1);
}

void WarehouseField::Offer(int kind) {
    if (kind == kNoKind)
        return Clear();
    FillCombo(WarehouseFilter(kind, "Select fCkName,0 as aaa from tJXC_Ck") + " Order By fCkCode", *this);
}

void CurrencyField::Offer() {
    FillCombo(Statement(), *this);
}

std::string CurrencyField::Statement() {
    return "Select MoneyCode,0 as aa from Moneys Order By MoneyType desc,MoneyCode";
}

void HandlerField::Offer(bool fromSalespeople) {
    FillCombo(Statement(fromSalespeople), *this);
}

std::string HandlerField::Statement(bool fromSalespeople) {
    return "Select fName,0 as aa from " + std::string(fromSalespeople ? "tJXC_Yj_Jbr" : "tRsBasic") +
           " Order By fCode";
}

void CodeListField::Offer() {
    const std::string typed = text;
    Clear();
    FillBriefCombo(*this, codeList, false);
    SetText(typed);
}

CardField::CardField(Place place, std::string name) : ListBox(place, std::move(name)) {
    visibleText = CustomerNameOf;
}

int CardField::Seek(const std::string& typed) {
    return FindCustomerCard(*this, typed);
}

void CardField::Show(const std::string& companyName, std::int64_t id) {
    items = {CustomerRow(companyName, id)};
    SetIndex(0);
}

std::int64_t CardField::Id() const {
    return CustomerIdOf(Chosen());
}

std::string CardField::CompanyName() const {
    return CustomerNameOf(Chosen());
}

void SuggestCardsFor(EditBox& box, CardField& list, std::function<void()> shown) {
    SuggestCardsIn(box, CardPart::Row);
    box.onTake = [&box, &list, shown = std::move(shown)](const std::string& row) {
        box.text = CustomerNameOf(row);
        list.Show(box.text, CustomerIdOf(row));
        box.screen.MoveFocus(&list);
        shown();
    };
}

AccountField::AccountField(Place place, std::string name) : ListBox(place, std::move(name)) {
    visibleText = CustomerNameOf; // its rows are made like a customer's
}

void AccountField::Offer() {
    FillCombo("Select compname,compCode from tAccounts", *this, kAccountWidth, true);
}

void AccountField::Show(std::int64_t number) {
    SetIndex(ComboIndexByMidValue(*this, number, kAccountWidth + 1));
}

std::int64_t AccountField::Id() const {
    return CustomerIdOf(Chosen());
}

ProductFields::ProductFields(Place place, std::string code, std::string name, std::string unit)
    : code(place, std::move(code)), name(place, std::move(name)), unit(place, std::move(unit)) {
    this->unit.locked = true;
    for (TextBox* box : {&this->code, &this->name}) {
        box->onKey = [this, box](const std::string& key) {
            if (key == "Enter")
                Seek(*box);
        };
        box->onLeave = [this, box] {
            if (!CheckNoQuote(box->text))
                return false;
            Seek(*box);
            return true;
        };
        SuggestProductsIn(*box, ProductPart::Code);
    }
    this->name.onTake = [this](const std::string& itsCode) { // many products may have that name
        this->code.text = itsCode;
        Seek(this->code);
    };
    this->name.onPick = [](const std::string& typed) { return PickProduct(typed, true); };
}

// What the boxes then hold is kept in their tags: only another text is looked for.
void ProductFields::Show(std::int32_t product, const std::string& itsCode, const std::string& itsName,
                         const std::string& itsUnit) {
    id = product;
    code.text = code.tag = itsCode;
    name.text = name.tag = itsName;
    unit.text = itsUnit;
}

void ProductFields::Seek(TextBox& typedInto) {
    const std::string typed = Trim(typedInto.text);
    if (typed == typedInto.tag)
        return;
    Clear();
    if (!CheckNoQuote(typed))
        return;
    ProductSought sought;
    (&typedInto == &code ? sought.code : sought.name) = typed;
    std::int32_t found = 0;
    try {
        found = FindProduct(sought);
    } catch (...) {
        typedInto.text = typed; // to be looked for again when the box is left again
        throw;
    }
    if (found > 0)
        Show(found, sought.code, NameAndSpec(sought.name, sought.spec), sought.unit);
}

void DocumentTypeField::Offer(int chosen) {
    FillCombo(Statement(), *this, kTypeNumberWidth, true);
    SetIndex(ComboIndexByLeftValue(*this, chosen, kTypeNumberWidth));
}

int DocumentTypeField::Type() const {
    return static_cast<int>(Val(MidText(Chosen(), 1, kTypeNumberWidth)));
}

std::string DocumentTypeField::Statement() {
    return "Select fSetNo, fSetName from tJXC_InvSet Where fSetNo<50 And fSetNoUse_<>1 Order By fRowID";
}

} // namespace jxc
