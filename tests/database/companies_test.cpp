// Creating and opening companies: what is refused and how it is said, older databases, and whose the file is.
#include <sys/stat.h>

#include <fstream>

#include "database/engine.h"
#include "database/schema.h"
#include "session/company/open_connection.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

std::string WhyNot(int dialect, const std::string& path, const std::string& database = "") {
    Connection connection;
    std::string reason = RefusalOf([&] { OpenConnection(dialect, connection, path, "", "", database); });
    EXPECT_EQ(connection.IsOpen(), reason.empty());
    return reason;
}

class Companies : public OnBothEngines {};
ON_BOTH_ENGINES(Companies);

TEST_P(Companies, AreFoundAgain) {
    Do("Insert Into tJXC_Ck (fCkName) Values ('总仓')");
    EXPECT_EQ(WhyNot(company->Dialect(), company->Path(), company->Database()), "");
    EXPECT_EQ(OpenConnection(company->Dialect(), Conn(), company->Path(), "", "", company->Database()), 0);
    EXPECT_EQ(One("Select fCkName From tJXC_Ck"), "总仓");
}

TEST_P(Companies, AreNotCreatedTwice) {
    Connection connection;
    EXPECT_THROW(
        CreateCompanyTables(company->Dialect(), connection, company->Path(), "", "", company->Database()),
        DatabaseError);
    EXPECT_FALSE(connection.IsOpen());
    EXPECT_EQ(WhyNot(company->Dialect(), company->Path(), company->Database()), "");
}

TEST_P(Companies, HaveEveryTableOfTheSystem) {
    EXPECT_EQ(One("Select count(*) From tJXC_InvSys"), "0");
    Conn().EngineInUse().ExecuteScript("drop table tJXC_InvSys");
    EXPECT_EQ(WhyNot(company->Dialect(), company->Path(), company->Database()),
              "该数据库不是公司帐套：缺少表 tJXC_InvSys。");
}

// The books that are copied with "Select *" have one layout; the types' columns 10 and 22 are reached by
// place.
TEST_P(Companies, KeepTheOrderOfColumnsThatCopiesRelyOn) {
    const auto names = [](const std::string& table) { return Conn().Query("Select * From " + table).names; };
    for (const char* half : {"01", "02"})
        for (const char* book : {"tJXC_CkDj_Bak", "tJXC_CkDj_Tmp"})
            EXPECT_EQ(names(std::string(book) + half), names(std::string("tJXC_CkDj") + half));
    EXPECT_EQ(names("tJXC_CkTj_Bak"), names("tJXC_CkTj"));
    EXPECT_EQ(names("tJXC_Yj_Data_Bak"), names("tJXC_Yj_Data"));
    EXPECT_STRCASEEQ(names("tJXC_InvSet")[10].c_str(), "fSetTestNo");
    EXPECT_STRCASEEQ(names("tJXC_InvSet")[22].c_str(), "fSetDefaultNo");
    EXPECT_EQ(names("tJXC_InvSet").size(), 24u);
}

// Another user's program adds the column while this one has its "select *" prepared.
TEST_P(Companies, MayGrowAColumnUnderOneWhoReads) {
    EXPECT_EQ(Conn().Query("Select * From tJXC_KhAdd").names.size(), 2u);
    Connection other;
    company->Open(other);
    other.Execute("ALTER TABLE tJXC_KhAdd ADD fMore Int NULL");
    EXPECT_EQ(Conn().Query("Select * From tJXC_KhAdd").names.size(), 3u);
}

} // namespace

TEST(CompanyFiles, BelongToTheirOwnerOnly) {
    const mode_t before = umask(0);
    const TestCompany company(EngineKind::Sqlite);
    umask(before);
    Do("Insert Into tJXC_Ck (fCkName) Values ('A')");
    for (const char* suffix : {"", "-wal", "-shm"}) {
        struct stat file {};
        ASSERT_EQ(stat((company.Path() + suffix).c_str(), &file), 0) << suffix;
        EXPECT_EQ(file.st_mode & 0777, 0600u) << suffix;
    }
}

TEST(CompanyFiles, ThatAreNoneAreRefused) {
    const TemporaryFolder folder;
    const std::string path = folder.File("company.db");
    EXPECT_EQ(WhyNot(0, path), "数据库文件 " + path + " 不存在。");
    EXPECT_EQ(WhyNot(0, folder.Path()), folder.Path() + " 不是数据库文件。");
    std::ofstream(path) << std::string(5000, 'x');
    EXPECT_EQ(WhyNot(0, path), "该文件不是数据库，或者已经损坏。");
    std::ofstream(path, std::ios::trunc).close();
    EXPECT_TRUE(WhyNot(0, path).starts_with("该数据库不是公司帐套：缺少表"));
}

TEST(CompanyServers, ThatDoNotAnswerAreNamed) {
    EXPECT_TRUE(WhyNot(1, "/tmp/no_server_is_here", "x").starts_with("不能连接数据库服务器："));
}

class CompanyServer : public Companies {};
ON_POSTGRES(CompanyServer);

TEST_P(CompanyServer, NamesTheDatabaseThatIsMissing) {
    const std::string why = WhyNot(1, TestServer(), "jxc_no_such_database");
    EXPECT_NE(why.find("jxc_no_such_database"), std::string::npos) << why;
    EXPECT_TRUE(WhyNot(1, TestServer()).starts_with("该数据库不是公司帐套"));
}

TEST_P(CompanyServer, ThatGoesAwayIsNoticed) {
    Conn().BeginTrans();
    Do("Insert Into tJXC_Ck (fCkName) Values ('A')");
    Conn().Flush();
    Connection other;
    company->Open(other);
    CutLinesOfOthers(other);
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(RefusalOf([] { One("Select count(*) From tJXC_Ck"); }), "与服务器的连接已中断。");
    EXPECT_THROW(Conn().CommitTrans(), DatabaseError);
    Conn().RollbackTrans();
    EXPECT_EQ(other.Query("Select count(*) From tJXC_Ck").At(0, 0).AsLong(), 0);
}

} // namespace jxc::test
