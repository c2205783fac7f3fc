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

// One type, its choices by the numbers of type_codes.h; the members stand in the column order of tJXC_InvSet, on which the settings screen relies. A
// member without a value is a cell without one. fRowID, fSetTestNo, fSetDefaultNo and fSetNoUse_ are the same
// for all and left out.
struct DocumentTypeRow {
    std::int16_t fSetNo;
    std::string_view fSetName;
    std::optional<std::int16_t> fSetTjType; // Statistics
    std::int16_t fSetKhType;                // Partner
    std::int16_t fSetWlType;                // Owed
    std::optional<std::int16_t> fSetZjType; // Cash
    std::optional<std::int16_t> fSetDjBack_;
    std::optional<std::int16_t> fSetDjDd_;
    std::string_view fSetAutoNo;
    std::optional<std::string_view> fSetCkName1;
    std::int16_t fSetCkType1; // WarehouseKind
    std::int16_t fSetCrType1; // Direction
    std::optional<std::string_view> fSetCkName2;
    std::int16_t fSetCkType2;
    std::int16_t fSetDjType1; // PriceKind
    std::int16_t fSetDjType2; // PriceKind
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
