// The program jxc: makes companies, drives the screens by script, plays the tour, checks the books.

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>

#include <CLI/CLI.hpp>

#include "controls/date.h"
#include "host/check.h"
#include "host/company/backup.h"
#include "host/company/create_company.h"
#include "host/company/prepare_database.h"
#include "host/company_address.h"
#include "host/robot.h"
#include "host/screens.h"
#include "host/tour.h"
#ifdef JXC_VIEW
#include "host/window/window_program.h"
#endif

namespace {

using namespace jxc;

constexpr int kUsage = 2;   // what was asked for cannot be understood
constexpr int kFailure = 2; // or cannot be done

// The words that the library puts around ours.
void SpeakChinese(CLI::App& app) {
    const auto formatter = std::make_shared<CLI::Formatter>();
    for (const auto& [word, chinese] : {std::pair("Usage", "用法"),
                                        {"Options", "选项"},
                                        {"OPTIONS", "选项"},
                                        {"SUBCOMMAND", "命令"},
                                        {"SUBCOMMANDS", "命令"},
                                        {"Subcommands", "命令"},
                                        {"Positionals", "参数"},
                                        {"POSITIONALS", "参数"},
                                        {"REQUIRED", "必需"},
                                        {"TEXT", "文本"},
                                        {"Excludes", "不与之同用"}})
        formatter->label(word, chinese);
    app.formatter(formatter);
    app.option_defaults()->group("选项"); // which the commands take over
    app.group("命令");
    app.set_help_flag("-h,--help", "显示用法");
    app.set_help_all_flag("--help-all", "显示所有命令的用法");
}

// What the library says in English, as far as it names something, in the words of the help.
std::string ReasonOf(const CLI::ParseError& error) {
    const std::string told = error.what();
    const auto before = [&](const char* mark) { return told.substr(0, told.find(mark)); };
    const auto after = [&](const char* mark) {
        const size_t at = told.find(mark);
        return at == std::string::npos ? "" : told.substr(at + std::strlen(mark));
    };
    if (dynamic_cast<const CLI::ExtrasError*>(&error))
        return "多余的参数，或不认识的命令或选项：" + after(": ");
    if (dynamic_cast<const CLI::ExcludesError*>(&error))
        return before(" excludes ") + " 与 " + after(" excludes ") + " 不能同时使用";
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error))
        return "选项缺少值，或值过多：" + before(":");
    if (dynamic_cast<const CLI::RequiredError*>(&error))
        return told.rfind("A subcommand", 0) == 0 ? "缺少命令" : "缺少参数：" + before(" is required");
    return "命令行不正确";
}

int RefuseUsage(const CLI::ParseError& error) {
    std::cerr << "用法错误：" << ReasonOf(error) << "。用 jxc --help 查看用法。" << std::endl;
    return kUsage;
}

// A date that is none would let today's pass for it.
void RequireFixedDate() {
    const char* fixed = std::getenv("JXC_TODAY");
    if (fixed && *fixed && (!ParseDate(fixed) || std::strlen(fixed) != std::strlen("yyyy-mm-dd")))
        throw std::runtime_error("环境变量 JXC_TODAY 须为日期 yyyy-mm-dd：" + std::string(fixed));
}

int Create(const std::string& company, bool sample, bool bare, bool createDatabase) {
    if (DialectOf(company) != 0)
        PrepareDatabase(company, createDatabase);
    const CompanyKind kind = sample ? CompanyKind::Sample : bare ? CompanyKind::Bare : CompanyKind::Default;
    CreateCompany(DialectOf(company), company, kind);
    std::cout << "帐套已建立：" << WithoutPassword(company) << std::endl;
    return 0;
}

int Drive(const std::string& company, const std::string& user, const std::vector<std::string>& settings) {
    RegisterAllScreens();
    lzJxc control;
    UseCompany(control, company);
    control.UserName(user);
    for (const std::string& setting : settings) {
        const size_t equals = setting.find('=');
        if (equals == std::string::npos)
            throw ScreenError("--set 须为 属性=值：" + setting);
        control.SetProperty(setting.substr(0, equals), setting.substr(equals + 1));
    }
    JsonLines lines(std::cin, std::cout);
    Robot(control, lines).Run();
    return 0;
}

