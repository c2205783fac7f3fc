#include "host/window/sample_company_file.h"

#include <filesystem>

#include "host/company/create_company.h"
#include "host/company/sample_month.h"
#include "host/company_address.h"
#include "host/user_settings.h"
#include "host/window/company_users.h"
#include "view/qt_text.h"

namespace jxc {

void MakeSampleCompany(const std::string& file) {
    CreateCompany(0, file, CompanyKind::Sample);
    try {
        lzJxc control;
        UseCompany(control, file);
        {
            const OpenCompany open(file);
            const std::string user = CompanyUsers().front();
            const UserRights rights = UserSettings(user);
            control.UserName(user);
            control.ZgName(rights.ZgName);
            control.myPower(rights.myPower);
        }
        PlaySampleMonth();
    } catch (...) {
        for (const char* ending : {"", "-wal", "-shm"}) {
            std::error_code ignored;
            std::filesystem::remove(file + ending, ignored);
        }
        throw;
    }
}

std::string SampleCompanyFile() {
    return S(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/lzJxc/样例公司.db");
}

std::string OwnSampleCompany() {
    std::string file = SampleCompanyFile();
    QDir().mkpath(QFileInfo(Q(file)).path());
    if (!QFileInfo::exists(Q(file)))
        MakeSampleCompany(file);
    return file;
}

} // namespace jxc
