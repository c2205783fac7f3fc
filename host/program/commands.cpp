#include "host/program/commands.h"

#include <iostream>

#include "controls/screen.h"
#include "database/database_error.h"
#include "database/storable_text.h"
#include "host/check.h"
#include "host/company/backup.h"
#include "host/company/create_company.h"
#include "host/company/prepare_database.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "host/exit_status.h"
#include "host/program/words.h"
#include "host/tour.h"
#include "robot/robot.h"
#ifdef JXC_VIEW
#include "host/window/window_program.h"
#endif

namespace jxc {

namespace {

int Create(const std::string& company, CompanyKind kind, bool createDatabase) {
    if (DialectOf(company) != 0)
        PrepareDatabase(company, createDatabase);
    CreateCompany(DialectOf(company), company, kind);
    std::cout << "帐套已建立：" << WithoutPassword(company) << std::endl;
    return 0;
}

int Drive(const std::string& company, const std::string& user, const PropertySettings& settings) {
    RegisterAllScreens();
    lzJxc control;
    UseCompany(control, company);
    control.UserName(user);
    SetProperties(control, settings);
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
        std::cout << Readable(line) << "\n";
    for (const std::string& note : notes)
        std::cout << Readable(note) << "\n";
    if (findings.empty() && notes.empty())
        std::cout << "帐套检查：全部相符。" << std::endl;
    else if (findings.empty())
        std::cout << "帐套检查：没有发现错误，另有 " << notes.size() << " 处提示。" << std::endl;
    return findings.empty() ? 0 : kFindings;
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

Commands::Commands(CLI::App& app) : app_(app) {
    AddCreate();
    AddDrive();
    AddTour();
#ifdef JXC_VIEW
    AddOpen();
#endif
    AddBackupAndRestore();
    AddCheck();
}

void Commands::RequireOne() const {
#ifndef JXC_VIEW
    if (app_.get_subcommands().empty())
        throw CLI::RequiredError("A subcommand");
#endif
}

int Commands::Run() const {
    for (const auto& [command, run] : commands_)
        if (*command)
            return run();
#ifdef JXC_VIEW
    return RunWindows({});
#else
    return 0;
#endif
}

CLI::App& Commands::Add(const char* name, const char* purpose, std::function<int()> run) {
    CLI::App* command = app_.add_subcommand(name, purpose);
    SpeakChinese(*command);
    commands_.emplace_back(command, std::move(run));
    return *command;
}

CLI::Option* Commands::AddCompany(CLI::App& command, const char* purpose) {
    return command.add_option("COMPANY", company_, purpose);
}

void Commands::AddUserAndSettings(CLI::App& command) {
    command.add_option("--user", user_, "登录用户");
    command.add_option("--set", settings_, "lzJxc 的属性，PROPERTY=VALUE")
        ->take_all()
        ->allow_extra_args(false);
}

// Tried on a control, before anything is opened.
PropertySettings Commands::Settings() const {
    if (!IsStorable(user_))
        throw UsageError("--user 的用户名含有无效字符。");
    try {
        PropertySettings settings = ReadSettings(settings_);
        lzJxc control;
        SetProperties(control, settings);
        return settings;
    } catch (const ScreenError& error) {
        throw UsageError(error.what());
    }
}

void Commands::AddCreate() {
    CLI::App& create = Add("create", "建立帐套", [this] {
        const CompanyKind kind = sample_ ? CompanyKind::Sample
                                 : bare_ ? CompanyKind::Bare
                                         : CompanyKind::Default;
        return Create(company_, kind, createDatabase_);
    });
    AddCompany(create)->required();
    CLI::Option* sample = create.add_flag("--sample", sample_, "带一个电脑配件商行的资料");
    create.add_flag("--bare", bare_, "只建表")->excludes(sample);
    create.add_flag("--create-database", createDatabase_, "服务器上没有该数据库时，同时建立数据库");
}

void Commands::AddDrive() {
    CLI::App& drive = Add("drive", "以 JSON 行驱动各窗口：每行一个请求，每个请求一个回答",
                          [this] { return Drive(company_, user_, Settings()); });
    AddCompany(drive)->required();
    AddUserAndSettings(drive);
}

void Commands::AddTour() {
    CLI::App& tour = Add("tour", "演示：录入、审核、查询库存，并打印结果", [this] {
#ifdef JXC_VIEW
        if (!pictures_.empty())
            return TakePictures(pictures_);
        if (!firstPictures_.empty())
            return TakeFirstPictures(firstPictures_);
#endif
        return PlayTour(company_);
    });
    [[maybe_unused]] CLI::Option* company =
        AddCompany(tour, "样例公司（没有则建立）：文件，或 postgresql://... 地址");
#ifdef JXC_VIEW
    CLI::Option* shots =
        tour.add_option("--shots", pictures_, "驱动各窗口，把每个窗口的图片存入目录")->excludes(company);
    tour.add_option("--first", firstPictures_, "演示新建帐套直到第一张单据审核，把图片存入目录")
        ->excludes(company)
        ->excludes(shots);
#endif
}

#ifdef JXC_VIEW
void Commands::AddOpen() {
    CLI::App& open = Add("open", "打开主窗口", [this] {
        return RunWindows({company_, sample_, user_, Settings()});
    });
    CLI::Option* company = AddCompany(open);
    open.add_flag("--sample", sample_, "样例公司，没有就建立")->excludes(company);
    AddUserAndSettings(open);
}
#endif

void Commands::AddBackupAndRestore() {
    CLI::App& backup =
        Add("backup", "备份帐套文件，别人可以继续工作", [this] { return BackUp(company_, copy_); });
    AddCompany(backup, "帐套文件")->required();
    backup.add_option("FILE", copy_, "备份文件，须尚不存在")->required();
    CLI::App& restore = Add("restore", "从备份恢复为新的帐套", [this] { return Restore(copy_, company_); });
    restore.add_option("FILE", copy_, "备份文件")->required();
    AddCompany(restore, "帐套文件，须尚不存在")->required();
}

void Commands::AddCheck() {
    CLI::App& check = Add("check", "检查帐套，每处不符一行", [this] { return Check(company_); });
    AddCompany(check)->required();
}

} // namespace jxc
