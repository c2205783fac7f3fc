#include "host/window/sample_company_file.h"

#include <filesystem>

#include "host/company/create_company.h"
#include "host/company/sample_month.h"
#include "host/company_address.h"
#include "host/window/company_users.h"

namespace jxc {

void MakeSampleCompany(const std::string& file) {
    CreateCompany(0, file, CompanyKind::Sample);
    try {
        std::vector<CompanyUser> users;
        {
            const OpenCompany open(file);
            users = CompanyUsers();
        }
        lzJxc control;
        UseCompany(control, file);
        control.UserName(SupervisorOf(users));
        control.ZgName(SupervisorOf(users));
        control.myPower(users.front().rights);
        PlaySampleMonth(control);
    } catch (const std::exception&) {
        for (const char* ending : {"", "-wal", "-shm"}) {
            std::error_code ignored;
            std::filesystem::remove(file + ending, ignored);
        }
        throw;
    }
}

} // namespace jxc
