// A row of the document type table: what makes a receipt a receipt. Documents read it when they open.
#pragma once

#include <optional>
#include <string>

#include "database/recordset.h"

namespace jxc {

// The choices of list columns; -1 is "none" in each.
struct TypeRow {
    int fSetNo = 0;
    std::string fSetName;
    int fSetTjType = -1; // 0 opening, 1 receipt, 2 issue, 3 transfer, 4 stocktake
    int fSetKhType = -1; // 0 any customer, 1 supplier, 2 dealer, 3 consignee
    int fSetWlType = -1; // 1 receivable, 2 payable
    int fSetZjType = -1; // 3 paid, 4 received
    bool fSetDjBack_ = false;
    bool fSetDjDd_ = false;
    std::string fSetAutoNo;
    std::string fSetCkName1;
    int fSetCkType1 =
        -1; // 0 any warehouse, 1 head office, 2 retail, 3 consignment, 4 production, 5 not consignment
    int fSetCrType1 = -1; // 1 in, 2 out
    std::string fSetCkName2;
    int fSetCkType2 = -1;
    int fSetDjType1 = -1; // reference price: 1 to 4 are fCpPrice0 to fCpPrice3
    int fSetDjType2 = -1; // unit price: the same, 5 reference price times discount
    bool fSetHb_ = false;
    bool fSetHbSl_ = false;
    bool fSetKc_ = false;
    bool fSetJy_ = false;

    bool HasFirstWarehouse() const { return fSetCkType1 != -1; }
    bool HasSecondWarehouse() const { return fSetCkType2 != -1; }
    bool HasCustomer() const { return fSetKhType != -1; }
    bool IsStocktake() const { return fSetNo == 4; }
    // Assembly and dismantling: the lines are the parts, one further row is the finished product.
    bool IsKit() const { return fSetNo == 31 || fSetNo == 32; }
};

// The row at which a recordset of all the table's columns stands. An empty list column counts as -1, an empty flag as
// off.
TypeRow TypeRowOf(const Recordset& row);
// The type's row; nothing when there is none in use.
std::optional<TypeRow> ReadTypeRow(int type);
std::string TypeRowStatement(int type);

} // namespace jxc
