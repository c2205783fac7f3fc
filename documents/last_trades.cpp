// What a product was bought or sold for last, at hand in the line of a document.

#include <cmath>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/frmDjTrades.h"
#include "session/lookups/book.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr size_t kTradesShown = 3;

std::string TradesStatement(const TradesSought& sought, bool closed, bool anybody) {
    const std::string stem = BookStem(DocType::Receipt, closed);
    // Keys may come again in another closed month.
    const std::string sameDocument =
        closed ? "(a.fInvID=b.fInvID And a.fMonth=b.fMonth)" : "a.fInvID=b.fInvID";
    return "Select Top " + std::to_string(kTradesShown) +
           " b.fInvDate,s.fSetName,b.fInvNo,c.CompName,b.fInvHb,b.fInvSL,b.fInvDJ From ((" + stem +
           "02 b Inner Join " + stem + "01 a On " + sameDocument +
           ") Left Join tJXC_InvSet s On a.fInvType=s.fSetNo) Left Join cards c On b.fKhID=c.fID Where " +
           (anybody ? "" : "b.fKhID=" + std::to_string(sought.customer) + " And ") +
           "b.fCpID=" + std::to_string(sought.product) + " And b.fInv1=0 And a.fInvType" +
           (sought.sales ? " In (2,5,7)" : "=1") + " And a.fInvSHR<>''" +
           (closed ? "" : " And b.fInvID<>" + std::to_string(sought.butKey)) +
           " Order By b.fInvDate Desc,b.fInvID Desc";
}

// Closed documents are older than open ones.
void AddTrades(std::vector<Trade>& trades, const TradesSought& sought, bool anybody) {
    const size_t until = trades.size() + kTradesShown;
    for (const bool closed : {false, true}) {
        if (trades.size() == until)
            return;
        Recordset row(Conn(), TradesStatement(sought, closed, anybody));
        for (; !row.AtEnd() && trades.size() < until; row.MoveNext())
            trades.push_back({.withCustomer = !anybody,
                              .date = row["fInvDate"].AsText().substr(0, 10),
                              .type = row["fSetName"].AsText(),
                              .number = row["fInvNo"].AsText(),
                              .customer = row["CompName"].AsText(),
                              .currency = row["fInvHb"].AsText(),
                              .quantity = row["fInvSL"].AsDouble(),
                              .price = row["fInvDJ"].AsDouble()});
    }
}

bool Sells(const TypeRow& type) {
    const int type1 = std::abs(type.fSetNo);
    return type1 != DocType::Opening && type1 != DocType::Receipt && type1 != DocType::Plan &&
           type1 != DocType::Enquiry && type1 != DocType::PurchaseOrder;
}

} // namespace

std::vector<Trade> LastTrades(const TradesSought& sought) {
    std::vector<Trade> trades;
    if (sought.customer != 0)
        AddTrades(trades, sought, false);
    AddTrades(trades, sought, true);
    return trades;
}

void ShowLastTrades(frmDj02& s) {
    Grid& grid = s.Grid2;
    const int row = grid.selectedRow;
    const std::int64_t product = row > 0 ? grid.Cell(row, line::kProduct).AsLong() : 0;
    if (product == 0)
        return CurrentView().Signal("请先选择有产品的一行。");
    const bool sales = Sells(s.type);
    const ScreenToShow shown("frmDjTrades");
    auto& list = dynamic_cast<frmDjTrades&>(*shown);
    list.trades = LastTrades({.product = product,
                              .customer = s.CustomerId(),
                              .sales = sales,
                              .butKey = s.InHand() == DocAction::New ? 0 : s.oldInvID});
    if (list.trades.empty())
        return CurrentView().Signal("“" + grid.Text(row, line::kCode) + "”还没有" +
                                    (sales ? "销售" : "采购") + "记录。");
    list.title = std::string(sales ? "最近销售：" : "最近采购：") + grid.Text(row, line::kCode) + " " +
                 grid.Text(row, line::kName);
    list.homeName = s.cboInvHb.items.empty() ? "" : s.cboInvHb.items.front();
    const std::string chosen = s.type.fSetHb_ ? s.cboInvHb.Chosen() : "";
    list.currency = !grid.CanType(line::kPrice) ? "" : chosen.empty() ? list.homeName : chosen;
    ShowModal(*shown);
    if (!list.taken)
        return;
    grid.SetCell(row, line::kPrice, RoundDecimal(*list.taken, grid.Column(line::kPrice).decimals));
    RefreshTotals(s);
}

} // namespace jxc
