// A document as values: what is written, approved and taken back, whether a person entered it at a screen or a
// routine made it. Numbers are numbers here: no amount passes through the text in which it is shown.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/date.h"
#include "documents/stored_document.h"
#include "settings/parameters.h"
#include "settings/type_row.h"

namespace jxc {

// The decimals with which figures are shown and stored, whatever the company's for quantities and prices.
constexpr int kAmountDecimals = 2; // of amounts, taxes, totals and payments
constexpr int kTaxRateDecimals = 4;
constexpr int kRateDecimals = 4; // of exchange rates

struct DocumentLine {
    std::int64_t product = 0; // fCpID
    double quantity = 0;      // negative in a return; of a stocktake what was counted beyond the book
    double bookQuantity = 0;  // of a stocktake, and what was counted
    double counted = 0;
    double balance = 0; // of a stored order: what is still to come of it
    double price = 0;   // of one piece, in document currency
    // In document currency and as they were worked out: StoredAmount and its like give what is stored. The tax
    // rate is a fraction.
    double amount = 0;
    double taxRate = 0;
    double tax = 0;
    std::string memo1 = {};
    std::string memo2 = {};
};

struct DocumentData {
    TypeRow type;
    std::int32_t key = 0; // fInvID; 0 for a document that is not written yet
    std::string number;
    Date date = MakeDate(1900, 1, 1);
    std::string order; // the number of the order that it refers to, "" for none
    std::string warehouse;
    std::string warehouse2;
    std::int64_t customer = 0; // card number, 0 for none
    std::string address;
    std::string currency;
    double rate = 1; // home currency for one unit of the document's
    std::string memo;
    std::string handler;
    bool stopped = false;
    double payment = 0;   // received or paid at the approval
    std::string approver; // "" while it is not approved

    // Of a kit document.
    std::int64_t finishedProduct = 0; // fCpID
    std::string finishedProductCode;
    double kitQuantity = 1;

    std::vector<DocumentLine> lines;
    int firstRow = 1; // fRowID of the first line: the orders of a plan are numbered through
    // What the header says, which an approval posts; TotalOf the lines when it is written.
    double total = 0;

    CostMethod costMethod = CostMethod::WeightedAverage; // by which an approval finds the cost of issues
    std::string accountRule; // by which it is expected to number its account entry, "" for none
};

// What is stored of a line's figures.
double StoredAmount(const DocumentLine& line);
double StoredTaxRate(const DocumentLine& line);
double StoredTax(const DocumentLine& line);
// The sum of the line amounts as stored.
double TotalOf(const std::vector<DocumentLine>& lines);

// The stem of the open book in which documents of its type are.
std::string StemOf(const DocumentData& document);

// A document of the type with nothing in it, for a routine to fill. Reads the type's row and the parameters. A
// DatabaseError when the type is not in use.
DocumentData BlankDocument(int type);

// A stored document, and the witness of how it stood when it was read.
struct DocumentRead {
    DocumentData data;
    StoredDocument asLoaded;
};
// Reads the document of that type and key from its open book; asLoaded does not Exist when it is gone. A DatabaseError
// when the type is not in use or the statement fails.
DocumentRead ReadDocument(int type, std::int32_t key);

} // namespace jxc
