#include "documents/document_checks.h"

#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

std::string ApproverStatement(const DocumentData& document) {
    return "select fInvSHR from " + StemOf(document) + "01 Where fInvID=" + std::to_string(document.key);
}

std::string WithNumber(const std::string& number) {
    return "fInvNo = " + InQuotes(number);
}

} // namespace

std::vector<Connection::Expected> CheckStatements(const DocumentData& document) {
    const std::string stem = StemOf(document);
    return {{ApproverStatement(document)},
            {ParametersStatement()},
            {StoredHeaderStatement(stem, document.key)},
            {StoredLinesStatement(stem, document.key)}};
}

std::string ChangedMeanwhile(const DocumentData& document, const StoredDocument& asLoaded, DocAction action) {
    const Recordset row(Conn(), ApproverStatement(document));
    if (row.AtEnd())
        return RefusalIn(DocState::Gone, action);
    // Whose approval it is was asked before; another's since then is a change.
    const bool approved = !row["fInvSHR"].AsText().empty();
    if (std::string refusal = RefusalIn(approved ? DocState::Approved : DocState::Open, action);
        !refusal.empty())
        return refusal;
    const bool asItWas = ReadStored(StemOf(document), document.key) == asLoaded;
    return asItWas ? "" : RefusalIn(DocState::Changed, action);
}

std::string DatedBeforePeriod(const DocumentData& document, DocAction action) {
    const Date start = ReadParameters().periodStart;
    return document.date < start ? RefusalIn(DocState::BeforePeriod, action, start) : "";
}

std::string NumberStatement(const std::string& stem, const std::string& number) {
    return CountStatement(stem + "01", WithNumber(number));
}

std::string NumberRefusal(const std::string& stem, const std::string& number, bool renumbered) {
    const int count = DbCount(stem + "01", WithNumber(number));
    if (count < 0)
        return "无法检查该[单号]是否已有存在，操作已经取消！";
    if (count == 0)
        return "";
    return renumbered ? number + "：该[单号]已另有存在!" : "该[单号]已有存在!";
}

} // namespace jxc
