// The program at the command line: what it says and how it ends.
#include <cstdio>
#include <filesystem>
#include <regex>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "database/sqlite_engine.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

struct Ended {
    int status;
    std::string told; // on both outputs
};

// Runs the program with `environment` before it, without a display.
Ended Jxc(const std::string& arguments, const std::string& environment = "") {
    const std::string command = "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " + environment +
                                " " JXC_PROGRAM " " + arguments + " 2>&1 </dev/null";
    Ended ended{0, ""};
    FILE* output = popen(command.c_str(), "r");
    char part[4096];
    while (const size_t read = fread(part, 1, sizeof part, output))
        ended.told.append(part, read);
    ended.status = WEXITSTATUS(pclose(output));
    return ended;
}

void ExpectEnd(const Ended& ended, int status, const std::string& told) {
    EXPECT_EQ(ended.status, status) << ended.told;
    EXPECT_NE(ended.told.find(told), std::string::npos) << ended.told;
}

// Whether the program was built with its windows.
bool HasWindows() {
    return Jxc("--help").told.find("打开主窗口") != std::string::npos;
}

class Program : public testing::Test {
  protected:
    std::string File(const std::string& name) const { return folder.File(name); }
    const TemporaryFolder folder;
};

// A database that is not there yet, and a role that may do nothing in it; both are gone afterwards.
class ProgramOnServer : public Program {
  protected:
    void SetUp() override {
        if (const std::string reason = WhyUnavailable(EngineKind::Postgres); !reason.empty())
            GTEST_SKIP() << reason;
        OnServer("create role " + guest + " login");
    }
    void TearDown() override {
        if (IsSkipped())
            return;
        OnServer("drop database if exists " + database + " with (force)");
        OnServer("drop role " + guest);
    }
    std::string Address(const std::string& user) const {
        return "'postgresql://" + user + "@/" + database + TestServer().substr(TestServer().find('?')) + "'";
    }
    const std::string database = "jxc_program_" + std::to_string(getpid());
    const std::string guest = database + "_guest";
};

} // namespace

TEST_F(Program, RefusesWhatItCannotUnderstandInOneWay) {
    ExpectEnd(Jxc("--version"), 0, "jxc 0.");
    ExpectEnd(Jxc("--help"), 0, "用法");
    for (const auto& [wrong, reason] : {std::pair("check", "缺少参数：COMPANY。"),
                                        {"dance", "不认识的命令或选项：dance。"},
                                        {"create a b c", "多余的参数"},
                                        {"check --fast x", "不认识的命令或选项：--fast。"},
                                        {"create --sample --bare x", "--sample 与 --bare 不能同时使用。"},
                                        {"drive x --user", "选项缺少值，或值过多：--user。"}})
        ExpectEnd(Jxc(wrong), 2, reason);
    for (const char* date : {"2026-13-01", "tomorrow", "'2026-11-05 or so'"})
        ExpectEnd(Jxc("create " + File("a.db"), std::string("JXC_TODAY=") + date), 2, "JXC_TODAY 须为日期");
    EXPECT_FALSE(std::filesystem::exists(File("a.db")));
    ExpectEnd(Jxc("check " + File("absent.db")), 3, "不存在");
}

TEST_F(Program, NeedsADisplayForWindowsOnly) {
    ExpectEnd(Jxc("create " + File("a.db")), 0, "帐套已建立");
    ExpectEnd(Jxc("check " + File("a.db")), 0, "全部相符");
#ifdef JXC_VIEW
    ExpectEnd(Jxc(""), 3, "没有图形显示");
    ExpectEnd(Jxc("open " + File("a.db")), 3, "没有图形显示");
    ExpectEnd(Jxc("open " + File("a.db"), "DISPLAY=:9876"), 3, "不能打开窗口：连接不上图形显示");
#else
    ExpectEnd(Jxc(""), 2, "缺少命令");
    ExpectEnd(Jxc("open x y"), 2, "不认识的命令或选项：open x y。");
#endif
}

TEST_F(Program, SetsPropertiesByTheirNames) {
    ExpectEnd(Jxc("create " + File("a.db")), 0, "帐套已建立");
    std::vector<std::string> commands{"drive"};
    if (HasWindows())
        commands.emplace_back("open"); // which looks at them before it looks for a display
    for (const std::string& command : commands) {
        const std::string start = command + " " + File("a.db") + " --set ";
        ExpectEnd(Jxc(start + "ZgName"), 2, "--set 须为 属性=值：ZgName");
        ExpectEnd(Jxc(start + "ZgName=a --set noSuch=b"), 2, "noSuch");
        ExpectEnd(Jxc(start + "myType=many"), 2, "myType");
    }
    for (const std::string& command : commands)
        ExpectEnd(Jxc(command + " " + File("a.db") + " --user \"$(printf '\\377\\376')\""), 2,
                  "--user 的用户名含有无效字符");
    ExpectEnd(Jxc("drive " + File("a.db") + " --set ZgName=a=b --set myType=1 --set myType=2"), 0, "");
    if (HasWindows())
        ExpectEnd(Jxc("open " + File("a.db") + " --set ZgName=a --set myType=1"), 3, "没有图形显示");
}

