// The document types as the system ships them: what a company starts with, and what the settings screen
// offers while the company has none. A type's row decides everything a document of it does: the customers,
// warehouses and prices it takes, what its approval posts, and how its numbers are built.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "base/value.h"

namespace jxc {

// One type; the members stand in the column order of tJXC_InvSet, on which the settings screen relies. A
// member without a value is a cell without one. fRowID, fSetTestNo, fSetDefaultNo and fSetNoUse_ are the same
// for all and left out.
struct DocumentTypeRow {
    std::int16_t fSetNo;
    std::string_view fSetName;
    std::optional<std::int16_t> fSetTjType; // 0 opening, 1 in, 2 out, 3 transfer, 4 stocktake
    std::int16_t fSetKhType;                // -1 no customer, 0 any, 1 supplier, 2 dealer, 3 consignee
    std::int16_t fSetWlType;                // 1 receivable, 2 payable
    std::optional<std::int16_t> fSetZjType; // 3 paid, 4 received
    std::optional<std::int16_t> fSetDjBack_;
    std::optional<std::int16_t> fSetDjDd_;
    std::string_view fSetAutoNo;
    std::optional<std::string_view> fSetCkName1;
    std::int16_t fSetCkType1; // -1 none, 0 any, 1 head office, 2 retail, 3 consignment, 4 production, 5 not
                              // consignment
    std::int16_t fSetCrType1; // 1 in, 2 out
    std::optional<std::string_view> fSetCkName2;
    std::int16_t fSetCkType2;
    std::int16_t fSetDjType1; // 1 cost, 2 wholesale, 3 consignment, 4 retail price
    std::int16_t fSetDjType2; // the same, 5 reference price times discount
    std::int16_t fSetHb_;
    std::optional<std::int16_t> fSetHbSl_;
    std::optional<std::int16_t> fSetKc_;
    std::int16_t fSetJy_;
};

// The 22 types in display order.
std::span<const DocumentTypeRow> DefaultDocumentTypes();

// All cells of a type's record in tJXC_InvSet, by column position from 0 (fRowID) to 23 (fSetNoUse_).
std::vector<Value> RecordCells(const DocumentTypeRow& type, int fRowID);

} // namespace jxc