int Check(const std::string& company) {
    const OpenCompany open(company, OpenFor::Looking);
    std::vector<std::string> notes;
    std::vector<std::string> findings = CheckEngine();
    const std::vector<std::string> books = CheckCompany(&notes);
    findings.insert(findings.end(), books.begin(), books.end());
    for (const std::string& line : findings)
        std::cout << line << "\n";
    for (const std::string& note : notes)
        std::cout << note << "\n";
    if (findings.empty())
        std::cout << "帐套检查：全部相符。" << std::endl;
    return findings.empty() ? 0 : 1;
}

int BackUp(const std::string& company, const std::string& file) {
    BackUpCompany(company, file);
    std::cout << "备份完毕，并已检查可以读出：" << file << std::endl;
    return 0;
}

int Restore(const std::string& file, const std::string& company) {
    RestoreCompany(file, company);
    std::cout << "帐套已恢复：" << company << std::endl;
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"lzJxc 进销存 — 采购、销售、库存", "jxc"};
    SpeakChinese(app);
    app.set_version_flag("--version", "jxc " JXC_VERSION, "显示版本");
    app.require_subcommand(0,
                           1); // whether one is needed is asked last: a word that is no command is told first
    std::string company;
    std::string user;
    std::vector<std::string> settings;
    bool sample = false;
    bool bare = false;
    bool createDatabase = false;

    CLI::App* create = app.add_subcommand("create", "建立帐套");
    create->add_option("COMPANY", company, "文件，或 postgresql://... 地址")->required();
    CLI::Option* sampleFlag = create->add_flag("--sample", sample, "带一个电脑配件商行的资料");
    create->add_flag("--bare", bare, "只建表")->excludes(sampleFlag);
    create->add_flag("--create-database", createDatabase, "服务器上没有该数据库时，同时建立数据库");

    CLI::App* drive = app.add_subcommand("drive", "以 JSON 行驱动各窗口：每行一个请求，每个请求一个回答");
    drive->add_option("COMPANY", company, "文件，或 postgresql://... 地址")->required();
    drive->add_option("--user", user, "登录用户");
    drive->add_option("--set", settings, "lzJxc 的属性，PROPERTY=VALUE")->take_all()->allow_extra_args(false);

    CLI::App* tour = app.add_subcommand("tour", "演示：录入、审核、查询库存，并打印结果");
    tour->add_option("COMPANY", company, "样例公司（没有则建立）：文件，或 postgresql://... 地址");

#ifdef JXC_VIEW
    std::string pictures;
    tour->add_option("--shots", pictures, "驱动各窗口，把每个窗口的图片存入目录");
    CLI::App* open = app.add_subcommand("open", "打开主窗口");
    CLI::Option* companyToOpen = open->add_option("COMPANY", company, "文件，或 postgresql://... 地址");
    open->add_flag("--sample", sample, "样例公司，没有就建立")->excludes(companyToOpen);
    open->add_option("--user", user, "登录用户");
#endif

    std::string copy;
    CLI::App* backup = app.add_subcommand("backup", "备份帐套文件，别人可以继续工作");
    backup->add_option("COMPANY", company, "帐套文件")->required();
    backup->add_option("FILE", copy, "备份文件，须尚不存在")->required();
    CLI::App* restore = app.add_subcommand("restore", "从备份恢复为新的帐套");
    restore->add_option("FILE", copy, "备份文件")->required();
    restore->add_option("COMPANY", company, "帐套文件，须尚不存在")->required();

    CLI::App* check = app.add_subcommand("check", "检查帐套，每处不符一行");
    check->add_option("COMPANY", company, "文件，或 postgresql://... 地址")->required();

    try {
        app.parse(argc, argv);
#ifndef JXC_VIEW
        if (app.get_subcommands().empty())
            throw CLI::RequiredError("A subcommand");
#endif
        RequireFixedDate();
    } catch (const CLI::ParseError& error) {
        return error.get_exit_code() == 0 ? app.exit(error) : RefuseUsage(error);
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return kUsage;
    }
    try {
        if (*create)
            return Create(company, sample, bare, createDatabase);
        if (*drive)
            return Drive(company, user, settings);
#ifdef JXC_VIEW
        if (*tour && !pictures.empty())
            return TakePictures(pictures);
        if (*open || app.get_subcommands().empty())
            return RunWindows(company, user, sample);
#endif
        if (*tour)
            return PlayTour(company);
        if (*backup)
            return BackUp(company, copy);
        if (*restore)
            return Restore(copy, company);
        return Check(company);
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return kFailure;
    }
}
