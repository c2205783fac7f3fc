#include "documents/audit_document.h"

#include "documents/write_document.h"
#include "session/audit/audit.h"
#include "session/audit/audit_json.h"
#include "session/session.h"

namespace jxc {

namespace {

// The cells of a line stand in the order of StoredLinesStatement, whoever wrote them.
std::string JsonOf(const DocumentData& document) {
    Json json;
    for (const auto& [name, value] : HeaderFields(document))
        json[name] = JsonValue(value);
    Json& lines = json["lines"] = Json::array();
    int at = 0;
    for (const DocumentLine& line : document.lines)
        lines.push_back(
            Json::array({0, ++at, document.warehouse, line.product, line.quantity, line.bookQuantity,
                         line.price, StoredAmount(line), StoredTax(line), line.memo1, line.memo2}));
    if (document.type.IsKit())
        lines.push_back(Json::array({1, 1, document.warehouse2, document.finishedProduct,
                                     document.kitQuantity, 0, 0, TotalOf(document.lines), 0, "", ""}));
    return JsonText(json);
}

std::string JsonOf(const StoredDocument& stored) {
    Json json;
    for (size_t field = 0; field < stored.headerNames.size(); ++field)
        json[FieldNameOf(stored.headerNames[field])] = JsonValue(stored.header[field]);
    Json& lines = json["lines"] = Json::array();
    for (size_t cell = 0; cell < stored.lines.size(); ++cell) {
        if (cell % StoredDocument::kLineCells == 0)
            lines.push_back(Json::array());
        lines.back().push_back(JsonValue(stored.lines[cell]));
    }
    return JsonText(json);
}

void Write(const std::string& action, const DocumentData& document, const std::string& before,
           const std::string& after) {
    WriteAudit(
        {action, StemOf(document) + "01", std::to_string(document.key), document.number, before, after});
}

} // namespace

void AuditWritten(const DocumentData& document) {
    Write("新增", document, "", JsonOf(document));
}

void AuditChanged(const DocumentData& document, const StoredDocument& before) {
    Write("修改", document, JsonOf(before), JsonOf(document));
}

void AuditDeleted(const DocumentData& document, const StoredDocument& before) {
    Write("删除", document, JsonOf(before), "");
}

void AuditApproval(const DocumentData& document, bool reversal) {
    const std::string by = jxc::JsonOf({{"fInvSHR", reversal ? document.approver : session.UserName}});
    const std::string none = jxc::JsonOf({{"fInvSHR", ""}});
    Write(reversal ? "反审核" : "审核", document, reversal ? by : none, reversal ? none : by);
}

} // namespace jxc
