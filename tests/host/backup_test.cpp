// A copy of a company, and the way back.

#include <filesystem>
#include <fstream>
#include <random>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "database/recordset.h"
#include "database/sqlite_content.h"
#include "database/sqlite_handles.h"
#include "host/check.h"
#include "host/company/backup.h"
#include "host/company/create_company.h"
#include "host/company/sample_month.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "session/session.h"
#include "tests/support/files.h"

namespace jxc {

namespace {

class BackupTest : public testing::Test {
  protected:
    BackupTest() { CreateCompany(0, File("a.db"), CompanyKind::Sample); }
    std::string File(const std::string& name) const { return folder.File(name); }
    static std::int64_t Documents(const std::string& company) {
        const OpenCompany open(company);
        return Recordset(Conn(), "Select Count(*) From tJXC_CkDj01")[size_t{0}].AsLong();
    }
    const test::TemporaryFolder folder;
};

} // namespace

TEST_F(BackupTest, CopiesWhatIsCommittedAndComesBackWhole) {
    RegisterAllScreens();
    lzJxc control;
    UseCompany(control, File("a.db"));
    control.UserName("马文涛");
    control.ZgName("马文涛");
    control.myPower("99999999");
    PlaySampleMonth();
    const std::int64_t documents = Documents(File("a.db"));
    EXPECT_EQ(documents, 14); // of the month's documents those that move goods

    const OpenCompany atWork(File("a.db"));
    BackUpCompany(File("a.db"), File("copy.db"));
    RestoreCompany(File("copy.db"), File("b.db"));
    EXPECT_EQ(Documents(File("b.db")), documents);
    const OpenCompany restored(File("b.db"));
    EXPECT_EQ(CheckCompany(), std::vector<std::string>{});
}

namespace {

// What a reader of the file sees, or that it cannot be read.
std::string ContentOf(const std::string& file) {
    const SqliteHandle db = OpenSqlite(file, SQLITE_OPEN_READONLY);
    try {
        return ReadContent(db.get()).digest;
    } catch (const DatabaseError&) {
        return "unreadable";
    }
}

void FlipBytes(const std::string& file, std::mt19937& random, int count) {
    std::fstream bytes(file, std::ios::in | std::ios::out | std::ios::binary);
    const auto size = static_cast<int>(std::filesystem::file_size(file));
    for (int i = 0; i < count; ++i) {
        const int at = std::uniform_int_distribution<int>(100, size - 1)(random);
        bytes.seekg(at);
        const auto byte = static_cast<char>(bytes.get() ^ (1 << (i % 8)));
        bytes.seekp(at);
        bytes.put(byte);
    }
}

} // namespace

// Twelve bytes of a copy are no longer what they were: it is told, or no reader sees a difference. (A company at work
// has no note of what it holds: a single value that changed into another sensible one is nobody's to know there.)
TEST_F(BackupTest, DamageIsFoundBeforeItIsTrusted) {
    BackUpCompany(File("a.db"), File("copy.db"));
    const std::string sound = ContentOf(File("copy.db"));
    std::mt19937 random(20261105);
    int refused = 0, reported = 0, saved = 0;
    constexpr int kRounds = 60;
    for (int round = 0; round < kRounds; ++round) {
        SCOPED_TRACE(round);
        std::filesystem::copy_file(File("copy.db"), File("bad.db"),
                                   std::filesystem::copy_options::overwrite_existing);
        FlipBytes(File("bad.db"), random, 12);
        const std::string seen = ContentOf(File("bad.db"));
        try {
            RestoreCompany(File("bad.db"), File("restored.db"));
            EXPECT_EQ(ContentOf(File("restored.db")), sound); // or nobody sees the damage
            std::filesystem::remove(File("restored.db"));
        } catch (const DatabaseError&) {
            ++refused;
            EXPECT_FALSE(std::filesystem::exists(File("restored.db")));
        }
        try {
            BackUpCompany(File("bad.db"), File("again.db"));
            EXPECT_EQ(ContentOf(File("again.db")), sound);
            std::filesystem::remove(File("again.db"));
        } catch (const DatabaseError& error) {
            ++reported;
            EXPECT_FALSE(std::filesystem::exists(File("again.db")));
            if (std::filesystem::exists(File("again.db.damaged"))) { // kept for whoever repairs it, and told
                ++saved;
                EXPECT_NE(std::string(error.what()).find("again.db.damaged"), std::string::npos);
                std::filesystem::remove(File("again.db.damaged"));
            }
        }
        if (seen != sound) {
            try {
                const OpenCompany open(File("bad.db"), OpenFor::Looking);
                EXPECT_NE(CheckEngine(), std::vector<std::string>{});
            } catch (const DatabaseError&) { // not even opened
            }
        }
    }
    EXPECT_GT(refused, kRounds / 3);
    EXPECT_GT(saved, 0);
    EXPECT_GE(reported, saved);
}

TEST_F(BackupTest, CopiesArePrivateAndMayBeReadOnly) {
    const mode_t before = umask(0);
    BackUpCompany(File("a.db"), File("copy.db"));
    umask(before);
    const auto mode = std::filesystem::status(File("copy.db")).permissions();
    EXPECT_EQ(static_cast<unsigned>(mode), 0600U);
    std::filesystem::permissions(File("copy.db"), std::filesystem::perms::owner_read);
    {
        const OpenCompany open(File("copy.db"), OpenFor::Looking);
        EXPECT_EQ(CheckEngine(), std::vector<std::string>{});
        EXPECT_EQ(CheckCompany(), std::vector<std::string>{});
        EXPECT_THROW(Conn().Execute("Delete From tJXC_InvSys"), DatabaseError);
    }
    RestoreCompany(File("copy.db"), File("b.db"));
    const OpenCompany restored(File("b.db"));
    Conn().Execute("Update tJXC_InvSys Set fSysDay=1");
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        EXPECT_EQ(entry.path().string().find(".part"), std::string::npos);
}

TEST_F(BackupTest, CompaniesTellTheirVersion) {
    const auto version = [&](const std::string& pragma) {
        const SqliteHandle db = OpenSqlite(File("a.db"), SQLITE_OPEN_READWRITE);
        sqlite3_exec(db.get(), pragma.c_str(), nullptr, nullptr, nullptr);
    };
    version("pragma user_version=99");
    EXPECT_THROW(OpenCompany open(File("a.db")), DatabaseError);
    EXPECT_THROW(BackUpCompany(File("a.db"), File("copy.db")), DatabaseError);
    version("pragma user_version=0; alter table tJXC_Ck drop column fKhID; drop table tHostUser");
    { // an older one is raised when it is opened to work
        const OpenCompany open(File("a.db"));
        EXPECT_TRUE(Conn().HasColumn("tJXC_Ck", "fKhID"));
        EXPECT_TRUE(Conn().HasColumn("tHostUser", "fUserName"));
    }
    version("pragma application_id=17");
    EXPECT_THROW(OpenCompany open(File("a.db")), DatabaseError);
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
