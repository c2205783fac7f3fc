#include "host/company/sample_warehouses.h"

#include "host/company/default_settings.h"
#include "host/company/sample_cards.h"
#include "host/company/table_writer.h"

namespace jxc {

namespace {

enum class WarehouseKind { HeadOffice, Retail, Consignment, Production };

struct Warehouse {
    std::string_view code, name, note;
    WarehouseKind kind;
    std::string_view consignee = ""; // a card's code
};
constexpr Warehouse kWarehouses[] = {
    {"01", kHeadOfficeWarehouse, "进货、批发出货", WarehouseKind::HeadOffice},
    {"02", "零售门市", "门市收款入现金帐", WarehouseKind::Retail},
    {"03", "代销仓", "汕头海湾电脑行", WarehouseKind::Consignment, "D001"},
    {"04", "生产仓", "组装电脑领料", WarehouseKind::Production},
};

} // namespace

void FillSampleWarehouses(Connection& connection) {
    TableWriter warehouses(connection, "tJXC_Ck");
    for (const Warehouse& warehouse : kWarehouses) {
        const auto flag = [&](WarehouseKind kind) { return warehouse.kind == kind ? 1 : 0; };
        warehouses.Add(
            {{"fCkCode", warehouse.code},
             {"fCkName", warehouse.name},
             {"fCkMemo", warehouse.note},
             {"fCkType0", flag(WarehouseKind::HeadOffice)},
             {"fCkType1", flag(WarehouseKind::Retail)},
             {"fCkType2", flag(WarehouseKind::Consignment)},
             {"fCkType3", flag(WarehouseKind::Production)},
             {"fCkFlag", 0},
             {"fZhID", warehouse.kind == WarehouseKind::Retail ? kCashAccount : 0},
             {"fKhID", warehouse.consignee.empty() ? 0 : SampleCardByCode(warehouse.consignee).fID}});
    }
}

} // namespace jxc
