#include "tests/support/sample_company.h"

#include <cstdlib>
#include <filesystem>

#include <libpq-fe.h>
#include <unistd.h>

#include "host/company/create_company.h"
#include "host/company_address.h"
#include "host/screens.h"
#include "session/database/open_connection.h"

namespace jxc::test {

namespace {

const char* const kToday = "2026-11-05";

std::string Server() {
    return std::getenv("JXC_TEST_PG");
}

std::string DatabaseAddress(const std::string& database) {
    return Server() + (Server().find('?') == std::string::npos ? "?" : "&") + "dbname=" + database;
}

void OnServer(const std::string& statement) {
    PGconn* server = PQconnectdb(Server().c_str());
    PGresult* result = PQexec(server, statement.c_str());
    const bool failed = PQresultStatus(result) != PGRES_COMMAND_OK;
    const std::string reason = PQerrorMessage(server);
    PQclear(result);
    PQfinish(server);
    if (failed)
        throw DatabaseError(statement + ": " + reason);
}

std::filesystem::path TemporaryFile(const std::string& name) {
    return std::filesystem::temp_directory_path() / (name + ".db");
}

// What every sample company is copied from; made on first use, removed when the program ends.
struct Template {
    explicit Template(EngineKind kind) : kind(kind), name("jxc_sample_template_" + std::to_string(getpid())) {
        Remove();
        if (kind == EngineKind::Postgres)
            OnServer("create database " + name);
        CreateCompany(kind == EngineKind::Sqlite ? 0 : 1,
                      kind == EngineKind::Sqlite ? TemporaryFile(name).string() : DatabaseAddress(name),
                      CompanyKind::Sample);
    }
    ~Template() { Remove(); }
    void Remove() const {
        try {
            if (kind == EngineKind::Sqlite)
                std::filesystem::remove(TemporaryFile(name));
            else
                OnServer("drop database if exists " + name);
        } catch (const std::exception&) {
            // A server that is gone took the database with it.
        }
    }
    EngineKind kind;
    std::string name;
};

const Template& TemplateOf(EngineKind kind) {
    if (kind == EngineKind::Sqlite) {
        static const Template sqlite(EngineKind::Sqlite);
        return sqlite;
    }
    static const Template postgres(EngineKind::Postgres);
    return postgres;
}

} // namespace

SampleCompany::SampleCompany(EngineKind kind) : kind_(kind) {
    setenv("JXC_TODAY", kToday, 1);
    static int number = 0;
    name_ = "jxc_sample_" + std::to_string(getpid()) + "_" + std::to_string(++number);
    const Template& source = TemplateOf(kind);
    if (kind == EngineKind::Sqlite) {
        address_ = TemporaryFile(name_).string();
        std::filesystem::copy_file(TemporaryFile(source.name), address_);
    } else {
        address_ = DatabaseAddress(name_);
        OnServer("create database " + name_ + " template " + source.name);
    }
}

SampleCompany::~SampleCompany() {
    std::filesystem::remove_all(TemporaryFile(name_).string() + "-print");
    if (kind_ == EngineKind::Postgres)
        OnServer("drop database " + name_ + " with (force)");
    else
        for (const char* ending : {"", "-wal", "-shm"})
            std::filesystem::remove(address_ + ending);
}

lzJxc SampleCompany::SignedIn() const {
    lzJxc control;
    UseCompany(control, address_);
    control.CompName("远帆");
    control.PowerPath(TemporaryFile(name_).string() + "-print"); // removed with the company
    control.UserName("王芳");
    control.ZgName("王芳");
    control.myPower("9999999999");
    control.Language(0);
    control.myType(-1);
    return control;
}

void OnSampleCompany::SetUp() {
    if (const std::string reason = WhyUnavailable(GetParam()); !reason.empty())
        GTEST_SKIP() << reason;
    RegisterAllScreens();
    ResetScreens();
    company = std::make_unique<SampleCompany>(GetParam());
    control = company->SignedIn();
    Begin();
}

Rows QueryCompany(const std::string& address, const std::string& sql) {
    Connection connection;
    OpenConnection(DialectOf(address), connection, address, "", "", "");
    return connection.Query(sql);
}

void ExecuteOnCompany(const std::string& address, const std::string& sql) {
    Connection connection;
    OpenConnection(DialectOf(address), connection, address, "", "", "");
    connection.Execute(sql);
}

} // namespace jxc::test
