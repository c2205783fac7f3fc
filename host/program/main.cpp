// The program jxc: reads the command line and runs its command.

#include <cstdlib>
#include <cstring>
#include <iostream>

#include "base/date.h"
#include "controls/view.h"
#include "host/exit_status.h"
#include "host/program/commands.h"
#include "host/program/words.h"

namespace {

using namespace jxc;

int RefuseUsage(const CLI::App& app, const CLI::ParseError& error) {
    std::cerr << "用法错误：" << ReasonOf(app, error) << "。用 jxc --help 查看用法。" << std::endl;
    return kUsage;
}

int Tell(const std::exception& error, int status) {
    std::cerr << TextForPeople("jxc", error) << std::endl;
    return status;
}

// A date that is none would let today's pass for it.
void RequireFixedDate() {
    const char* fixed = std::getenv("JXC_TODAY");
    if (fixed && *fixed && (!ParseDate(fixed) || std::strlen(fixed) != std::strlen("yyyy-mm-dd")))
        throw UsageError("环境变量 JXC_TODAY 须为日期 yyyy-mm-dd：" + std::string(fixed));
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"lzJxc 进销存 — 采购、销售、库存", "jxc"};
    SpeakChinese(app);
    app.set_version_flag("--version", "jxc " JXC_VERSION, "显示版本");
    app.require_subcommand(0,
                           1); // whether one is needed is asked last: a word that is no command is told first
    const Commands commands(app);
    try {
        app.parse(argc, argv);
        commands.RequireOne();
    } catch (const CLI::ParseError& error) {
        return error.get_exit_code() == 0 ? app.exit(error) : RefuseUsage(app, error);
    }
    try {
        RequireFixedDate();
        return commands.Run();
    } catch (const UsageError& error) {
        return Tell(error, kUsage);
    } catch (const std::exception& error) {
        return Tell(error, kFailure);
    }
}
