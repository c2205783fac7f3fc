// Fields whose list comes from the company's data, each a member one line long: it knows its statement, fills itself and
// tells what was chosen. Statements that open a screen are given to be read ahead together.
#pragma once

#include <cstdint>
#include <string>

#include "forms/fields.h"

namespace jxc {

// All warehouses, also those no longer in use; a single one is chosen.
struct AllWarehousesField : ListField {
    using ListField::ListField;
    void Offer();
};

// The active warehouses of a kind (a type's fSetCkType1 or fSetCkType2), none for -1.
struct WarehouseField : ListField {
    using ListField::ListField;
    void Offer(int kind);
};

// The currencies, the company's own first.
struct CurrencyField : ListField {
    using ListField::ListField;
    void Offer();
    static std::string Statement();
};

// Who handles a document: all staff, or the salespeople. Takes other names too.
struct HandlerField : ListField {
    HandlerField(Place place, std::string name) : ListField(place, std::move(name), true) {}
    void Offer(bool fromSalespeople);
    static std::string Statement(bool fromSalespeople);
};

// The names of a code list. Takes other texts too; what stands in it stays.
struct CodeListField : ListField {
    CodeListField(Place place, std::string name, std::string codeList)
        : ListField(place, std::move(name), true), codeList(std::move(codeList)) {}
    void Offer();
    const std::string codeList;
};

// Cards of customers and suppliers that a search has found, shown by name.
struct CardField : ListBox {
    CardField(Place place, std::string name);
    // The cards that the text finds, the first one chosen; their number. See FindCustomerCard.
    int Seek(const std::string& typed);
    // One card alone, chosen.
    void Show(const std::string& companyName, std::int64_t id);
    // Number and name of the card chosen; 0 and "" for none.
    std::int64_t Id() const;
    std::string CompanyName() const;
};

// Has a field suggest the cards that its list may show. Taking one shows exactly that card, however many are named like
// it; `shown` goes on from there.
void SuggestCardsFor(EditBox& box, CardField& list, std::function<void()> shown);

// The company's internal accounts by name; what is stored is the number of the account's code.
struct AccountField : ListBox {
    AccountField(Place place, std::string name);
    void Offer();
    void Show(std::int64_t number); // chooses it, none for a number without an account
    std::int64_t Id() const;        // of the account chosen, 0 for none
};

// A product by its code or its name, and its unit. What is typed is looked for at Enter and when the box is left; the boxes
// never show a text that is not their product's.
struct ProductFields {
    ProductFields(Place place, std::string code, std::string name, std::string unit);
    ProductFields(const ProductFields&) = delete;
    ProductFields& operator=(const ProductFields&) = delete;

    TextBox code, name, unit;
    std::int32_t id = 0; // fCpID, 0 for none

    void Show(std::int32_t product, const std::string& itsCode, const std::string& itsName,
              const std::string& itsUnit);
    void Clear() { Show(0, "", "", ""); }

  private:
    void Seek(TextBox& typedInto);
};

// The document types in use, number in 3 characters, name behind.
struct DocumentTypeField : ListBox {
    using ListBox::ListBox;
    // Chooses the type of that number, none without it.
    void Offer(int chosen);
    int Type() const; // of the type chosen
    static std::string Statement();
};

} // namespace jxc
