#include "database/postgres_line.h"

#include "database/database_error.h"
#include "database/server_address.h"

namespace jxc {

namespace {

std::string Trimmed(const char* message) {
    std::string text = message ? message : "";
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
        text.pop_back();
    return text;
}

} // namespace

PostgresLine OpenLine(const ServerAddress& address) {
    std::vector<const char*> names, values;
    const auto add = [&](const char* name, const std::string& value) {
        if (value.empty())
            return;
        names.push_back(name);
        values.push_back(value.c_str());
    };
    const std::string idle = "30", unanswered = "30000"; // a network that is gone is noticed
    const std::string seconds = "10", encoding = "UTF8", program = "lzJxc";
    const std::string path = ReadableAddress(address.path);
    add("connect_timeout", seconds);
    add("keepalives_idle", idle);
    add("tcp_user_timeout", unanswered);
    add(IsServerAddress(path) ? "dbname" : "host", path);
    add("dbname", address.database);
    add("user", address.user);
    add("password", address.password);
    add("client_encoding", encoding);
    add("application_name", program);
    names.push_back(nullptr);
    values.push_back(nullptr);
    PostgresLine line(PQconnectdbParams(names.data(), values.data(), 1));
    PQsetNoticeProcessor(
        line.get(), [](void*, const char*) {}, nullptr);
    return line;
}

void RequireLine(const PostgresLine& line) {
    if (PQstatus(line.get()) == CONNECTION_OK)
        return;
    if (PQconnectionNeedsPassword(line.get()) || PQconnectionUsedPassword(line.get()))
        throw LoginError("数据库服务器拒绝登录，请检查用户名和密码：" + ReasonOf(line));
    throw DatabaseError("不能连接数据库服务器：" + ReasonOf(line));
}

std::string ReasonOf(const PostgresLine& line) {
    return Trimmed(PQerrorMessage(line.get()));
}

std::string ReasonOf(const PGresult* result) {
    return Trimmed(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY));
}

} // namespace jxc
