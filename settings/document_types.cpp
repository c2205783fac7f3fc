#include "settings/document_types.h"

#include <array>

#include "settings/document_numbers.h"
#include "settings/type_codes.h"

namespace jxc {

namespace {

constexpr std::nullopt_t none = std::nullopt; // NOLINT(readability-identifier-naming): a cell of the table

// clang-format off
constexpr std::array<DocumentTypeRow, 22> kTypes{{
    {DocType::Plan, "计划采购单", none, -1, -1, none, none, 0, "YYYYMMDDJHXXX", none, -1, -1, none, -1, -1, -1, 1, none, 1, 0},
    {DocType::Enquiry, "采购寻价单", none, 1, -1, none, none, 0, "YYYYMMDDXJXXX", none, -1, -1, none, -1, -1, 1, 1, 1, none, 0},
    {DocType::Quotation, "销售报价单", none, 2, -1, none, none, 0, "YYYYMMDDBJXXX", none, -1, -1, none, -1, -1, 4, 1, 1, none, 0},
    {DocType::PurchaseOrder, "采购订单", none, 1, -1, none, none, 0, "YYYYMMDDCGXXX", none, -1, -1, none, -1, -1, 1, 1, 1, 1, 1},
    {DocType::SalesOrder, "销售订单", none, 2, -1, none, none, 0, "YYYYMMDDXSXXX", none, -1, -1, none, -1, -1, 4, 1, 1, 1, 1},
    {DocType::Opening, "期初单", 0, -1, -1, none, 0, 0, "YYYYMMDDQCXXX", "仓库", 1, 1, none, -1, -1, 1, 1, none, 0, 0},
    {DocType::Receipt, "入库单", 1, 1, 2, none, 0, 1, "YYYYMMDDRKXXX", "仓库", 1, 1, none, -1, 1, 1, 1, 1, 1, 0},
    {-DocType::Receipt, "入库退货单", 1, 1, 2, none, 1, 1, "YYYYMMDDRKXXX", "仓库", 1, 1, none, -1, 1, 1, 1, 1, 1, 0},
    {DocType::Issue, "出库单", 2, 2, 1, none, 0, 1, "YYYYMMDDCKXXX", "仓库", 1, 2, none, -1, 4, 2, 1, 1, 1, 0},
    {-DocType::Issue, "出库退货单", 2, 2, 1, none, 1, 1, "YYYYMMDDCKXXX", "仓库", 1, 2, none, -1, 4, 2, 1, 1, 1, 0},
    {DocType::Transfer, "调库单", 3, -1, -1, none, none, 0, "YYYYMMDDDKXXX", "出库", 5, 2, "入库", 5, 4, 1, 1, none, 1, 0},
    {DocType::Stocktake, "盘点单", 4, -1, -1, none, none, none, "YYYYMMDDPDXXX", "仓库", 0, 1, none, -1, 4, 1, 1, none, 1, 0},
    {DocType::Retail, "零售单", 2, -1, -1, 4, 0, 0, "YYYYMMDDLSXXX", "仓库", 2, 2, none, -1, 4, 5, 1, 1, 1, 0},
    {-DocType::Retail, "零售退货单", 2, -1, -1, 4, 1, 0, "YYYYMMDDLSXXX", "仓库", 2, 2, none, -1, 4, 5, 1, 1, 1, 0},
    {DocType::Dispatch, "代销发货单", 3, 2, -1, none, none, 1, "YYYYMMDDDFXXX", "出库", 1, 2, "代销仓库", 3, 4, 3, 1, none, 1, 0},
    {-DocType::Dispatch, "代销退货单", 3, 2, -1, none, 1, 1, "YYYYMMDDDFXXX", "出库", 1, 2, "代销仓库", 3, 4, 3, 1, none, 1, 0},
    {DocType::Settlement, "代销结算单", 2, 2, 1, none, 0, 0, "YYYYMMDDDJXXX", "代销仓库", 3, 2, none, -1, 4, 3, 1, 1, 1, 0},
    {-DocType::Settlement, "代销结退单", 2, 2, 1, none, 1, 0, "YYYYMMDDDTXXX", "代销仓库", 3, 2, none, -1, 4, 3, 1, 1, 1, 0},
    {DocType::Assembly, "生产组装单", 3, -1, -1, none, none, none, "YYYYMMDDZZXXX", "散件出库", 4, 2, "成品入库", 1, -1, 1, 1, none, 1, 0},
    {DocType::Dismantling, "生产拆分单", 3, -1, -1, none, none, none, "YYYYMMDDCFXXX", "成品出库", 1, 2, "散件入库", 4, -1, 1, 1, none, 1, 0},
    {kSeriesCustomerAccount, "客户往来帐", none, -1, -1, none, none, none, "YYYYMMWLXXXXX", none, -1, -1, none, -1, -1, -1, 0, none, 0, 0},
    {kSeriesMoneyAccount, "内部资金帐", none, -1, -1, none, none, none, "YYYYMMZJXXXXX", none, -1, -1, none, -1, -1, -1, 0, none, 0, 0},
}};
// clang-format on

Value Cell(std::optional<std::int16_t> number) {
    return number ? Value(int{*number}) : Value();
}
Value Cell(std::optional<std::string_view> text) {
    return text ? Value(*text) : Value();
}

} // namespace

std::span<const DocumentTypeRow> DefaultDocumentTypes() {
    return kTypes;
}

std::vector<Value> RecordCells(const DocumentTypeRow& type, int fRowID) {
    return {
        fRowID,
        int{type.fSetNo},
        type.fSetName,
        Cell(type.fSetTjType),
        int{type.fSetKhType},
        int{type.fSetWlType},
        Cell(type.fSetZjType),
        Cell(type.fSetDjBack_),
        Cell(type.fSetDjDd_),
        type.fSetAutoNo,
        "", // no number has been tried yet
        Cell(type.fSetCkName1),
        int{type.fSetCkType1},
        int{type.fSetCrType1},
        Cell(type.fSetCkName2),
        int{type.fSetCkType2},
        int{type.fSetDjType1},
        int{type.fSetDjType2},
        int{type.fSetHb_},
        Cell(type.fSetHbSl_),
        Cell(type.fSetKc_),
        int{type.fSetJy_},
        type.fSetAutoNo, // the rule to fall back on
        0,               // in use
    };
}

} // namespace jxc
