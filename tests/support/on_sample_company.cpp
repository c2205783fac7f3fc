#include "tests/support/on_sample_company.h"

#include <cstdlib>
#include <filesystem>

#include "host/company/create_company.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "session/company/open_connection.h"

namespace jxc::test {

namespace {

const char* const kToday = "2026-11-05";

// What every sample company is copied from; made on first use, removed when the program ends.
struct Template : CompanyPlace {
    explicit Template(EngineKind kind) : CompanyPlace(kind) {
        CreateCompany(Dialect(), Address(), CompanyKind::Sample);
    }
};

// Today is the day of the books from here on.
const CompanyPlace& TemplateOf(EngineKind kind) {
    setenv("JXC_TODAY", kToday, 1);
    if (kind == EngineKind::Sqlite) {
        static const Template sqlite(EngineKind::Sqlite);
        return sqlite;
    }
    static const Template postgres(EngineKind::Postgres);
    return postgres;
}

} // namespace

SampleCompany::SampleCompany(EngineKind kind) : place_(kind, TemplateOf(kind).Database()) {
    if (kind == EngineKind::Sqlite)
        std::filesystem::copy_file(TemplateOf(kind).Address(), Address());
}

lzJxc SampleCompany::SignedIn() const {
    lzJxc control;
    UseCompany(control, Address());
    control.CompName("远帆");
    control.PowerPath(place_.Folder().File("print"));
    control.UserName("王芳");
    control.ZgName("王芳");
    control.myPower("9999999999");
    control.OldName("");
    control.myModel("");
    session.SelectedProductID = 0; // what a screen of the test before has left behind
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

void OpenCompanyAt(const std::string& address, Connection& connection) {
    OpenConnection(DialectOf(address), connection, address, "", "", "");
}

Rows QueryCompany(const std::string& address, const std::string& sql) {
    Connection connection;
    OpenCompanyAt(address, connection);
    return connection.Query(sql);
}

void ExecuteOnCompany(const std::string& address, const std::string& sql) {
    Connection connection;
    OpenCompanyAt(address, connection);
    connection.Execute(sql);
}

} // namespace jxc::test
