// What the trail keeps of a document.
#pragma once

#include <string>

#include "documents/document_data.h"

namespace jxc {

// Inside the transaction of what is done. Header and lines as they are written, or as they stood.
void AuditWritten(const DocumentData& document);
void AuditChanged(const DocumentData& document, const StoredDocument& before);
void AuditDeleted(const DocumentData& document, const StoredDocument& before);
// The approver alone changes.
void AuditApproval(const DocumentData& document, bool reversal);

} // namespace jxc
