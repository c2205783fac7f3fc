// What both floors do, statement by statement. `Api` is an engine's interface, held as thin as possible:
// Begin() and Commit(); Run(statement, values...) for statements without rows; Read(statement, onRow,
// values...), which calls onRow with each row, whose cells are Number(i), Whole(i) and Text(i).
#pragma once

#include <array>
#include <stdexcept>
#include <string>

#include "bench/receipt.h"

namespace jxc::bench {

enum class Step {
    CountNumber,
    MaxKey,
    InsertHeader,
    InsertLine,
    ReadLines,
    ReadStock,
    UpdateStock,
    InsertStock,
    ReadOverall,
    SetOverall,
    AddHistory,
    ReadRule,
    MaxAccount,
    FindAccount,
    InsertAccount,
    SetApprover,
    Count
};

// In the order of Step. Both engines take "$1" as a parameter.
constexpr const char* kStepTexts[] = {
    "select count(*) from tJXC_CkDj01 where fInvNo = $1",
    "select max(fInvID) from tJXC_CkDj01",
    "insert into tJXC_CkDj01 (fInvID, fHtNo, fInvType, fInvNo, fInvDate, fInvHb, fInvHbDl, fInvJE, fInvMemo, "
    "fInvDLR, fInvJbr, fInvSHR, fKhID, fKhAdd, fCkName, fCkName2, fFlag) "
    "values ($1, '', 1, $2, $3, $4, 1, $5, '', $6, '', '', $7, $8, $9, '', 0)",
    "insert into tJXC_CkDj02 (fInv1, fRowID, fInvID, fInvInOut, fCkName, fInvNo, fInvDate, fInvHb, fInvHbDl, "
    "fKhID, fCpID, fInvSL, fInvDJ, fInvDJ2, fInvJE, fInvTaxRate, fInvTax, fInvOther1, fInvOther2) "
    "values (0, $1, $2, 1, $3, $4, $5, $6, 1, $7, $8, $9, $10, 0, $11, 0, 0, '', '')",
    "select a.fCpID, a.fInvSL, a.fInvDJ, a.fInvHbDl, b.fCpPrice0 from tJXC_CkDj02 a "
    "left join tJXC_Cp b on a.fCpID = b.fCpID where a.fInvID = $1 order by a.fCpID, a.fCkName",
    "select fQcSl, fQcJe, fRkSl, fRkJe, fCkSl, fDkSl, fPdSl from tJXC_CkTj where fCkName = $1 and fCpID = $2",
    "update tJXC_CkTj set fRkSl = $1, fRkJe = $2, fKcSl = $3, fKcDj = $4, fKcJe = $5 "
    "where fCkName = $6 and fCpID = $7",
    "insert into tJXC_CkTj (fRkSl, fRkJe, fKcSl, fKcDj, fKcJe, fCkName, fCpID, fQcSl, fQcJe, fCkSl, fCkJe, "
    "fCkCb, fDkSl, fPdSl) values ($1, $2, $3, $4, $5, $6, $7, 0, 0, 0, 0, 0, 0, 0)",
    "select a.fCpID, a.fInvSL, a.fInvDJ, a.fInvHbDl, sum(b.fKcSl), sum(b.fKcJe) from tJXC_CkDj02 a "
    "join tJXC_CkTj b on b.fCpID = a.fCpID join tJXC_Ck c on c.fCkName = b.fCkName "
    "where a.fInvID = $1 and c.fCkType2 = 0 and c.fCkType3 = 0 "
    "group by a.fCpID, a.fInvSL, a.fInvDJ, a.fInvHbDl order by a.fCpID, a.fInvSL, a.fInvDJ, a.fInvHbDl",
    "insert into tJXC_CkTj_tmp (fCpID, fKcDj) values ($1, $2) "
    "on conflict (fCpID) do update set fKcDj = excluded.fKcDj",
    "insert into tJXC_CpGys (fCpID, fKhID, fCpSl, fCpPrice, fInvDate, fInvNo) "
    "select fCpID, fKhID, fInvSl, fInvDJ, fInvDate, fInvNo from tJXC_CkDj02 where fInvNo = $1",
    "select fSetAutoNo from tJXC_InvSet where fSetNo = 51 and fSetNoUse_ <> 1",
    "select max(fAcntNo) from tAccountDetail where fAcntNo >= $1 and fAcntNo < $2",
    "select fAcntNo from tAccountDetail where fAcntNo = $1",
    "insert into tAccountDetail (fAcntNo, fDate, fCompID, fType1, fType2, fInit, fMoneyA, fMoneyB, fBrief, "
    "fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) "
    "values ($1, $2, $3, 0, 2, 0, $4, 0, '自动挂入', $5, '', $6, '', '', '0', $7, 1)",
    "update tJXC_CkDj01 set fInvSHR = $1 where fInvID = $2",
};
static_assert(std::size(kStepTexts) == static_cast<size_t>(Step::Count));

// One transaction: the number must be free, the key is the next one, header and lines are written.
template <typename Api>
std::int64_t Save(Api& api, const Trade& trade, const Receipt& receipt, const std::string& date) {
    api.Begin();
    std::int64_t taken = 0, key = 1; // the first key is 2
    api.Read(
        Step::CountNumber, [&](const auto& row) { taken = row.Whole(0); }, receipt.number);
    if (taken > 0)
        throw std::runtime_error(receipt.number + " is taken");
    api.Read(Step::MaxKey, [&](const auto& row) { key = std::max(key, row.Whole(0)); });
    ++key;
    api.Run(Step::InsertHeader, key, receipt.number, date, trade.currency, receipt.Total(), trade.user,
            trade.supplier, trade.address, trade.warehouse);
    std::int64_t place = 0;
    for (const ReceiptLine& line : receipt.lines)
        api.Run(Step::InsertLine, ++place, key, trade.warehouse, receipt.number, date, trade.currency,
                trade.supplier, line.product.fCpID, double(line.quantity), line.Price(), line.Amount());
    api.Commit();
    return key;
}

struct PostedLine {
    std::int64_t product;
    double quantity, price, rate, cost;
};

// Reads the stock row and writes what the line makes of it.
template <typename Api>
void PostStockOf(Api& api, const Trade& trade, const PostedLine& line) {
    bool isNew = true;
    double received = line.quantity, amount = line.quantity * line.price * line.rate;
    double opened = 0, openedAmount = 0, moved = 0;
    const auto read = [&](const auto& row) {
        isNew = false;
        opened = row.Number(0);
        openedAmount = row.Number(1);
        received += row.Number(2);
        amount += row.Number(3);
        moved = row.Number(5) + row.Number(6) - row.Number(4);
    };
    api.Read(Step::ReadStock, read, trade.warehouse, line.product);
    const double incoming = opened + received;
    const double price = incoming == 0 ? line.cost : (openedAmount + amount) / incoming;
    const double stock = incoming + moved;
    api.Run(isNew ? Step::InsertStock : Step::UpdateStock, received, amount, stock, price, stock * price,
            trade.warehouse, line.product);
}

// The price over all warehouses, which the lines move on the stock that they have already entered.
template <typename Api>
void PostOverallPrices(Api& api, std::int64_t key) {
    std::array<std::pair<std::int64_t, double>, kLinesInADocument> prices;
    size_t count = 0;
    const auto read = [&](const auto& row) {
        const double quantity = row.Number(1), stock = row.Number(4) + quantity;
        const double value = row.Number(2) * row.Number(3) * quantity + row.Number(5);
        prices.at(count++) = {row.Whole(0), stock == 0 ? 0 : value / stock};
    };
    api.Read(Step::ReadOverall, read, key);
    for (size_t i = 0; i < count; ++i)
        api.Run(Step::SetOverall, prices[i].first, prices[i].second);
}

// The next number of the supplier's account entries: a month, fixed letters, a counter.
template <typename Api>
std::string NextAccountNumber(Api& api, const std::string& date) {
    std::string rule, largest;
    api.Read(Step::ReadRule, [&](const auto& row) { rule = row.Text(0); });
    const size_t stemLength = rule.find_last_not_of('X') + 1, digits = rule.size() - stemLength;
    const std::string stem = date.substr(0, 4) + date.substr(5, 2) + rule.substr(6, stemLength - 6);
    std::string behind = stem;
    ++behind.back();
    api.Read(
        Step::MaxAccount, [&](const auto& row) { largest = row.Text(0); }, stem, behind);
    const int counter = largest.empty() ? 1 : std::stoi(largest.substr(stemLength)) + 1;
    const std::string text = std::to_string(counter);
    std::string number = stem + std::string(digits - text.size(), '0') + text;
    bool taken = false;
    api.Read(
        Step::FindAccount, [&](const auto&) { taken = true; }, number);
    if (taken)
        throw std::runtime_error(number + " is taken");
    return number;
}

// One transaction: stock, prices, supplier history, account entry, approver.
template <typename Api>
void Approve(Api& api, const Trade& trade, const Receipt& receipt, const std::string& date,
             std::int64_t key) {
    api.Begin();
    std::array<PostedLine, kLinesInADocument> lines;
    size_t count = 0;
    const auto read = [&](const auto& row) {
        lines.at(count++) = {row.Whole(0), row.Number(1), row.Number(2), row.Number(3), row.Number(4)};
    };
    api.Read(Step::ReadLines, read, key);
    for (size_t i = 0; i < count; ++i)
        PostStockOf(api, trade, lines[i]);
    PostOverallPrices(api, key);
    api.Run(Step::AddHistory, receipt.number);
    const std::string account = NextAccountNumber(api, date);
    api.Run(Step::InsertAccount, account, date, trade.supplier, receipt.Total(), receipt.number, trade.user,
            trade.currency);
    api.Run(Step::SetApprover, trade.user, key);
    api.Commit();
}

template <typename Api>
void SaveAndApproveOn(Api& api, const Trade& trade, const Receipt& receipt) {
    const std::string date = IsoText(receipt.date);
    Approve(api, trade, receipt, date, Save(api, trade, receipt, date));
}

} // namespace jxc::bench
