// The receipts that all sides write, and what they need to know of the company. The n-th receipt of a day is
// the same for every side.
#pragma once

#include <string>
#include <vector>

#include "base/date.h"
#include "database/connection.h"

namespace jxc::bench {

constexpr int kLinesInADocument = 10;

struct Product {
    std::int64_t fCpID;
    std::string code;
};

// The master data that receipts refer to, as the sample company has it.
struct Trade {
    std::string user = "王芳";
    std::string warehouse;
    std::string supplierCode = "G001";
    std::int64_t supplier = 0;
    std::string address; // the supplier's, which the screen puts into the document
    std::string currency = "人民币";
    std::vector<Product> products;
};

// Reads it from an open company.
Trade ReadTrade(Connection& company);

struct ReceiptLine {
    Product product;
    int quantity;
    int cents; // the price
    double Price() const { return cents / 100.0; }
    double Amount() const { return quantity * cents / 100.0; }
};

struct Receipt {
    Date date;
    std::string number; // as the automatic numbers of receipts give it
    std::vector<ReceiptLine> lines;
    double Total() const;
};

// `count` receipts of a day, whose numbers begin at 1.
std::vector<Receipt> ReceiptsOf(const Trade& trade, Date day, int count);

// The first day that receipts may be entered for: new companies begin on the first of the month.
Date FirstDay();

} // namespace jxc::bench
