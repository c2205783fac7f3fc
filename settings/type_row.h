// A row of the document type table: what makes a receipt a receipt. Documents read it when they open.
#pragma once

#include <optional>
#include <string>

#include "database/recordset.h"
#include "settings/type_codes.h"

namespace jxc {

struct DocumentTypeRow;

// The choices of list columns are the numbers of type_codes.h.
struct TypeRow {
    int fSetNo = 0; // DocType, or a return's negative, or a type of the company's own
    std::string fSetName;
    int fSetTjType = kNoChoice; // Statistics
    int fSetKhType = kNoChoice; // Partner
    int fSetWlType = kNoChoice; // Owed
    int fSetZjType = kNoChoice; // Cash
    bool fSetDjBack_ = false;
    bool fSetDjDd_ = false;
    std::string fSetAutoNo;
    std::string fSetCkName1;
    int fSetCkType1 = kNoChoice; // WarehouseKind
    int fSetCrType1 = kNoChoice; // Direction
    std::string fSetCkName2;
    int fSetCkType2 = kNoChoice; // WarehouseKind
    int fSetDjType1 = kNoChoice; // reference price: PriceKind
    int fSetDjType2 = kNoChoice; // unit price: PriceKind
    bool fSetHb_ = false;
    bool fSetHbSl_ = false;
    bool fSetKc_ = false;
    bool fSetJy_ = false;

    bool HasFirstWarehouse() const { return fSetCkType1 != kNoChoice; }
    bool HasSecondWarehouse() const { return fSetCkType2 != kNoChoice; }
    bool HasCustomer() const { return fSetKhType != kNoChoice; }
    bool IsStocktake() const { return fSetNo == DocType::Stocktake; }
    // Assembly and dismantling: the lines are the parts, one further row is the finished product.
    bool IsKit() const { return fSetNo == DocType::Assembly || fSetNo == DocType::Dismantling; }
    // What its approval posts, beside stock: the customer's account or the money account; and whether the goods that it
    // brings in move the whole price.
    bool MovesAccount() const { return fSetWlType == Owed::Receivable || fSetWlType == Owed::Payable; }
    bool MovesCash() const { return fSetZjType == Cash::Paid || fSetZjType == Cash::Received; }
    bool ReceivesStock() const {
        return fSetTjType == Statistics::Opening || fSetTjType == Statistics::Receipt;
    }
};

// The row at which a recordset of all the table's columns stands. An empty list column counts as kNoChoice, an empty
// flag as off.
TypeRow TypeRowOf(const Recordset& row);
// The row that the type is shipped with.
TypeRow TypeRowOf(const DocumentTypeRow& shipped);
// The type's row; nothing when there is none in use.
std::optional<TypeRow> ReadTypeRow(int type);
std::string TypeRowStatement(int type);

} // namespace jxc
