// The last trades of a product, opened from a line of the document in hand: those with its customer first, then those with
// anybody. One of them may give the line its price.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "controls/grid.h"
#include "controls/screen.h"

namespace jxc {

// An approved receipt's or sale's line of the product.
struct Trade {
    bool withCustomer = false; // listed as one of the document's customer
    std::string date, type, number, customer, currency;
    double quantity = 0, price = 0; // the price in that currency
};

struct TradesSought {
    std::int64_t product = 0;
    std::int64_t customer = 0; // 0 for none: only those with anybody are given
    bool sales = false;        // or purchases
    std::int32_t butKey = 0;   // of the open document that asks
};

// The last three with the customer and the last three with anybody, latest first, of the open and the closed book.
// Purchases are receipts; sales are issues, retail sales and settlements of consignees. Reads only.
std::vector<Trade> LastTrades(const TradesSought& sought);

struct frmDjTrades : Screen {
    frmDjTrades();
    void Open() override;
    Arrangement Arrange() override;

    Grid Grid1{*this, "Grid1"};
    Button cmdTake{*this, "cmdTake", "取用单价(&T)", "F9"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    // Set by the opener.
    std::vector<Trade> trades;
    std::string currency; // a price of another one is not taken; "" where no price may be taken
    std::string homeName; // the currency of documents that name none
    std::optional<double> taken;

  private:
    bool MayTake(int row) const;
    void Take();
};

} // namespace jxc
