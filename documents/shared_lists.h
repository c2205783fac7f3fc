// The drop-down lists that the screens of documents share.
#pragma once

#include "controls/control.h"

namespace jxc {

// The types in use, number in 3 characters, name behind; chooses the one of that number, none without it.
void FillTypes(ListBox& list, int chosen);
// The type's number of such an item.
int TypeOf(const std::string& item);
// The active warehouses of a type's kind (its fSetCkType1 or fSetCkType2), none for -1.
void FillWarehouses(ListBox& list, int kind);
// The currencies, the company's own first.
void FillCurrencies(ListBox& list);
// The statements of these lists but the warehouses, to be read ahead together.
std::string TypesStatement();
std::string CurrenciesStatement();
std::string HandlersStatement(bool fromSalespeople);
// The handlers: all staff, or the salespeople.
void FillHandlers(ListBox& list, bool fromSalespeople);

} // namespace jxc
