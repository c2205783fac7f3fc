#include "session/printing/stored_templates.h"

#include "database/recordset.h"
#include "session/audit/audit.h"
#include "session/session.h"

namespace jxc {

namespace {

const std::string kTable = "tJXC_PrintTemplate";

std::string Statement(int type) {
    return "select * from " + kTable + " where fSetNo=" + std::to_string(type) +
           " And fLanguage=" + std::to_string(session.Language);
}

std::optional<std::string> TextOf(const Recordset& row) {
    return row.AtEnd() ? std::nullopt : std::optional(row["fText"].AsText());
}

} // namespace

// A company that the server's user may not complete goes without the table.
std::optional<std::string> StoredTemplate(int type) {
    if (!Conn().HasColumn(kTable, "fText"))
        return std::nullopt;
    return TextOf(Recordset(Conn(), Statement(type)));
}

bool KeepTemplate(int type, const std::string& name, const std::optional<std::string>& expected,
                  const std::optional<std::string>& text) {
    Transaction transaction(Conn());
    Recordset row(Conn(), Statement(type), Access::Write);
    if (TextOf(row) != expected)
        return false;
    if (expected == text)
        return true; // nothing to write, and nothing for the trail
    const bool isNew = row.AtEnd();
    const std::string before = isNew ? "" : JsonOf(row);
    std::string after;
    if (text) {
        if (isNew) {
            row.AddNew();
            row.Set("fSetNo", type);
            row.Set("fLanguage", session.Language);
        }
        row.Set("fText", *text);
        after = JsonOf(row);
        row.Update();
    } else {
        row.Delete();
    }
    WriteAudit({!text ? "删除" : isNew ? "新增" : "修改", kTable, std::to_string(type), name, before, after});
    transaction.Commit();
    return true;
}

} // namespace jxc
