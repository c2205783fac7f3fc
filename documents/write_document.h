// Header and lines of a document into its open book, and out of it. All run in the caller's transaction, which a failure
// (a DatabaseError) or a refusal leaves to be rolled back. A refusal is a text for people, "" when the work was done.
#pragma once

#include <string>
#include <vector>

#include "database/connection.h"
#include "documents/document_data.h"

namespace jxc {

// What a header says of its document, by field; its key apart. It is not approved then.
std::vector<std::pair<std::string, Value>> HeaderFields(const DocumentData& document);

// The further row of a kit document: its price is what the parts of one piece come to.
DocumentLine FinishedProductLine(const DocumentData& document);
// Where fInvSL2 of a line comes from; null for nowhere: a stocktake keeps the book quantity, a new order's balance is its
// full quantity, a changed order's what is still to come of it.
double DocumentLine::*SecondQuantity(const DocumentData& document, bool isNew, bool second);

// Writes a new document under the book's next key, which it puts into `document` with the total of the lines. Refused are
// figures out of bounds, a date before the period and a number that is taken. It is not approved then. That number,
// warehouses, customer and lines are given as the type wants them is for the caller to see to.
[[nodiscard]] std::string WriteNewDocument(DocumentData& document);
// The same for a document whose key, number, date and figures the caller has seen to, as of orders that share a number.
void WriteUnderItsKey(DocumentData& document);
// What WriteNewDocument reads, to be read ahead.
std::vector<Connection::Expected> NewDocumentReads(const DocumentData& document);

// Writes a stored document anew, header and lines. Refused like a new one, and when it is not any more what
// `asLoaded` witnesses or is approved; `numberBefore` is the one that it had.
[[nodiscard]] std::string WriteChangedDocument(const DocumentData& document, const StoredDocument& asLoaded,
                                               const std::string& numberBefore);

// Deletes a stored document. Refused when it is not any more what `asLoaded` witnesses, is approved or is dated before the
// period.
[[nodiscard]] std::string DeleteDocument(const DocumentData& document, const StoredDocument& asLoaded);

} // namespace jxc
