#include "documents/write_document.h"

#include "base/text.h"
#include "database/recordset.h"
#include "database/row_inserter.h"
#include "documents/audit_document.h"
#include "documents/document_checks.h"
#include "documents/document_model.h"
#include "documents/figure_bounds.h"
#include "session/audit/audit.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

// The fields of a line, by their place in kLineFields.
enum LineField {
    kInv1,
    kRowID,
    kInvID,
    kInvInOut,
    kCkName,
    kInvNo,
    kInvDate,
    kInvHb,
    kInvHbDl,
    kKhID,
    kCpID,
    kInvSL,
    kInvSL2,
    kInvDJ,
    kInvDJ2,
    kInvJE,
    kInvTaxRate,
    kInvTax,
    kInvOther1,
    kInvOther2
};
const std::vector<std::string> kLineFields = {"fInv1",  "fRowID",      "fInvID",  "fInvInOut",  "fCkName",
                                              "fInvNo", "fInvDate",    "fInvHb",  "fInvHbDl",   "fKhID",
                                              "fCpID",  "fInvSL",      "fInvSL2", "fInvDJ",     "fInvDJ2",
                                              "fInvJE", "fInvTaxRate", "fInvTax", "fInvOther1", "fInvOther2"};

// Writes the lines of a document on one of its two sides: inv1 0 on the first warehouse, 1 on the second. The fields that
// they share with the header stand in each, so that reports need no join.
class Lines {
  public:
    Lines(const DocumentData& document, int inv1) : rows_(Conn(), StemOf(document) + "02", kLineFields) {
        const TypeRow& type = document.type;
        const bool second = inv1 == 1;
        rows_.Set(kInv1, inv1);
        rows_.Set(kInvID, std::int64_t{document.key});
        rows_.Set(kInvInOut, second ? DirectionOfSecondRow(type) : DirectionOfFirstRow(type));
        rows_.Set(kCkName, second ? document.warehouse2 : type.HasFirstWarehouse() ? document.warehouse : "");
        rows_.Set(kInvNo, document.number);
        rows_.Set(kInvDate, IsoText(document.date));
        rows_.Set(kInvHb, document.currency);
        rows_.Set(kInvHbDl, document.rate);
        rows_.Set(kInvDJ2, 0);
    }

    void SetFigures(int at, const DocumentLine& line) {
        rows_.Set(kRowID, at);
        rows_.Set(kCpID, line.product);
        rows_.Set(kInvSL, line.quantity);
        rows_.Set(kInvDJ, line.price);
        rows_.Set(kInvJE, StoredAmount(line));
        rows_.Set(kInvTaxRate, StoredTaxRate(line));
        rows_.Set(kInvTax, StoredTax(line));
        rows_.Set(kInvOther1, line.memo1);
        rows_.Set(kInvOther2, line.memo2);
    }

    void Set(LineField field, Value value) { rows_.Set(field, std::move(value)); }
    void Insert() { rows_.Insert(); }

  private:
    RowInserter rows_;
};

void WriteOrdinaryLines(const DocumentData& document, bool isNew, bool second) {
    Lines lines(document, second ? 1 : 0);
    lines.Set(kKhID, document.type.HasCustomer() ? document.customer : 0);
    const auto secondQuantity = SecondQuantity(document, isNew, second);
    int at = document.firstRow;
    for (const DocumentLine& line : document.lines) {
        lines.SetFigures(at++, line);
        if (secondQuantity)
            lines.Set(kInvSL2, line.*secondQuantity);
        lines.Insert();
    }
}

// The parts on the first warehouse.
void WriteParts(const DocumentData& document) {
    Lines lines(document, 0);
    int at = 0;
    for (const DocumentLine& line : document.lines) {
        lines.SetFigures(++at, line);
        lines.Insert();
    }
}

// The finished product on the second.
void WriteFinishedProduct(const DocumentData& document) {
    Lines lines(document, 1);
    lines.SetFigures(1, FinishedProductLine(document));
    lines.Insert();
}

void WriteLines(const DocumentData& document, bool isNew) {
    if (document.type.IsKit()) {
        WriteParts(document);
        WriteFinishedProduct(document);
        return;
    }
    WriteOrdinaryLines(document, isNew, false);
    if (document.type.HasSecondWarehouse())
        WriteOrdinaryLines(document, isNew, true);
}

void InsertHeader(const DocumentData& document) {
    const auto values = HeaderFields(document);
    std::vector<std::string> names{"fInvID"};
    for (const auto& [name, value] : values)
        names.push_back(name);
    RowInserter row(Conn(), StemOf(document) + "01", names);
    row.Set(0, std::int64_t{document.key});
    for (size_t i = 0; i < values.size(); ++i)
        row.Set(i + 1, values[i].second);
    row.Insert();
}

void UpdateHeader(const DocumentData& document) {
    Recordset row(Conn(), StoredHeaderStatement(StemOf(document), document.key), Access::Write);
    for (auto& [name, value] : HeaderFields(document))
        row.Set(name, value);
    row.Update();
}