TEST_F(Program, TellsFindingsAndNotesOfTheBooksApart) {
    ExpectEnd(Jxc("create " + File("a.db")), 0, "帐套已建立");
    const auto change = [&](const char* sql) {
        SqliteEngine(File("a.db"), SqliteFile::Open).ExecuteScript(sql);
    };
    change("insert into tJXC_CkTj "
           "(fCkName,fCpID,fQcSl,fRkSl,fCkSl,fDkSl,fPdSl,fQcJe,fRkJe,fCkJe,fKcSL,fKcDj,fKcJE,"
           "fMonth) values ('空仓',1,0,0,0,0,0,0,0,0,0,0,0,'2001-01-01')");
    const Ended noted = Jxc("check " + File("a.db"));
    ExpectEnd(noted, 0, "提示：库存统计仍是以前月份的");
    ExpectEnd(noted, 0, "帐套检查：没有发现错误，另有 1 处提示。");
    EXPECT_EQ(noted.told.find("全部相符"), std::string::npos) << noted.told;
    change("insert into tJXC_CkDj01 (fInvID,fInvNo,fInvType) values (1,cast(x'41ff42' as text),1)");
    const Ended found = Jxc("check " + File("a.db"));
    ExpectEnd(found, 1, "单据 A\uFFFDB：没有明细");
    EXPECT_EQ(found.told.find('\xff'), std::string::npos);
    EXPECT_EQ(found.told.find("没有发现错误"), std::string::npos) << found.told;
}

TEST_F(Program, TakesPicturesInACompanyOfItsOwn) {
    if (!HasWindows())
        GTEST_SKIP() << "built without windows";
    for (const std::string option : {"--shots", "--first"}) {
        const Ended both = Jxc("tour " + File("a.db") + " " + option + " " + File("pictures"));
        ExpectEnd(both, 2, "不能同时使用");
        EXPECT_NE(both.told.find("COMPANY"), std::string::npos) << both.told;
        EXPECT_NE(both.told.find(option), std::string::npos) << both.told;
    }
    ExpectEnd(Jxc("tour --shots " + File("pictures") + " --first " + File("pictures")), 2, "不能同时使用");
    EXPECT_FALSE(std::filesystem::exists(File("a.db")));
    EXPECT_FALSE(std::filesystem::exists(File("pictures")));
}

TEST_F(Program, PlaysItsTourInASampleOnly) {
    ExpectEnd(Jxc("create " + File("mine.db")), 0, "帐套已建立");
    SqliteEngine(File("mine.db"), SqliteFile::Open).SetVersion(0); // as an older program left it
    ExpectEnd(Jxc("tour " + File("mine.db")), 3, "不是样例公司");
    EXPECT_EQ(SqliteEngine(File("mine.db"), SqliteFile::Read).Version(), 0); // and so it stays
    ExpectEnd(Jxc("tour " + File("new.db"), "JXC_TODAY=2026-11-05"), 0, "全部相符");
}

TEST_F(Program, HasAManualOfEveryOption) {
    const std::string manual = std::regex_replace(FileText(JXC_ROOT "/docs/jxc.1"), std::regex("\\\\-"), "-");
    std::string help = Jxc("--help-all").told;
    EXPECT_EQ(help.find("Options"), std::string::npos) << help; // it speaks one language
    int options = 0;
    const std::regex option("--[a-z-]+");
    for (std::sregex_iterator found(help.begin(), help.end(), option), end; found != end; ++found, ++options)
        EXPECT_NE(manual.find(found->str()), std::string::npos) << found->str();
    EXPECT_GT(options, 8);
    for (const char* command : {"create", "drive", "tour", "check", "backup", "restore"})
        EXPECT_NE(manual.find(".B " + std::string(command)), std::string::npos) << command;
}

TEST_F(ProgramOnServer, SaysWhatStandsInTheWay) {
    const std::string owner = Address("postgres");
    ExpectEnd(Jxc("create " + owner), 3, "数据库 " + database + " 不存在");
    ExpectEnd(Jxc("create --create-database " + owner), 0, "帐套已建立");
    ExpectEnd(Jxc("create " + owner), 3, "中已有帐套");
    ExpectEnd(Jxc("check " + Address(guest)), 3, "没有读取表");
}

TEST_F(ProgramOnServer, PlaysItsTourInASampleOnly) {
    OnServer("create database " + database);
    for (int times = 0; times < 2; ++times) // makes its sample, and plays in it again
        ExpectEnd(Jxc("tour " + Address("postgres"), "JXC_TODAY=2026-11-05"), 0, "全部相符");
    OnServer("update mycompany set compname = 'mine'", database);
    ExpectEnd(Jxc("tour " + Address("postgres")), 3, "不是样例公司");
}

} // namespace jxc::test
