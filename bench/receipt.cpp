#include "bench/receipt.h"

#include <cstdio>

#include "database/recordset.h"
#include "host/company/sample_cards.h"
#include "host/company/sample_warehouses.h"

namespace jxc::bench {

Trade ReadTrade(Connection& company) {
    Trade trade;
    trade.warehouse = kHeadOfficeWarehouse;
    trade.supplier = SampleCardByCode(trade.supplierCode).fID;
    const Recordset card(company, "select CompAdd from cards where fID=" + std::to_string(trade.supplier));
    trade.address = card["CompAdd"].AsText();
    Recordset row(company, "select fCpID,fCpCode from tJXC_Cp Where fCpFlag=0 Order By fCpID");
    for (; !row.AtEnd(); row.MoveNext())
        trade.products.push_back({row["fCpID"].AsLong(), row["fCpCode"].AsText()});
    return trade;
}

double Receipt::Total() const {
    std::int64_t cents = 0;
    for (const ReceiptLine& line : lines)
        cents += std::int64_t{line.quantity} * line.cents;
    return static_cast<double>(cents) / 100.0;
}

std::vector<Receipt> ReceiptsOf(const Trade& trade, Date day, int count) {
    std::vector<Receipt> receipts;
    for (int n = 0; n < count; ++n) {
        char number[32];
        std::snprintf(number, sizeof number, "%04d%02d%02dRK%03d", YearOf(day), MonthOf(day), DayOf(day),
                      n + 1);
        Receipt receipt{day, number, {}};
        // Ten different products; over the days all of them come up.
        for (int i = 0; i < kLinesInADocument; ++i) {
            const size_t product = static_cast<size_t>(n * 7 + i + DayOf(day)) % trade.products.size();
            receipt.lines.push_back(
                {trade.products[product], 1 + (n + i) % 20, 1005 + (n * 13 + i * 737) % 50000});
        }
        receipts.push_back(std::move(receipt));
    }
    return receipts;
}

Date FirstDay() {
    const Date today = Today();
    return MakeDate(YearOf(today), MonthOf(today), 1);
}

} // namespace jxc::bench
