#include "host/passwords.h"

#include <stdexcept>

#include <sodium.h>

#include "base/text.h"
#include "database/engine.h"
#include "database/recordset.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr unsigned long long kPasses = 3;
constexpr size_t kMemory = size_t{64} << 20;

std::string RowOf(const std::string& user) {
    return "select * from tHostUser where fUserName=" + InQuotes(user);
}

} // namespace

std::string HashOfPassword(const std::string& password) {
    if (password.empty())
        return "";
    char hash[crypto_pwhash_STRBYTES];
    if (sodium_init() < 0 || crypto_pwhash_str(hash, password.data(), password.size(), kPasses, kMemory) != 0)
        throw std::runtime_error("内存不足，不能处理密码。");
    return hash;
}

bool IsPassword(const std::string& kept, const std::string& password) {
    return sodium_init() >= 0 &&
           crypto_pwhash_str_verify(kept.c_str(), password.data(), password.size()) == 0;
}

std::map<std::string, std::string> KeptPasswords() {
    std::map<std::string, std::string> kept;
    if (!Conn().HasColumn("tHostUser", "fPassword"))
        return kept; // a company of an older version that is only looked at
    const std::string letIn = Conn().EngineInUse().ServerUser();
    for (Recordset row(Conn(), "select * from tHostUser Where fPassword<>''"); !row.AtEnd(); row.MoveNext())
        if (!EqualsNoCase(row["fUserName"].AsText(), letIn))
            kept[row["fUserName"].AsText()] = row["fPassword"].AsText();
    return kept;
}

std::string KeptPassword(const std::string& user) {
    for (const auto& [name, hash] : KeptPasswords())
        if (EqualsNoCase(name, user))
            return hash;
    return "";
}

void KeepPassword(const std::string& user, const std::string& hash) {
    Transaction transaction(Conn());
    Recordset row(Conn(), RowOf(user), Access::Write);
    if (row.AtEnd())
        throw std::runtime_error("帐套中没有用户“" + user + "”。");
    const std::string before = JsonOf(row);
    row.Set("fPassword", hash);
    WriteAudit({"修改密码", "tHostUser", user, user, before, JsonOf(row)});
    row.Update();
    transaction.Commit();
}

} // namespace jxc
