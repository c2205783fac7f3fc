#include "documents/audit_document.h"

#include <algorithm>

#include "base/json_value.h"
#include "base/text.h"
#include "documents/write_document.h"
#include "session/audit/audit.h"
#include "session/session.h"

namespace jxc {

namespace {

// The cells of a line stand in the order of StoredLinesStatement, whoever wrote them.
Json LineCells(const DocumentLine& line, int side, int at, const std::string& warehouse,
               double DocumentLine::*secondQuantity) {
    return Json::array({side, at, warehouse, line.product, line.quantity,
                        secondQuantity ? Json(line.*secondQuantity) : Json(), line.price, StoredAmount(line),
                        StoredTax(line), line.memo1, line.memo2});
}

// One side of the document, as it is written.
void AddLines(Json& lines, const DocumentData& document, bool isNew, bool second) {
    const std::string warehouse = second                              ? document.warehouse2
                                  : document.type.HasFirstWarehouse() ? document.warehouse
                                                                      : "";
    const auto secondQuantity = document.type.IsKit() ? nullptr : SecondQuantity(document, isNew, second);
    int at = document.firstRow;
    for (const DocumentLine& line : document.lines)
        lines.push_back(LineCells(line, second ? 1 : 0, at++, warehouse, secondQuantity));
}

std::string JsonOf(const DocumentData& document, bool isNew) {
    Json json;
    for (const auto& [name, value] : HeaderFields(document))
        json[name] = JsonValue(value);
    Json& lines = json["lines"] = Json::array();
    AddLines(lines, document, isNew, false);
    if (document.type.IsKit())
        lines.push_back(LineCells(FinishedProductLine(document), 1, 1, document.warehouse2, nullptr));
    else if (document.type.HasSecondWarehouse())
        AddLines(lines, document, isNew, true);
    return JsonText(json);
}

// The same fields of the header, so that what was before and after can be laid side by side.
std::string JsonOf(const StoredDocument& stored, const DocumentData& document) {
    Json json;
    for (const auto& [name, written] : HeaderFields(document)) {
        const auto place = std::ranges::find_if(stored.headerNames, [&field = name](const std::string& told) {
            return EqualsNoCase(told, field);
        });
        json[name] = place == stored.headerNames.end()
                         ? Json()
                         : JsonValue(stored.header[static_cast<size_t>(place - stored.headerNames.begin())]);
    }
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
    Write("新增", document, "", JsonOf(document, true));
}

void AuditChanged(const DocumentData& document, const StoredDocument& before) {
    Write("修改", document, JsonOf(before, document), JsonOf(document, false));
}

void AuditDeleted(const DocumentData& document, const StoredDocument& before) {
    Write("删除", document, JsonOf(before, document), "");
}

void AuditApproval(const DocumentData& document, bool reversal) {
    const std::string by = jxc::JsonOf({{"fInvSHR", reversal ? document.approver : session.UserName}});
    const std::string none = jxc::JsonOf({{"fInvSHR", ""}});
    Write(reversal ? "反审核" : "审核", document, reversal ? by : none, reversal ? none : by);
}

} // namespace jxc
