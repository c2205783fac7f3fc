// The trail of what was done to the company: one row an action, written in the action's own transaction, so that it
// stands if and only if the action does. No screen changes it. Each row's seal covers its content and the seal of the row
// before it: a row that was changed, taken out or put between shows when the chain is walked. Whoever owns the database can
// still write the whole chain anew; the count and the last seal, kept elsewhere, show that too.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/value.h"
#include "database/recordset.h"

namespace jxc {

// The field as the system writes it: a server tells names in lower case.
std::string FieldNameOf(const std::string& told);

// Fields and what they hold, as the trail keeps it: a JSON object, in their order. A pass word is not kept.
using AuditedFields = std::vector<std::pair<std::string, Value>>;
std::string JsonOf(const AuditedFields& fields);
// The fields of the row at which it stands, or which it adds, as last assigned; "" behind the last row.
std::string JsonOf(const Recordset& row);

// What was done, to what.
struct AuditedAction {
    std::string action; // 新增, 修改, 删除, 审核, 反审核, 改名 ...
    std::string table;  // of the row that says what it is
    std::string key;    // of that row
    std::string name;   // what people call it: a number, a code, a name
    std::string before; // JSON, "" for nothing
    std::string after;
};

// Writes it inside the caller's transaction, with who (the session's user, and as whom a server let the program in), when
// and on which machine. Errors are thrown: what cannot be recorded is not done. A company whose tables are not the
// program's own to complete, and that has none for the trail, goes without.
void WriteAudit(const AuditedAction& action);
// What it reads, to be read ahead by callers who wait for a server.
Connection::Expected AuditRead();

// Of the trail as it stands: how many rows, and the last one's seal, "" without rows.
struct AuditHead {
    std::int64_t rows = 0;
    std::string seal;
};
AuditHead ReadAuditHead(Connection& connection);

// Walks the chain and tells what is wrong, a text for people each; none for a sound trail.
std::vector<std::string> AuditFaults(Connection& connection);

} // namespace jxc
