#include "host/company/backup.h"

#include <filesystem>

#include "host/company_address.h"
#include "session/database/open_connection.h"
#include "session/database/sqlite_engine.h"
#include "session/session.h"

namespace jxc {

namespace {

void ProveReadable(const std::string& file) {
    Connection connection;
    OpenConnection(0, connection, file, "", "", "");
    connection.Query("Select Count(*) From tJXC_CkDj01");
}

} // namespace

void BackUpCompany(const std::string& company, const std::string& file) {
    if (DialectOf(company) != 0)
        throw DatabaseError("数据库服务器上的帐套，请用服务器的备份工具（pg_dump）备份。");
    if (std::filesystem::exists(file))
        throw DatabaseError("文件已经存在：" + file);
    try {
        SqliteEngine(company, false).CopyTo(file);
        ProveReadable(file);
    } catch (const std::exception&) {
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
        throw;
    }
}

void RestoreCompany(const std::string& file, const std::string& company) {
    ProveReadable(file);
    BackUpCompany(file, company);
}

} // namespace jxc
