// The program jxc: makes companies, drives the screens by script, plays the tour, checks the books.

#include <filesystem>
#include <iostream>

#include <CLI/CLI.hpp>

#include "host/check.h"
#include "host/company/backup.h"
#include "host/company/create_company.h"
#include "host/company_address.h"
#include "host/robot.h"
#include "host/screens.h"
#include "host/tour.h"
#ifdef JXC_VIEW
#include "host/window/window_program.h"
#endif

namespace {

using namespace jxc;

int Create(const std::string& company, bool sample, bool bare) {
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
    const OpenCompany open(company);
    const std::vector<std::string> violations = CheckCompany();
    for (const std::string& violation : violations)
        std::cout << violation << "\n";
    if (violations.empty())
        std::cout << "帐套检查：全部相符。" << std::endl;
    return violations.empty() ? 0 : 1;
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
#ifdef JXC_VIEW
    app.require_subcommand(0, 1);
#else
    app.require_subcommand(1);
#endif
    std::string company;
    std::string user;
    std::vector<std::string> settings;
    bool sample = false;
    bool bare = false;

    CLI::App* create = app.add_subcommand("create", "建立帐套");
    create->add_option("COMPANY", company, "文件，或 postgresql://... 地址")->required();
    CLI::Option* sampleFlag = create->add_flag("--sample", sample, "带一个电脑配件商行的资料");
    create->add_flag("--bare", bare, "只建表")->excludes(sampleFlag);

    CLI::App* drive = app.add_subcommand("drive", "以 JSON 行驱动各窗口：每行一个请求，每个请求一个回答");
    drive->add_option("COMPANY", company, "文件，或 postgresql://... 地址")->required();
    drive->add_option("--user", user, "登录用户");
    drive->add_option("--set", settings, "lzJxc 的属性，PROPERTY=VALUE")->take_all()->allow_extra_args(false);

    CLI::App* tour = app.add_subcommand("tour", "演示：录入、审核、查询库存，并打印结果");
    tour->add_option("COMPANY", company, "文件（没有则以样例资料建立），或空的 postgresql://... 数据库");

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

    CLI11_PARSE(app, argc, argv);
    try {
        if (*create)
            return Create(company, sample, bare);
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
        return 2;
    }
}
