#include "documents/document_data.h"

#include "base/text.h"
#include "database/recordset.h"
#include "documents/approval/stages.h"
#include "session/lookups/book.h"
#include "session/session.h"

namespace jxc {

namespace {

void ReadHeader(const Recordset& header, DocumentData& data) {
    const auto text = [&](const char* field) { return header[field].AsText(); };
    const auto date = ParseDate(text("fInvDate"));
    if (!date)
        throw DatabaseError("单据 " + text("fInvNo") + " 没有日期。");
    data.number = text("fInvNo");
    data.date = *date;
    data.order = data.type.fSetDjDd_ ? text("fHtNo") : "";
    data.warehouse = text("fCkName");
    data.warehouse2 = text("fCkName2");
    data.customer = header["fKhID"].AsLong();
    data.address = text("fKhAdd");
    data.currency = text("fInvHb");
    data.rate = RoundDecimal(header["fInvHbDl"].AsDouble(), kRateDecimals);
    data.memo = text("fInvMemo");
    data.handler = text("fInvJbr");
    data.stopped = header["fFlag"].AsLong() == 1;
    data.approver = text("fInvSHR");
    data.total = RoundDecimal(header["fInvJE"].AsDouble(), kAmountDecimals);
}

DocumentLine LineOf(const Recordset& row, const TypeRow& type) {
    const auto number = [&](const char* field) { return row[field].AsDouble(); };
    DocumentLine line;
    line.product = row["fCpID"].AsLong();
    line.quantity = number("fInvSL");
    (type.IsStocktake() ? line.bookQuantity : line.balance) = number("fInvSL2");
    line.counted = line.quantity + line.bookQuantity;
    line.price = number("fInvDJ");
    line.amount = number("fInvJE");
    line.taxRate = number("fInvTaxRate");
    line.tax = number("fInvTax");
    line.memo1 = row["fInvOther1"].AsText();
    line.memo2 = row["fInvOther2"].AsText();
    return line;
}

void ReadFinishedProduct(const std::string& stem, DocumentData& data) {
    const Recordset row(Conn(), LinesStatement(stem, data.key, 1));
    if (row.AtEnd())
        return;
    data.finishedProduct = row["fCpID"].AsLong();
    data.finishedProductCode = row["fCpCode"].AsText();
    data.kitQuantity = row["fInvSL"].AsDouble();
}

} // namespace

double StoredAmount(const DocumentLine& line) {
    return RoundDecimal(line.amount, kAmountDecimals);
}
double StoredTaxRate(const DocumentLine& line) {
    return RoundDecimal(line.taxRate, kTaxRateDecimals);
}
double StoredTax(const DocumentLine& line) {
    return RoundDecimal(line.tax, kAmountDecimals);
}

double TotalOf(const std::vector<DocumentLine>& lines) {
    double total = 0;
    for (const DocumentLine& line : lines)
        total += StoredAmount(line);
    return RoundDecimal(total, kAmountDecimals);
}

std::string StemOf(const DocumentData& document) {
    return BookStem(document.type.fSetNo, false);
}

DocumentData BlankDocument(int type) {
    const auto row = ReadTypeRow(type);
    if (!row || BookStem(type, false).empty())
        throw DatabaseError("没有单据类型 " + std::to_string(type) + "。");
    DocumentData data;
    data.type = *row;
    data.costMethod = ReadParameters().costMethod;
    return data;
}

DocumentRead ReadDocument(int type, std::int32_t key) {
    DocumentRead read{BlankDocument(type), {}};
    DocumentData& data = read.data;
    const std::string stem = StemOf(data);
    const ReadAhead ahead(Conn(), {{StoredHeaderStatement(stem, key)},
                                   {StoredLinesStatement(stem, key)},
                                   {LinesStatement(stem, key, 0)}});
    // Before the rest is read: a change in between is noticed.
    read.asLoaded = ReadStored(stem, key);
    if (!read.asLoaded.Exists())
        return read;
    data.key = key;
    data.accountRule = AccountRule(data.type);
    ReadHeader(Recordset(Conn(), StoredHeaderStatement(stem, key)), data);
    for (Recordset row(Conn(), LinesStatement(stem, key, 0)); !row.AtEnd(); row.MoveNext())
        data.lines.push_back(LineOf(row, data.type));
    if (data.type.IsKit())
        ReadFinishedProduct(stem, data);
    return read;
}

} // namespace jxc
