// A copy of a company, and the way back.

#include <filesystem>

#include <gtest/gtest.h>

#include "host/check.h"
#include "host/company/backup.h"
#include "host/company/create_company.h"
#include "host/company/sample_month.h"
#include "host/company_address.h"
#include "host/screens.h"
#include "session/database/recordset.h"
#include "session/session.h"

namespace jxc {

namespace {

class BackupTest : public testing::Test {
  protected:
    BackupTest() {
        std::string name = (std::filesystem::temp_directory_path() / "jxc-backup-XXXXXX").string();
        folder_ = mkdtemp(name.data());
        CreateCompany(0, File("a.db"), CompanyKind::Sample);
    }
    ~BackupTest() override { std::filesystem::remove_all(folder_); }
    std::string File(const std::string& name) const { return (folder_ / name).string(); }
    static std::int64_t Documents(const std::string& company) {
        const OpenCompany open(company);
        return Recordset(Conn(), "Select Count(*) From tJXC_CkDj01")[size_t{0}].AsLong();
    }
    std::filesystem::path folder_;
};

} // namespace

TEST_F(BackupTest, CopiesWhatIsCommittedAndComesBackWhole) {
    RegisterAllScreens();
    lzJxc control;
    UseCompany(control, File("a.db"));
    control.UserName("马文涛");
    control.ZgName("马文涛");
    control.myPower("99999999");
    PlaySampleMonth(control);
    const std::int64_t documents = Documents(File("a.db"));
    EXPECT_EQ(documents, 14); // of the month's documents those that move goods

    const OpenCompany atWork(File("a.db"));
    BackUpCompany(File("a.db"), File("copy.db"));
    RestoreCompany(File("copy.db"), File("b.db"));
    EXPECT_EQ(Documents(File("b.db")), documents);
    const OpenCompany restored(File("b.db"));
    EXPECT_EQ(CheckCompany(), std::vector<std::string>{});
    const auto mode = std::filesystem::status(File("copy.db")).permissions();
    EXPECT_EQ(mode & std::filesystem::perms::group_read, std::filesystem::perms::none);
}

TEST_F(BackupTest, RefusesFilesThatAreThereAndServers) {
    EXPECT_THROW(BackUpCompany(File("a.db"), File("a.db")), DatabaseError);
    EXPECT_THROW(BackUpCompany("postgresql://nowhere/x", File("copy.db")), DatabaseError);
    EXPECT_THROW(BackUpCompany(File("a.db"), File("no/folder/copy.db")), DatabaseError);
    EXPECT_FALSE(std::filesystem::exists(File("copy.db")));
    EXPECT_THROW(RestoreCompany(File("absent.db"), File("b.db")), DatabaseError);
    EXPECT_FALSE(std::filesystem::exists(File("b.db")));
}

} // namespace jxc