std::string FigureRefused(const DocumentData& document) {
    if (document.type.IsKit() && document.kitQuantity == 0)
        return "请输入产品套数！";
    if (document.type.IsKit() && document.finishedProduct == 0)
        return "请输入组装产品及其数量。";
    const auto refusal = FigureOutOfBounds(document);
    return refusal ? refusal->text : "";
}

std::vector<Connection::Expected> StoredDocumentReads(const DocumentData& document) {
    std::vector<Connection::Expected> reads = CheckStatements(document);
    reads.push_back(AuditRead());
    return reads;
}

// Why the stored document may not be changed or deleted any more.
std::string MayStillBeWritten(const DocumentData& document, const StoredDocument& asLoaded,
                              DocAction action) {
    const std::string refusal = ChangedMeanwhile(document, asLoaded, action);
    return refusal.empty() ? DatedBeforePeriod(document, action) : refusal;
}

} // namespace

DocumentLine FinishedProductLine(const DocumentData& document) {
    const double total = TotalOf(document.lines);
    return {.product = document.finishedProduct,
            .quantity = document.kitQuantity,
            .price = total / document.kitQuantity,
            .amount = total,
            .memo1 = "产品套件"};
}

double DocumentLine::*SecondQuantity(const DocumentData& document, bool isNew, bool second) {
    if (document.type.fSetJy_ && !second)
        return isNew ? &DocumentLine::quantity : &DocumentLine::balance;
    return document.type.IsStocktake() ? &DocumentLine::bookQuantity : nullptr;
}

std::vector<std::pair<std::string, Value>> HeaderFields(const DocumentData& document) {
    const TypeRow& type = document.type;
    return {{"fHtNo", document.order},
            {"fInvType", type.fSetNo},
            {"fInvNo", document.number},
            {"fInvDate", IsoText(document.date)},
            {"fInvHb", document.currency},
            {"fInvHbDl", document.rate},
            {"fInvJE", TotalOf(document.lines)},
            {"fInvMemo", document.memo},
            {"fInvDLR", session.UserName},
            {"fInvJbr", document.handler},
            {"fInvSHR", ""},
            {"fKhID", type.HasCustomer() ? document.customer : 0},
            {"fKhAdd", type.HasCustomer() ? document.address : ""},
            {"fCkName", type.HasFirstWarehouse() ? document.warehouse : ""},
            {"fCkName2", type.HasSecondWarehouse() ? document.warehouse2 : ""},
            {"fFlag", document.stopped ? 1 : 0}};
}

std::vector<Connection::Expected> NewDocumentReads(const DocumentData& document) {
    const std::string stem = StemOf(document);
    std::vector<Connection::Expected> reads{
        {ParametersStatement()}, {NumberStatement(stem, document.number)}, AuditRead()};
    for (const std::string& keys : LargestKeyReads(stem))
        reads.push_back({keys});
    return reads;
}

// Key and number are taken inside the transaction, where no other user can come between.
std::string WriteNewDocument(DocumentData& document) {
    const ReadAhead ahead(Conn(), NewDocumentReads(document));
    const std::string stem = StemOf(document);
    std::string refusal = FigureRefused(document);
    if (refusal.empty())
        refusal = DatedBeforePeriod(document, DocAction::New);
    if (refusal.empty())
        refusal = NumberRefusal(stem, document.number, false);
    if (!refusal.empty())
        return refusal;
    document.key = LargestKey(stem) + 1;
    WriteUnderItsKey(document);
    return "";
}

void WriteUnderItsKey(DocumentData& document) {
    document.total = TotalOf(document.lines);
    InsertHeader(document);
    WriteLines(document, true);
    AuditWritten(document);
}

std::string WriteChangedDocument(const DocumentData& document, const StoredDocument& asLoaded,
                                 const std::string& numberBefore) {
    const std::string stem = StemOf(document);
    const ReadAhead ahead(Conn(), StoredDocumentReads(document));
    std::string refusal = FigureRefused(document);
    if (refusal.empty())
        refusal = MayStillBeWritten(document, asLoaded, DocAction::Change);
    if (refusal.empty() && !EqualsNoCase(document.number, numberBefore))
        refusal = NumberRefusal(stem, document.number, true);
    if (!refusal.empty())
        return refusal;
    UpdateHeader(document);
    Conn().Execute("Delete From " + stem + "02 Where fInvID=" + std::to_string(document.key));
    WriteLines(document, false);
    AuditChanged(document, asLoaded);
    return "";
}

std::string DeleteDocument(const DocumentData& document, const StoredDocument& asLoaded) {
    const ReadAhead ahead(Conn(), StoredDocumentReads(document));
    std::string refusal = MayStillBeWritten(document, asLoaded, DocAction::Delete);
    if (refusal.empty() && !DeleteDocumentRows(StemOf(document), "fInvID=" + std::to_string(document.key)))
        throw DatabaseError("删除单据失败。");
    if (refusal.empty())
        AuditDeleted(document, asLoaded);
    return refusal;
}

} // namespace jxc
