// What another user may have done meanwhile: checks that count only inside the transaction that goes by them. Each gives
// the refusal as a text for people, "" when there is none. Errors are thrown.
#pragma once

#include <string>
#include <vector>

#include "database/connection.h"
#include "documents/document_data.h"
#include "documents/document_state.h"

namespace jxc {

// What another user did to the stored document since it was loaded; "" when it is still the one that was loaded and
// in the state that the action needs.
[[nodiscard]] std::string ChangedMeanwhile(const DocumentData& document, const StoredDocument& asLoaded,
                                           DocAction action);
// The refusal of a document dated before the period as it is now, which a close by another user may have moved.
[[nodiscard]] std::string DatedBeforePeriod(const DocumentData& document, DocAction action);
// The statements of these two checks, to be read ahead.
std::vector<Connection::Expected> CheckStatements(const DocumentData& document);

// Why a new document, or a stored one that is `renumbered`, cannot have the number: it is in the book, or that could not
// be checked.
[[nodiscard]] std::string NumberRefusal(const std::string& stem, const std::string& number, bool renumbered);
// With which it looks for the number, to be read ahead.
std::string NumberStatement(const std::string& stem, const std::string& number);

} // namespace jxc
