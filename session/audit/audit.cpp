#include "session/audit/audit.h"

#include <array>
#include <map>
#include <unistd.h>

#include <sodium.h>

#include "base/date.h"
#include "base/json_value.h"
#include "base/text.h"
#include "database/engine.h"
#include "database/recordset.h"
#include "database/row_inserter.h"
#include "database/schema.h"
#include "session/session.h"

namespace jxc {

namespace {

const std::string kTable = "tJXC_Audit";

// The fields of a row in the order in which its seal covers them; the seal itself stands behind them.
const std::vector<std::string> kFields = {"fID",    "fTime", "fUser", "fServerUser", "fMachine", "fAction",
                                          "fTable", "fKey",  "fName", "fBefore",     "fAfter",   "fHash"};
constexpr size_t kID = 0;
constexpr size_t kSeal = 11;

const std::string& Machine() {
    static const std::string name = [] {
        std::array<char, 256> buffer{};
        return gethostname(buffer.data(), buffer.size() - 1) == 0 ? std::string(buffer.data()) : "";
    }();
    return name;
}

// BLAKE2b over the seal before and the fields, each behind its length: nothing can move from one field to the next.
class Seal {
  public:
    explicit Seal(const std::string& before) {
        crypto_generichash_init(&state_, nullptr, 0, kBytes);
        Cover(before);
    }
    void Cover(const std::string& field) {
        const std::string length = std::to_string(field.size()) + ":";
        Update(length);
        Update(field);
    }
    std::string Text() {
        std::array<unsigned char, kBytes> hash{};
        crypto_generichash_final(&state_, hash.data(), hash.size());
        std::array<char, kBytes * 2 + 1> hex{};
        sodium_bin2hex(hex.data(), hex.size(), hash.data(), hash.size());
        return hex.data();
    }

  private:
    static constexpr size_t kBytes = 32;
    void Update(const std::string& bytes) {
        crypto_generichash_update(&state_, reinterpret_cast<const unsigned char*>(bytes.data()),
                                  bytes.size());
    }
    crypto_generichash_state state_{};
};

// Of a pass word's hash: whether it is another one, and no more.
std::string Veiled(const std::string& hash) {
    Seal seal("");
    seal.Cover(hash);
    return "***" + seal.Text().substr(0, 4);
}

std::string LastRowStatement() {
    return "Select Top 1 fID,fHash From " + kTable + " Order By fID Desc";
}

std::string SealOf(const std::string& before, const Recordset& row) {
    Seal seal(before);
    for (size_t field = 0; field < kSeal; ++field)
        seal.Cover(row[field].AsText());
    return seal.Text();
}

} // namespace

std::string FieldNameOf(const std::string& told) {
    static const std::map<std::string, std::string> names = [] {
        std::map<std::string, std::string> all;
        for (const TableDef& table : AllTables())
            for (const FieldDef& field : table.fields)
                all.emplace(LowerCase(field.name), field.name);
        return all;
    }();
    const auto known = names.find(LowerCase(told));
    return known == names.end() ? told : known->second;
}

std::string JsonOf(const AuditedFields& fields) {
    Json json = Json::object();
    for (const auto& [name, value] : fields)
        json[name] = EqualsNoCase(name, "fPassword") && !value.AsText().empty() ? Json(Veiled(value.AsText()))
                                                                                : JsonValue(value);
    return JsonText(json);
}

std::string JsonOf(const Recordset& row) {
    if (!row.HasRow())
        return "";
    AuditedFields fields;
    for (size_t field = 0; field < row.FieldCount(); ++field)
        fields.emplace_back(FieldNameOf(row.FieldName(field)), row[field]);
    return JsonOf(fields);
}

Connection::Expected AuditRead() {
    return {LastRowStatement()};
}

void WriteAudit(const AuditedAction& action) {
    if (!Conn().HasColumn(kTable, "fHash"))
        return;
    const Recordset last(Conn(), LastRowStatement());
    const std::int64_t id = last.AtEnd() ? 1 : last["fID"].AsLong() + 1;
    const std::vector<std::string> values = {
        std::to_string(id), NowText(),     session.UserName, Conn().EngineInUse().ServerUser(),
        Machine(),          action.action, action.table,     action.key,
        action.name,        action.before, action.after};
    Seal seal(last.AtEnd() ? "" : last["fHash"].AsText());
    RowInserter row(Conn(), kTable, kFields);
    row.Set(kID, id);
    seal.Cover(values[kID]);
    for (size_t field = kID + 1; field < kSeal; ++field) {
        seal.Cover(values[field]);
        row.Set(field, values[field]);
    }
    row.Set(kSeal, seal.Text());
    row.Insert();
}

AuditHead ReadAuditHead(Connection& connection) {
    if (!connection.HasColumn(kTable, "fHash"))
        return {};
    const Recordset last(connection, LastRowStatement());
    return last.AtEnd() ? AuditHead{} : AuditHead{last["fID"].AsLong(), last["fHash"].AsText()};
}

std::vector<std::string> AuditFaults(Connection& connection) {
    std::vector<std::string> faults;
    if (!connection.HasColumn(kTable, "fHash"))
        return faults;
    constexpr int kSlice = 10000; // rows in memory at once
    std::string before;
    std::int64_t expected = 1;
    const AuditHead head = ReadAuditHead(connection);
    for (std::int64_t from = 1; from <= head.rows; from += kSlice) {
        Recordset rows(connection, "Select " + JoinedByCommas(kFields) + " From " + kTable +
                                       " Where fID>=" + std::to_string(from) + " And fID<" +
                                       std::to_string(from + kSlice) + " Order By fID");
        for (; !rows.AtEnd(); rows.MoveNext(), ++expected) {
            const std::int64_t id = rows[kID].AsLong();
            if (id != expected)
                faults.push_back("操作日志：第 " + std::to_string(expected) + " 行至第 " +
                                 std::to_string(id - 1) + " 行缺失。");
            else if (SealOf(before, rows) != rows[kSeal].AsText())
                faults.push_back("操作日志：第 " + std::to_string(id) + " 行（" + rows["fTime"].AsText() +
                                 " " + rows["fAction"].AsText() + " " + rows["fName"].AsText() +
                                 "）与其校验值不符，内容可能被改动。");
            expected = id;
            before = rows[kSeal].AsText();
        }
    }
    return faults;
}

} // namespace jxc
